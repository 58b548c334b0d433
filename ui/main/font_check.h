#pragma once

namespace cellora {

/// Whether digits can be drawn at any size: some font that has them is installed, and scalable.
bool HasScalableFont();

/// Says which font to install, on the error stream and in a window whose text is a picture. Returns
/// when the player has closed the window.
void TellOfMissingFont();

} // namespace cellora
