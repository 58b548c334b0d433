#pragma once

#include <span>
#include <string>
#include <string_view>

#include "store/file_port.h"

/// Where the program keeps its files. Paths are UTF-8.
namespace cellora {

/// A file as it is shipped with the program. The texts belong to the caller.
struct ShippedFile {
    std::string_view strName;
    std::string_view strContent;
};

/// The program's own folder inside the user's data: `$XDG_DATA_HOME/cellora` or
/// `~/.local/share/cellora`, on Windows `%LOCALAPPDATA%\Cellora`, on macOS
/// `~/Library/Application Support/cellora`. Empty when there is no such place. Nothing is created.
std::string GetUserDataFolder();

/// The folder of the settings and hall-of-fame files: the folder of the running program when a file
/// can be created there, or could be but for a disk that is full or fails where such files lie;
/// else `strUserDataFolder`, made when missing. When nothing can be written there either, or there
/// is no user's folder, the program's folder all the same, for what can be read in it. The folders
/// have no separator at their end.
std::string GetProgramFolder(FilePort& files, const std::string& strExecutableFolder,
                             const std::string& strUserDataFolder);

/// Removes the files that killed writes of this or an earlier version left in the folder, once they
/// are more than an hour old. Failures are ignored.
void RemoveOldTemporaries(FilePort& files, const std::string& strFolder);

/// Puts every shipped file that is missing into the folder. What exists is never touched, not even
/// when another copy of the program starts at the same moment; failures are ignored.
void PlaceShippedFiles(FilePort& files, const std::string& strFolder,
                       std::span<const ShippedFile> shipped);

} // namespace cellora
