#include "store/replace_file.h"

#include <algorithm>
#include <chrono>
#include <random>
#include <thread>
#include <utility>

#include "store/modCommon_File.h"

namespace cellora {

namespace {

constexpr std::size_t lngMinChunk = std::size_t{4} << 10U;
constexpr std::size_t lngMaxChunk = std::size_t{64} << 10U;
constexpr int intMaxNames = 20;
constexpr int intMaxDamaged = 99;
constexpr std::string_view strTemporaryStart = ".cellora-";
constexpr std::string_view strTemporaryEnd = ".tmp";
constexpr std::string_view strDigits = "0123456789abcdef";
constexpr std::size_t lngTemporaryDigits = 12;
constexpr const char* strNoFile = "It is no regular file";

std::string FormatReason(const std::string& strPath, const char* strWhat,
                         const std::string& strProblem) {
    return "\"" + strPath + "\" could not be " + strWhat + ": " + strProblem + ".";
}

/// Reads to the end, which no count of the system's is trusted for: files without end are said to
/// be empty, and a disk may give less than it has.
std::error_code ReadToEnd(FilePort& files, FileHandle file, std::uint64_t lngSize,
                          std::size_t lngMaxBytes, std::string& bytes) {
    std::size_t lngDone = 0;
    while (lngSize <= lngMaxBytes && lngDone <= lngMaxBytes) {
        std::size_t lngRead = 0;
        const std::size_t lngLeft = lngSize > lngDone ? lngSize - lngDone : 0;
        bytes.resize(lngDone + std::clamp(lngLeft, lngMinChunk, lngMaxChunk));
        if (const auto error = files.Read(file, std::span(bytes).subspan(lngDone), lngRead))
            return error;
        lngDone += lngRead;
        if (lngRead > 0)
            continue;
        bytes.resize(lngDone);
        return lngDone < lngSize ? std::make_error_code(std::errc::io_error) : std::error_code();
    }
    return std::make_error_code(std::errc::file_too_large);
}

std::error_code ReadRegularFile(FilePort& files, const std::string& strPath,
                                std::size_t lngMaxBytes, std::string& bytes) {
    FileHandle file = FileHandle::None;
    std::uint64_t lngSize = 0;
    if (const auto error = files.OpenForReading(strPath, file, lngSize))
        return error;
    const auto error = ReadToEnd(files, file, lngSize, lngMaxBytes, bytes);
    files.Close(file);
    return error;
}

std::error_code WriteAll(FilePort& files, FileHandle file, std::string_view bytes) {
    while (!bytes.empty()) {
        std::size_t lngWritten = 0;
        if (const auto error = files.Write(file, bytes, lngWritten))
            return error;
        if (lngWritten == 0)
            return std::make_error_code(std::errc::io_error);
        bytes.remove_prefix(lngWritten);
    }
    return files.Flush(file);
}

/// Creates the file that is to take the other's place, in the same folder.
std::error_code CreateBeside(FilePort& files, const std::string& strFile, std::string& strTemporary,
                             FileHandle& file) {
    auto error = std::make_error_code(std::errc::file_exists);
    for (int n = 0; n < intMaxNames && error == std::errc::file_exists; ++n) {
        strTemporary = GetFolderFromPath(strFile) + MakeTemporaryName();
        error = files.Create(strTemporary, strFile, file);
    }
    return error;
}

std::error_code ReplaceRegularFile(FilePort& files, const std::string& strFile,
                                   std::string_view bytes) {
    std::string strTemporary;
    FileHandle file = FileHandle::None;
    if (const auto error = CreateBeside(files, strFile, strTemporary, file))
        return error;
    auto error = WriteAll(files, file, bytes);
    const auto closeError = files.Close(file);
    error = error ? error : closeError;
    if (!error)
        error = files.Rename(strTemporary, strFile);
    // The file is the new one from here on; a caller told otherwise would do its work twice.
    if (!error)
        files.FlushFolder(GetFolderFromPath(strFile));
    else
        files.Remove(strTemporary);
    return error;
}

} // namespace

ReadResult ReadWholeFile(FilePort& files, const std::string& strPath, std::size_t lngMaxBytes) {
    ReadResult result{ReadOutcome::Failed, {}, {}};
    PathStatus status;
    auto error = files.GetStatus(strPath, status);
    if (!error && status.kind == PathKind::Missing)
        return {};
    if (!error && status.kind != PathKind::File) {
        result.strReason = FormatReason(strPath, "read", strNoFile);
        return result;
    }
    if (!error)
        error = ReadRegularFile(files, strPath, lngMaxBytes, result.bytes);
    if (!error) {
        result.outcome = ReadOutcome::Read;
    } else {
        result.bytes.clear();
        result.strReason = FormatReason(strPath, "read", error.message());
    }
    return result;
}

std::optional<std::string> ReplaceFile(FilePort& files, const std::string& strPath,
                                       std::string_view bytes) {
    std::string strTarget;
    PathStatus status;
    auto error = files.FollowLinks(strPath, strTarget);
    if (!error)
        error = files.GetStatus(strTarget, status);
    if (!error && status.kind != PathKind::File && status.kind != PathKind::Missing)
        return FormatReason(strPath, "written", strNoFile);
    if (!error)
        error = ReplaceRegularFile(files, strTarget, bytes);
    return error ? std::optional(FormatReason(strPath, "written", error.message())) : std::nullopt;
}

std::optional<PlaceAside> FindPlaceAside(FilePort& files, const std::string& strFile,
                                         std::string_view bytes) {
    for (int intCopy = 1; intCopy <= intMaxDamaged; ++intCopy) {
        std::string strPath = strFile + ".damaged";
        if (intCopy > 1)
            strPath.append("-").append(std::to_string(intCopy));
        const ReadResult kept = ReadWholeFile(files, strPath, bytes.size());
        if (kept.outcome == ReadOutcome::Missing || (kept && kept.bytes == bytes))
            return PlaceAside{std::move(strPath), static_cast<bool>(kept)};
    }
    return std::nullopt;
}

std::string MakeTemporaryName() {
    std::string strName(strTemporaryStart);
    std::random_device random;
    for (std::size_t n = 0; n < lngTemporaryDigits; ++n)
        strName += strDigits[random() % strDigits.size()];
    return strName.append(strTemporaryEnd);
}

bool IsTemporaryName(std::string_view strName) {
    if (!strName.starts_with(strTemporaryStart) || !strName.ends_with(strTemporaryEnd))
        return false;
    strName.remove_prefix(strTemporaryStart.size());
    return strName.size() == lngTemporaryDigits + strTemporaryEnd.size() &&
           strName.find_first_not_of(strDigits) == lngTemporaryDigits;
}

FileLock::FileLock(FilePort& files, const std::string& strPath)
    : files_(files), strLock_(strPath + ".lock") {}

FileLock::~FileLock() {
    if (lock_ != FileHandle::None)
        files_.ReleaseLock(strLock_, lock_);
}

LockOutcome FileLock::TryLock(int msTimeout) {
    using Clock = std::chrono::steady_clock;
    const Clock::time_point deadline = Clock::now() + std::chrono::milliseconds(msTimeout);
    while (true) {
        const auto error = files_.TakeLock(strLock_, lock_);
        if (!error)
            return LockOutcome::Locked;
        lock_ = FileHandle::None;
        if (error != std::errc::resource_unavailable_try_again)
            return error == std::errc::not_supported ? LockOutcome::NotSupported
                                                     : LockOutcome::Failed;
        if (Clock::now() >= deadline)
            return LockOutcome::HeldElsewhere;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

} // namespace cellora
