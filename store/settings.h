#pragma once

#include <string>

#include "store/file_port.h"

/// The values of the settings file. `strPath` is the full path of the file.
namespace cellora {

struct Settings;

/// The settings that are written together, each group at its own moment.
enum class SettingsGroup {
    Options, ///< the colours and the cursor
    View,
    Startup,
    Path,
};

/// All settings, read at once. A value that is missing or damaged reads as its default.
///
/// Whole numbers stand alone in decimal digits. A view choice is the word True or False in any
/// letter case, or a number, of which only 0 is false. "startup" is the number at the start of its
/// text, 0 where the text begins with none. A zoom between two steps becomes the nearest, one
/// beyond them the default. `strUnread` tells of a file that is there and could not be read.
Settings LoadSettings(FilePort& files, const std::string& strPath);

/// Writes one group by a single replacement of the file; a write that fails is ignored. Nothing is
/// written over a file that could not be read when the settings were loaded, or cannot be now:
/// their defaults are no choice of the player's. Other values, known or not, stay as they are. The
/// zoom is not written while it is the default and the file names none.
void SaveSettings(FilePort& files, const Settings& settings, SettingsGroup group,
                  const std::string& strPath);

} // namespace cellora
