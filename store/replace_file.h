#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// Whole files, read and replaced. Paths are UTF-8.
namespace cellora {

/// Makes `bytes` the whole content of the file, which is created when missing; its folder must
/// exist. The bytes go to a new file in the same folder, are flushed to disk and then renamed over
/// the old one, so a crash or a full disk at any moment leaves the old file or the new one. A
/// symbolic link is kept and the file it leads to replaced.
/// Returns nothing when done, otherwise one sentence for the player that gives the reason; the file
/// is then as it was before.
std::optional<std::string> ReplaceFile(const std::string& strPath, std::string_view bytes);

/// The whole content of a regular file. Nothing when the file is missing, cannot be read, is no
/// regular file or holds more than `lngMaxBytes` bytes.
std::optional<std::string> ReadWholeFile(const std::string& strPath, std::size_t lngMaxBytes);

/// A lock on a file that every running copy of the program respects, for reading a file and
/// replacing it without losing what another copy writes meanwhile. It is the file `strPath` +
/// ".lock" and is taken over when the copy that made it no longer runs; a second after its making
/// when that copy was killed before it could put its name in.
class FileLock final {
public:
    explicit FileLock(const std::string& strPath);
    /// Releases the lock when it is held.
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    /// Waits up to `msTimeout` milliseconds, 0 for a single try. False when another holder kept the
    /// lock all that time, and at once when no lock can be made there.
    bool TryLock(int msTimeout);

    /// Why the last try failed: another holder has the lock, or else none can be made there.
    bool IsHeldElsewhere() const;

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace cellora
