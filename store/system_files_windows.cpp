#ifdef _WIN32

#include <algorithm>
#include <array>
#include <filesystem>
#include <limits>

#include <windows.h>

#include "store/modCommon_File.h"
#include "store/system_files.h"

namespace cellora {

namespace {

constexpr DWORD lngShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr std::int64_t lngTicksPerSecond = 10'000'000; // of a FILETIME
constexpr std::size_t lngMaxShortPath = 240;
constexpr int intMaxTries = 10;
constexpr DWORD msBetweenTries = 20;
constexpr DWORD lngDiskQuotaExceeded = 1295; // which not every header names

std::error_code ToError(DWORD lngCode) {
    struct Row {
        DWORD lngCode;
        std::errc error;
    };
    constexpr auto aRows = std::to_array<Row>({
        {ERROR_FILE_NOT_FOUND, std::errc::no_such_file_or_directory},
        {ERROR_PATH_NOT_FOUND, std::errc::no_such_file_or_directory},
        {ERROR_BAD_NETPATH, std::errc::no_such_device},
        {ERROR_INVALID_DRIVE, std::errc::no_such_file_or_directory},
        {ERROR_NOT_READY, std::errc::no_such_device},
        {ERROR_INVALID_NAME, std::errc::invalid_argument},
        {ERROR_BAD_PATHNAME, std::errc::invalid_argument},
        {ERROR_NO_UNICODE_TRANSLATION, std::errc::invalid_argument},
        {ERROR_FILENAME_EXCED_RANGE, std::errc::filename_too_long},
        {ERROR_ACCESS_DENIED, std::errc::permission_denied},
        {ERROR_SHARING_VIOLATION, std::errc::device_or_resource_busy},
        {ERROR_LOCK_VIOLATION, std::errc::device_or_resource_busy},
        {ERROR_WRITE_PROTECT, std::errc::read_only_file_system},
        {ERROR_FILE_EXISTS, std::errc::file_exists},
        {ERROR_ALREADY_EXISTS, std::errc::file_exists},
        {ERROR_DISK_FULL, std::errc::no_space_on_device},
        {ERROR_HANDLE_DISK_FULL, std::errc::no_space_on_device},
        {lngDiskQuotaExceeded, std::errc::no_space_on_device},
        {ERROR_FILE_TOO_LARGE, std::errc::file_too_large},
        {ERROR_NOT_SUPPORTED, std::errc::not_supported},
        {ERROR_INVALID_FUNCTION, std::errc::not_supported},
    });
    const auto row = std::ranges::find(aRows, lngCode, &Row::lngCode);
    return std::make_error_code(row == aRows.end() ? std::errc::io_error : row->error);
}

std::error_code ToError(bool blnDone, DWORD lngCode) {
    return blnDone ? std::error_code() : ToError(lngCode);
}

HANDLE ToHandle(FileHandle handle) {
    return reinterpret_cast<HANDLE>(static_cast<std::intptr_t>(handle));
}

FileHandle FromHandle(HANDLE handle) {
    return FileHandle{reinterpret_cast<std::intptr_t>(handle)};
}

std::wstring ToWide(const std::string& strText) {
    const int intSize = static_cast<int>(strText.size());
    std::wstring strWide(strText.size(), L'\0');
    const int intWide = MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, strText.data(), intSize,
                                            strWide.data(), intSize);
    strWide.resize(static_cast<std::size_t>(intWide));
    return strWide;
}

std::string ToUTF8(const std::wstring& strWide) {
    const int intWide = static_cast<int>(strWide.size());
    std::string strText(strWide.size() * 3, '\0');
    const int intSize = WideCharToMultiByte(CP_UTF8, 0, strWide.data(), intWide, strText.data(),
                                            static_cast<int>(strText.size()), nullptr, nullptr);
    strText.resize(static_cast<std::size_t>(intSize));
    return strText;
}

/// The path as the system takes it, however long; empty for text that names none.
std::wstring ToPath(const std::string& strPath) {
    if (strPath.find('\0') != std::string::npos)
        return {};
    std::wstring strWide = ToWide(strPath);
    const DWORD lngSize = GetFullPathNameW(strWide.c_str(), 0, nullptr, nullptr);
    if (lngSize < lngMaxShortPath)
        return strWide;
    std::wstring strFull(lngSize, L'\0');
    strFull.resize(GetFullPathNameW(strWide.c_str(), lngSize, strFull.data(), nullptr));
    if (strFull.starts_with(LR"(\\?\)"))
        return strFull;
    return strFull.starts_with(LR"(\\)") ? LR"(\\?\UNC\)" + strFull.substr(2)
                                         : LR"(\\?\)" + strFull;
}

std::wstring GetName(const std::wstring& strPath) {
    const std::size_t intLast = strPath.find_last_of(L"/\\");
    return intLast == std::wstring::npos ? strPath : strPath.substr(intLast + 1);
}

HANDLE Open(const std::wstring& strPath, DWORD lngAccess, DWORD lngShare, DWORD lngCreation,
            DWORD lngFlags) {
    return CreateFileW(strPath.c_str(), lngAccess, lngShare, nullptr, lngCreation, lngFlags,
                       nullptr);
}

/// Whether the file is being removed: it is there as long as somebody else has it open.
bool IsGoing(const std::wstring& strPath) {
    return GetFileAttributesW(strPath.c_str()) == INVALID_FILE_ATTRIBUTES &&
           GetLastError() == ERROR_ACCESS_DENIED;
}

/// Who looks for viruses or names for a search opens new files for a moment.
template <typename Call>
DWORD Insist(Call fnCall) {
    for (int n = 1; !fnCall(); ++n) {
        const DWORD lngCode = GetLastError();
        const bool blnBusy = lngCode == ERROR_SHARING_VIOLATION || lngCode == ERROR_ACCESS_DENIED;
        if (!blnBusy || n == intMaxTries)
            return lngCode;
        Sleep(msBetweenTries);
    }
    return ERROR_SUCCESS;
}

std::int64_t GetAge(const FILETIME& changed) {
    FILETIME now{};
    GetSystemTimeAsFileTime(&now);
    const auto ToTicks = [](const FILETIME& time) {
        return static_cast<std::int64_t>((std::uint64_t{time.dwHighDateTime} << 32U) |
                                         time.dwLowDateTime);
    };
    return (ToTicks(now) - ToTicks(changed)) / lngTicksPerSecond;
}

bool IsMissing(DWORD lngCode) {
    return lngCode == ERROR_FILE_NOT_FOUND || lngCode == ERROR_PATH_NOT_FOUND ||
           lngCode == ERROR_INVALID_DRIVE;
}

} // namespace

