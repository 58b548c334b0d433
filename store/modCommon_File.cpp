#include "store/modCommon_File.h"

#include <filesystem>

namespace cellora {

namespace {

/// Missing where the system cannot tell.
PathKind GetKind(FilePort& files, const std::string& strPath) {
    PathStatus status;
    return files.GetStatus(strPath, status) ? PathKind::Missing : status.kind;
}

} // namespace

bool FileExists(FilePort& files, std::string strPath) {
    const PathKind kind = GetKind(files, strPath);
    return kind != PathKind::Missing && kind != PathKind::Folder;
}

bool PathExists(FilePort& files, std::string strPath) {
    return GetKind(files, strPath) != PathKind::Missing;
}

bool IsMissing(FilePort& files, const std::string& strPath) {
    PathStatus status;
    return !files.GetStatus(strPath, status) && status.kind == PathKind::Missing;
}

std::string GetFolderFromPath(std::string strPath) {
#ifdef _WIN32
    const std::size_t intLast = strPath.find_last_of("/\\");
#else
    std::size_t intLast = strPath.rfind('/');
    if (intLast == std::string::npos)
        intLast = strPath.rfind('\\');
#endif
    return intLast == std::string::npos ? std::string() : strPath.substr(0, intLast + 1);
}

std::string JoinPath(const std::string& strFolder, const std::string& strName) {
    if (GetFolderFromPath(strFolder) == strFolder)
        return strFolder + strName;
    return strFolder + static_cast<char>(std::filesystem::path::preferred_separator) + strName;
}

} // namespace cellora
