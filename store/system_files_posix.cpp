#ifndef _WIN32

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "store/modCommon_File.h"
#include "store/system_files.h"

namespace cellora {

namespace {

constexpr mode_t lngOwnerMode = S_IRUSR | S_IWUSR;
constexpr mode_t lngNewFileMode = 0666; // less what the user's mask takes
constexpr mode_t lngPermissions = 0777;
constexpr int intMaxLinks = 40;
constexpr int intMaxTries = 100; // of a lock whose file is removed again and again

std::error_code LastError() {
    return {errno, std::generic_category()};
}

std::error_code ToError(bool blnDone) {
    return blnDone ? std::error_code() : LastError();
}

int ToNumber(FileHandle handle) {
    return static_cast<int>(handle);
}

/// Repeats a call that a signal has interrupted.
template <typename Call>
auto Insist(Call fnCall) {
    auto result = fnCall();
    while (result == -1 && errno == EINTR)
        result = fnCall();
    return result;
}

/// Null for text that names no path: the system would take it up to its first zero byte.
const char* ToPath(const std::string& strPath) {
    return strPath.find('\0') == std::string::npos ? strPath.c_str() : "";
}

int Open(const std::string& strPath, int intFlags, mode_t mode = 0) {
    return Insist([&] { return open(ToPath(strPath), intFlags | O_CLOEXEC | O_NOCTTY, mode); });
}

/// Closes a file that was not written, so that no error can mean a loss; keeps the last error.
std::error_code Drop(int intFile, std::error_code error) {
    close(intFile);
    return error;
}

/// Whatever the user's mask, the owner can read and write the file, at this start and the next.
/// Disks that know no permissions refuse to change them.
void GiveToOwner(int intFile) {
    struct stat status {};
    if (fstat(intFile, &status) == 0 && (status.st_mode & lngOwnerMode) != lngOwnerMode)
        static_cast<void>(fchmod(intFile, (status.st_mode & lngPermissions) | lngOwnerMode));
}

std::error_code LockOpenFile(int intFile) {
    if (Insist([&] { return flock(intFile, LOCK_EX | LOCK_NB); }) == 0)
        return {};
    // Every other error than this one comes from the disk: over a network it may know no locks.
    return std::make_error_code(errno == EWOULDBLOCK ? std::errc::resource_unavailable_try_again
                                                     : std::errc::not_supported);
}

/// False when the last holder of a lock has removed its file between opening and locking it here.
bool IsFileOfPath(int intFile, const std::string& strPath) {
    struct stat opened {};
    struct stat named {};
    return fstat(intFile, &opened) == 0 && lstat(ToPath(strPath), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

/// Opens the file of a lock, made when missing. One of another user may be open for reading only,
/// which is enough to lock it.
int OpenLock(const std::string& strPath) {
    constexpr int intFlags = O_CREAT | O_NOFOLLOW | O_NONBLOCK;
    const int intFile = Open(strPath, O_RDWR | intFlags, lngNewFileMode);
    if (intFile < 0)
        return errno == EACCES ? Open(strPath, O_RDONLY | O_NOFOLLOW | O_NONBLOCK) : -1;
    GiveToOwner(intFile);
    return intFile;
}

} // namespace

std::error_code SystemFiles::GetStatus(const std::string& strPath, PathStatus& status) {
    struct stat found {};
    status = {};
    if (stat(ToPath(strPath), &found) != 0)
        return errno == ENOENT || errno == ENOTDIR ? std::error_code() : LastError();
    status.kind = S_ISREG(found.st_mode)   ? PathKind::File
                  : S_ISDIR(found.st_mode) ? PathKind::Folder
                                           : PathKind::Other;
    status.lngSize = static_cast<std::uint64_t>(found.st_size);
    status.lngAge = static_cast<std::int64_t>(std::time(nullptr) - found.st_mtime);
    return {};
}

std::error_code SystemFiles::FollowLinks(const std::string& strPath, std::string& strTarget) {
    strTarget = strPath;
    for (int n = 0; n < intMaxLinks; ++n) {
        char aTarget[PATH_MAX];
        const ssize_t lngSize = readlink(ToPath(strTarget), aTarget, sizeof aTarget);
        if (lngSize < 0)
            return errno == EINVAL || errno == ENOENT ? std::error_code() : LastError();
        const std::string_view strNext(aTarget, static_cast<std::size_t>(lngSize));
        strTarget = strNext.starts_with('/') ? std::string() : GetFolderFromPath(strTarget);
        strTarget.append(strNext);
    }
    return std::make_error_code(std::errc::too_many_symbolic_link_levels);
}

std::error_code SystemFiles::OpenForReading(const std::string& strPath, FileHandle& file,
                                            std::uint64_t& lngSize) {
    const int intFile = Open(strPath, O_RDONLY | O_NONBLOCK);
    struct stat status {};
    if (intFile < 0)
        return LastError();
    if (fstat(intFile, &status) != 0)
        return Drop(intFile, LastError());
    if (!S_ISREG(status.st_mode))
        return Drop(intFile, std::make_error_code(std::errc::not_supported));
    file = FileHandle{intFile};
    lngSize = static_cast<std::uint64_t>(status.st_size);
    return {};
}

std::error_code SystemFiles::Create(const std::string& strPath, const std::string& strLike,
                                    FileHandle& file) {
    struct stat like {};
    const bool blnLike = stat(ToPath(strLike), &like) == 0;
    if (blnLike && faccessat(AT_FDCWD, ToPath(strLike), W_OK, AT_EACCESS) != 0)
        return LastError();
    const int intFile = Open(strPath, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, lngNewFileMode);
    if (intFile < 0)
        return LastError();
    if (!blnLike || fchmod(intFile, like.st_mode & lngPermissions) != 0)
        GiveToOwner(intFile);
    file = FileHandle{intFile};
    return {};
}

std::error_code SystemFiles::Read(FileHandle file, std::span<char> buffer, std::size_t& lngRead) {
    const ssize_t lngDone =
        Insist([&] { return read(ToNumber(file), buffer.data(), buffer.size()); });
    lngRead = lngDone < 0 ? 0 : static_cast<std::size_t>(lngDone);
    return ToError(lngDone >= 0);
}

std::error_code SystemFiles::Write(FileHandle file, std::string_view bytes,
                                   std::size_t& lngWritten) {
    const ssize_t lngDone =
        Insist([&] { return write(ToNumber(file), bytes.data(), bytes.size()); });
    lngWritten = lngDone < 0 ? 0 : static_cast<std::size_t>(lngDone);
    return ToError(lngDone >= 0);
}

std::error_code SystemFiles::Flush(FileHandle file) {
    return ToError(Insist([&] { return fsync(ToNumber(file)); }) == 0);
}

std::error_code SystemFiles::Close(FileHandle file) {
    // A handle is gone even when a signal came in between.
    return ToError(close(ToNumber(file)) == 0 || errno == EINTR);
}

std::error_code SystemFiles::Rename(const std::string& strPath, const std::string& strNewPath) {
    return ToError(rename(ToPath(strPath), ToPath(strNewPath)) == 0);
}

std::error_code SystemFiles::Remove(const std::string& strPath) {
    return ToError(remove(ToPath(strPath)) == 0);
}

std::error_code SystemFiles::FlushFolder(const std::string& strPath) {
    const int intFolder = Open(strPath, O_RDONLY | O_DIRECTORY);
    // A folder that the user may write but not list.
    if (intFolder < 0)
        return ToError(errno == EACCES);
    const bool blnDone = Insist([&] { return fsync(intFolder); }) == 0;
    return Drop(intFolder, ToError(blnDone || errno == EINVAL || errno == ENOTSUP ||
                                   errno == ENOSYS || errno == EBADF));
}

std::error_code SystemFiles::MakeFolder(const std::string& strPath) {
    if (mkdir(ToPath(strPath), S_IRWXU) != 0)
        return LastError();
    // The user's mask may have taken rights from the owner.
    return ToError(chmod(ToPath(strPath), S_IRWXU) == 0);
}

std::error_code SystemFiles::ListFolder(const std::string& strPath,
                                        std::vector<std::string>& names) {
    names.clear();
    DIR* const pFolder = opendir(ToPath(strPath));
    if (pFolder == nullptr)
        return LastError();
    errno = 0;
    while (const dirent* const pEntry = readdir(pFolder)) {
        const std::string strName = pEntry->d_name;
        if (strName != "." && strName != "..")
            names.push_back(strName);
    }
    const std::error_code error = LastError();
    closedir(pFolder);
    return error;
}

std::error_code SystemFiles::TakeLock(const std::string& strPath, FileHandle& lock) {
    for (int n = 0; n < intMaxTries; ++n) {
        const int intFile = OpenLock(strPath);
        if (intFile < 0)
            return LastError();
        if (const auto error = LockOpenFile(intFile))
            return Drop(intFile, error);
        if (IsFileOfPath(intFile, strPath)) {
            lock = FileHandle{intFile};
            return {};
        }
        close(intFile);
    }
    return std::make_error_code(std::errc::resource_unavailable_try_again);
}

void SystemFiles::ReleaseLock(const std::string& strPath, FileHandle lock) {
    // In this order nobody can hold a lock whose file is removed: who locks this file afterwards
    // finds that the path no longer leads to it.
    unlink(ToPath(strPath));
    close(ToNumber(lock));
}

} // namespace cellora

#endif