std::error_code SystemFiles::GetStatus(const std::string& strPath, PathStatus& status) {
    status = {};
    // Opened for nothing but its attributes, so that links are followed.
    const HANDLE handle = Open(ToPath(strPath), FILE_READ_ATTRIBUTES, lngShareAll, OPEN_EXISTING,
                               FILE_FLAG_BACKUP_SEMANTICS);
    if (handle == INVALID_HANDLE_VALUE) {
        const DWORD lngCode = GetLastError();
        return ToError(IsMissing(lngCode), lngCode);
    }
    BY_HANDLE_FILE_INFORMATION found{};
    const bool blnDisk = GetFileType(handle) == FILE_TYPE_DISK;
    const bool blnDone = !blnDisk || GetFileInformationByHandle(handle, &found) != 0;
    const DWORD lngCode = GetLastError();
    CloseHandle(handle);
    status.kind = !blnDisk                                                    ? PathKind::Other
                  : (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0U ? PathKind::Folder
                                                                              : PathKind::File;
    status.lngSize = (std::uint64_t{found.nFileSizeHigh} << 32U) | found.nFileSizeLow;
    status.lngAge = GetAge(found.ftLastWriteTime);
    return ToError(blnDone, lngCode);
}

std::error_code SystemFiles::FollowLinks(const std::string& strPath, std::string& strTarget) {
    strTarget = strPath;
    const std::wstring strWide = ToPath(strPath);
    const DWORD lngAttributes = GetFileAttributesW(strWide.c_str());
    if (lngAttributes == INVALID_FILE_ATTRIBUTES ||
        (lngAttributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0U)
        return {};
    const HANDLE handle =
        Open(strWide, FILE_READ_ATTRIBUTES, lngShareAll, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
    if (handle == INVALID_HANDLE_VALUE)
        return ToError(GetLastError());
    std::wstring strFinal(std::numeric_limits<std::int16_t>::max(), L'\0');
    const DWORD lngSize = GetFinalPathNameByHandleW(
        handle, strFinal.data(), static_cast<DWORD>(strFinal.size()), FILE_NAME_NORMALIZED);
    const DWORD lngCode = GetLastError();
    CloseHandle(handle);
    strFinal.resize(std::min<std::size_t>(lngSize, strFinal.size()));
    strTarget = ToUTF8(strFinal);
    return ToError(lngSize > 0, lngCode);
}

std::error_code SystemFiles::OpenForReading(const std::string& strPath, FileHandle& file,
                                            std::uint64_t& lngSize) {
    const HANDLE handle =
        Open(ToPath(strPath), GENERIC_READ, lngShareAll, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL);
    if (handle == INVALID_HANDLE_VALUE)
        return ToError(GetLastError());
    LARGE_INTEGER size{};
    const bool blnDisk = GetFileType(handle) == FILE_TYPE_DISK;
    if (!blnDisk || GetFileSizeEx(handle, &size) == 0) {
        const DWORD lngCode = blnDisk ? GetLastError() : DWORD{ERROR_NOT_SUPPORTED};
        CloseHandle(handle);
        return ToError(lngCode);
    }
    file = FromHandle(handle);
    lngSize = static_cast<std::uint64_t>(size.QuadPart);
    return {};
}

std::error_code SystemFiles::Create(const std::string& strPath, const std::string& strLike,
                                    FileHandle& file) {
    // A file gets its rights from its folder; of another one it can only keep that it is hidden.
    const DWORD lngLike = GetFileAttributesW(ToPath(strLike).c_str());
    const bool blnLike = lngLike != INVALID_FILE_ATTRIBUTES;
    if (blnLike && (lngLike & FILE_ATTRIBUTE_READONLY) != 0U)
        return std::make_error_code(std::errc::permission_denied);
    const DWORD lngKept = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    const HANDLE handle =
        Open(ToPath(strPath), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE, CREATE_NEW,
             FILE_ATTRIBUTE_NORMAL | (blnLike ? lngLike & lngKept : 0U));
    if (handle == INVALID_HANDLE_VALUE)
        return ToError(GetLastError());
    file = FromHandle(handle);
    return {};
}

std::error_code SystemFiles::Read(FileHandle file, std::span<char> buffer, std::size_t& lngRead) {
    DWORD lngDone = 0;
    const auto lngWanted = static_cast<DWORD>(
        std::min<std::size_t>(buffer.size(), std::numeric_limits<std::int32_t>::max()));
    const bool blnDone = ReadFile(ToHandle(file), buffer.data(), lngWanted, &lngDone, nullptr) != 0;
    lngRead = lngDone;
    return ToError(blnDone, GetLastError());
}

std::error_code SystemFiles::Write(FileHandle file, std::string_view bytes,
                                   std::size_t& lngWritten) {
    DWORD lngDone = 0;
    const auto lngWanted = static_cast<DWORD>(
        std::min<std::size_t>(bytes.size(), std::numeric_limits<std::int32_t>::max()));
    const bool blnDone = WriteFile(ToHandle(file), bytes.data(), lngWanted, &lngDone, nullptr) != 0;
    lngWritten = lngDone;
    return ToError(blnDone, GetLastError());
}

std::error_code SystemFiles::Flush(FileHandle file) {
    return ToError(FlushFileBuffers(ToHandle(file)) != 0, GetLastError());
}

std::error_code SystemFiles::Close(FileHandle file) {
    return ToError(CloseHandle(ToHandle(file)) != 0, GetLastError());
}

std::error_code SystemFiles::Rename(const std::string& strPath, const std::string& strNewPath) {
    const std::wstring strOld = ToPath(strPath);
    const std::wstring strNew = ToPath(strNewPath);
    const DWORD lngCode = Insist([&] {
        return MoveFileExW(strOld.c_str(), strNew.c_str(),
                           MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
    });
    return ToError(lngCode == ERROR_SUCCESS, lngCode);
}

std::error_code SystemFiles::Remove(const std::string& strPath) {
    const std::wstring strWide = ToPath(strPath);
    const DWORD lngAttributes = GetFileAttributesW(strWide.c_str());
    const bool blnFolder = lngAttributes != INVALID_FILE_ATTRIBUTES &&
                           (lngAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0U;
    const auto fnRemove = blnFolder ? RemoveDirectoryW : DeleteFileW;
    const DWORD lngCode = Insist([&] { return fnRemove(strWide.c_str()) != 0; });
    return ToError(lngCode == ERROR_SUCCESS, lngCode);
}

std::error_code SystemFiles::FlushFolder(const std::string&) {
    return {}; // renaming has written through
}

std::error_code SystemFiles::MakeFolder(const std::string& strPath) {
    // Who may enter it follows from the folder above, which is the user's own.
    const std::wstring strWide = ToPath(strPath);
    if (CreateDirectoryW(strWide.c_str(), nullptr) == 0)
        return ToError(GetLastError());
    if (GetName(strWide).starts_with(L'.'))
        SetFileAttributesW(strWide.c_str(), FILE_ATTRIBUTE_HIDDEN);
    return {};
}

std::error_code SystemFiles::ListFolder(const std::string& strPath,
                                        std::vector<std::string>& names) {
    names.clear();
    WIN32_FIND_DATAW entry{};
    const HANDLE search = FindFirstFileW(ToPath(JoinPath(strPath, "*")).c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE)
        return ToError(GetLastError());
    do {
        const std::string strName = ToUTF8(entry.cFileName);
        if (strName != "." && strName != "..")
            names.push_back(strName);
    } while (FindNextFileW(search, &entry) != 0);
    const DWORD lngCode = GetLastError();
    FindClose(search);
    return ToError(lngCode == ERROR_NO_MORE_FILES, lngCode);
}

std::error_code SystemFiles::TakeLock(const std::string& strPath, FileHandle& lock) {
    // Who has opened a file that is shared with nobody holds the lock; the system removes the file
    // with the last of its handles, at the latest when the holder dies.
    const std::wstring strWide = ToPath(strPath);
    const HANDLE handle = Open(strWide, GENERIC_READ | GENERIC_WRITE | DELETE, 0, OPEN_ALWAYS,
                               FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE);
    if (handle == INVALID_HANDLE_VALUE) {
        const DWORD lngCode = GetLastError();
        const bool blnHeld = lngCode == ERROR_SHARING_VIOLATION ||
                             (lngCode == ERROR_ACCESS_DENIED && IsGoing(strWide));
        return blnHeld ? std::make_error_code(std::errc::resource_unavailable_try_again)
                       : ToError(lngCode);
    }
    lock = FromHandle(handle);
    return {};
}

void SystemFiles::ReleaseLock(const std::string&, FileHandle lock) {
    CloseHandle(ToHandle(lock));
}

} // namespace cellora

#endif
