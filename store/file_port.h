#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace cellora {

enum class PathKind {
    Missing,
    File, ///< a regular file
    Folder,
    Other, ///< a device, a pipe and the like
};

struct PathStatus {
    PathKind kind = PathKind::Missing;
    std::uint64_t lngSize =
        0; ///< of a file, in bytes; the system may call a file without end empty
    std::int64_t lngAge =
        0; ///< seconds since its content changed; negative after a clock went back
};

/// An open file or a lock that is held.
enum class FileHandle : std::intptr_t { None = -1 };

/// Everything the program asks of a disk, in steps as fine as the system's own calls, so that a
/// double can let each of them fail. Paths are UTF-8. What goes wrong is an error of the generic
/// category; out values then hold nothing of use. No routine throws or keeps a state, and all of
/// them may be called from several threads.
class FilePort {
public:
    virtual ~FilePort() = default;

    /// Symbolic links are followed. A path that names nothing is an answer, `Missing`; an error
    /// means that the system cannot tell.
    virtual std::error_code GetStatus(const std::string& strPath, PathStatus& status) = 0;

    /// The path that a symbolic link leads to in the end, existing or not; any other path leads to
    /// itself.
    virtual std::error_code FollowLinks(const std::string& strPath, std::string& strTarget) = 0;

    /// Opens a regular file and nothing else, without ever waiting for a pipe or a device.
    virtual std::error_code OpenForReading(const std::string& strPath, FileHandle& file,
                                           std::uint64_t& lngSize) = 0;

    /// Creates a file that does not exist yet and opens it for writing. Its owner can read and
    /// write it; where a file `strLike` exists it takes over the permissions of that one, and fails
    /// when that one may not be written.
    virtual std::error_code Create(const std::string& strPath, const std::string& strLike,
                                   FileHandle& file) = 0;

    /// Fills the front of the buffer; 0 bytes mean the end of the file.
    virtual std::error_code Read(FileHandle file, std::span<char> buffer, std::size_t& lngRead) = 0;

    /// Writes the bytes from their front on, at least one of them.
    virtual std::error_code Write(FileHandle file, std::string_view bytes,
                                  std::size_t& lngWritten) = 0;

    /// Returns when the disk holds what was written.
    virtual std::error_code Flush(FileHandle file) = 0;

    /// The handle is gone in any case; an error means that what was written may be lost.
    virtual std::error_code Close(FileHandle file) = 0;

    /// Puts a file in the place of any other of the same disk.
    virtual std::error_code Rename(const std::string& strPath, const std::string& strNewPath) = 0;

    /// Removes a file or an empty folder.
    virtual std::error_code Remove(const std::string& strPath) = 0;

    /// Returns when the disk holds the folder's names. A system that cannot be asked for that has
    /// nothing to do.
    virtual std::error_code FlushFolder(const std::string& strPath) = 0;

    /// Makes a folder for the user alone; the one it lies in exists. A name that begins with a dot
    /// is hidden on every system.
    virtual std::error_code MakeFolder(const std::string& strPath) = 0;

    /// The names in a folder, in no order.
    virtual std::error_code ListFolder(const std::string& strPath,
                                       std::vector<std::string>& names) = 0;

    /// Locks the path, which is a file made for that, or fails at once: with
    /// `resource_unavailable_try_again` while somebody holds the lock, with `not_supported` on a
    /// disk that knows no locks. The system releases a lock when its holder dies; a file left
    /// behind then, by whatever version of the program, locks nothing.
    virtual std::error_code TakeLock(const std::string& strPath, FileHandle& lock) = 0;

    /// Removes the lock's file and releases the lock.
    virtual void ReleaseLock(const std::string& strPath, FileHandle lock) = 0;

protected:
    FilePort() = default;
    FilePort(const FilePort&) = default;
    FilePort& operator=(const FilePort&) = default;
};

} // namespace cellora
