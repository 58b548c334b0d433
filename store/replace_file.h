#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "store/file_port.h"

/// Whole files, read and replaced. Paths are UTF-8.
namespace cellora {

enum class ReadOutcome {
    Missing, ///< the path names nothing
    Failed,  ///< something is there, or may be, and could not be read whole
    Read,
};

struct ReadResult {
    ReadOutcome outcome = ReadOutcome::Missing;
    std::string bytes;     ///< the whole content of a file that was read, else empty
    std::string strReason; ///< of a failure: one sentence for the player

    explicit operator bool() const { return outcome == ReadOutcome::Read; }
};

/// The whole content of a regular file. What is no regular file, holds more than `lngMaxBytes`
/// bytes or gives fewer than it has cannot be read.
ReadResult ReadWholeFile(FilePort& files, const std::string& strPath, std::size_t lngMaxBytes);

/// Makes `bytes` the whole content of the file, which is created when missing; its folder must
/// exist. The bytes go to a new file in the same folder, are flushed to disk and then renamed over
/// the old one, so a crash or a full disk at any moment leaves the old file or the new one. A
/// symbolic link is kept and the file it leads to replaced; nothing but a regular file is.
/// Returns nothing when done, otherwise one sentence for the player that gives the reason; the file
/// is then as it was before. A folder that cannot be flushed is no failure: the file is in its
/// place.
std::optional<std::string> ReplaceFile(FilePort& files, const std::string& strPath,
                                       std::string_view bytes);

struct PlaceAside {
    std::string strPath;
    bool blnKept = false; ///< it holds the bytes already
};

/// Where the bytes of a damaged file are kept beside it: "FILE.damaged", or "FILE.damaged-2" to
/// "-99" behind those that hold something else or cannot be read. Nothing when there is none.
std::optional<PlaceAside> FindPlaceAside(FilePort& files, const std::string& strFile,
                                         std::string_view bytes);

/// A new name, hidden on POSIX, for a file that is about to take another one's place.
std::string MakeTemporaryName();

/// True for such a name.
bool IsTemporaryName(std::string_view strName);

enum class LockOutcome {
    Locked,
    HeldElsewhere,
    NotSupported, ///< the disk knows no locks
    Failed,       ///< no lock can be made there
};

/// A lock on a file that every running copy of the program respects, for reading a file and
/// replacing it without losing what another copy writes meanwhile. It is the file `strPath` +
/// ".lock", which is there while the lock is held; the lock of a copy that was killed is free.
class FileLock final {
public:
    FileLock(FilePort& files, const std::string& strPath);
    /// Releases the lock when it is held.
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    /// Waits for another holder up to `msTimeout` milliseconds, 0 for a single try.
    LockOutcome TryLock(int msTimeout);

private:
    FilePort& files_;
    std::string strLock_;
    FileHandle lock_ = FileHandle::None;
};

} // namespace cellora
