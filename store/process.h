#pragma once

/// What the program asks of the system for itself.
namespace cellora {

/// From now on a file that may not grow further is a write that fails, as on a full disk, and not
/// the end of the program. Nothing where the system knows no such limit.
void IgnoreFileSizeSignal();

/// Whether the player has asked, in the settings of the system or of a desktop whose settings are
/// files, that programs keep still what they show. The answer may change while the program runs.
bool AsksForStillness();

} // namespace cellora
