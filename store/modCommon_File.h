#pragma once

#include <string>

#include "store/file_port.h"

/// Questions about paths. Paths are UTF-8; none of these routines raises an error.
namespace cellora {

/// True for an existing path that is not a folder. False for a missing, malformed or empty path and
/// for one that cannot be examined.
bool FileExists(FilePort& files, std::string strPath);

/// True for any existing path, folder or file; false as in `FileExists`.
bool PathExists(FilePort& files, std::string strPath);

/// True where it is certain that nothing is there: a path that cannot be examined may exist, and is
/// neither missing here nor existing above.
bool IsMissing(FilePort& files, const std::string& strPath);

/// The path up to and including its last "/", or its last backslash when it holds no "/"; on
/// Windows the last of either. Empty text when it holds neither.
std::string GetFolderFromPath(std::string strPath);

/// The path of `strName` inside `strFolder`, which may or may not end with a separator; what is put
/// between them is the system's own. An empty folder gives the bare name.
std::string JoinPath(const std::string& strFolder, const std::string& strName);

} // namespace cellora
