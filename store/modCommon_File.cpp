#include "store/modCommon_File.h"

#include <filesystem>
#include <system_error>

namespace cellora {

namespace {

/// An empty path for text that names none.
std::filesystem::path ToPath(const std::string& strPath) {
    // The system would silently take a path up to its first zero byte.
    if (strPath.find('\0') != std::string::npos)
        return {};
    try {
        return std::u8string(strPath.begin(), strPath.end());
    } catch (const std::system_error&) {
        // Where paths are not bytes, text that is not UTF-8 cannot be converted.
        return {};
    }
}

std::filesystem::file_status GetStatus(const std::string& strPath) {
    std::error_code error;
    return std::filesystem::status(ToPath(strPath), error);
}

} // namespace

bool FileExists(std::string strPath) {
    const std::filesystem::file_status status = GetStatus(strPath);
    return std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

bool PathExists(std::string strPath) {
    return std::filesystem::exists(GetStatus(strPath));
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

void RemoveFile(const std::string& strPath) {
    std::error_code ignored;
    std::filesystem::remove(ToPath(strPath), ignored);
}

void RenameFile(const std::string& strPath, const std::string& strNewPath) {
    std::error_code ignored;
    std::filesystem::rename(ToPath(strPath), ToPath(strNewPath), ignored);
}

} // namespace cellora
