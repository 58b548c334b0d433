#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "store/system_files.h"

namespace cellora {

/// The disks of this computer, whose calls are counted, with one fault among them. Nothing is
/// flushed in earnest; what was not flushed before a kill, or could not be, is lost.
class FaultyFiles final : public SystemFiles {
public:
    enum class Fault {
        Error,   ///< one call fails; of a write half is done
        CutRead, ///< one call of `Read` gives half of what there is, and the file seems to end
                 ///< there
        Full,    ///< from that call on the disk takes nothing more
        Kill,    ///< from that call on nothing reaches the disk: for it the program is dead
    };

    /// From now on; calls are counted from 1.
    void Break(Fault fault, int intCall, std::errc error) {
        intCalls_ = 0;
        intBroken_ = intCall;
        fault_ = fault;
        error_ = std::make_error_code(error);
    }

    int calls() const { return intCalls_; }

    std::function<void()> fnRenamed; ///< a file has been replaced

    std::error_code GetStatus(const std::string& strPath, PathStatus& status) override {
        return Fails() ? error_ : SystemFiles::GetStatus(strPath, status);
    }
    std::error_code FollowLinks(const std::string& strPath, std::string& strTarget) override {
        return Fails() ? error_ : SystemFiles::FollowLinks(strPath, strTarget);
    }
    std::error_code OpenForReading(const std::string& strPath, FileHandle& file,
                                   std::uint64_t& lngSize) override {
        return Fails() ? error_ : SystemFiles::OpenForReading(strPath, file, lngSize);
    }
    std::error_code Create(const std::string& strPath, const std::string& strLike,
                           FileHandle& file) override {
        if (Fails(true))
            return error_;
        const auto error = SystemFiles::Create(strPath, strLike, file);
        strNew_ = strPath;
        new_ = file;
        blnFlushed_ = false;
        return error;
    }
    std::error_code Read(FileHandle file, std::span<char> buffer, std::size_t& lngRead) override {
        if (Fails())
            return error_;
        lngRead = 0;
        if (file == cut_)
            return {};
        const auto error = SystemFiles::Read(file, buffer, lngRead);
        if (fault_ == Fault::CutRead && intCalls_ == intBroken_) {
            cut_ = file;
            lngRead /= 2;
        }
        return error;
    }
    std::error_code Write(FileHandle file, std::string_view bytes,
                          std::size_t& lngWritten) override {
        if (!Fails(true))
            return SystemFiles::Write(file, bytes, lngWritten);
        if (intCalls_ == intBroken_)
            SystemFiles::Write(file, bytes.substr(0, bytes.size() / 2), lngWritten);
        return error_;
    }
    std::error_code Flush(FileHandle) override {
        blnFlushed_ = !Fails();
        return blnFlushed_ ? std::error_code() : Lose();
    }
    std::error_code Close(FileHandle file) override {
        cut_ = file == cut_ ? FileHandle::None : cut_;
        const bool blnWritten = file == std::exchange(new_, FileHandle::None);
        const auto error = SystemFiles::Close(file);
        if (!Fails())
            return error;
        return blnWritten && fault_ == Fault::Error ? Lose() : error_;
    }
    std::error_code Rename(const std::string& strPath, const std::string& strNewPath) override {
        if (Fails())
            return error_;
        const auto error = SystemFiles::Rename(strPath, strNewPath);
        strNew_ = strPath == strNew_ ? strNewPath : strNew_;
        if (fnRenamed)
            fnRenamed();
        return error;
    }
    std::error_code Remove(const std::string& strPath) override {
        return Fails() ? error_ : SystemFiles::Remove(strPath);
    }
    std::error_code FlushFolder(const std::string&) override {
        return Fails() ? error_ : std::error_code();
    }
    std::error_code MakeFolder(const std::string& strPath) override {
        return Fails(true) ? error_ : SystemFiles::MakeFolder(strPath);
    }
    std::error_code ListFolder(const std::string& strPath,
                               std::vector<std::string>& names) override {
        return Fails() ? error_ : SystemFiles::ListFolder(strPath, names);
    }
    std::error_code TakeLock(const std::string& strPath, FileHandle& lock) override {
        return Fails(true) ? error_ : SystemFiles::TakeLock(strPath, lock);
    }
    /// The system lets go of a lock whose file stays, as it does when the holder dies.
    void ReleaseLock(const std::string& strPath, FileHandle lock) override {
        if (Fails())
            SystemFiles::Close(lock);
        else
            SystemFiles::ReleaseLock(strPath, lock);
    }

private:
    bool Fails(bool blnTakesRoom = false) {
        const bool blnNow = ++intCalls_ == intBroken_;
        if (blnNow && fault_ == Fault::Kill && !blnFlushed_)
            Lose();
        const bool blnLasts = fault_ == Fault::Kill || (fault_ == Fault::Full && blnTakesRoom);
        return fault_ == Fault::Error ? blnNow : blnLasts && intCalls_ >= intBroken_;
    }

    /// Half of the newest file never reaches the disk.
    std::error_code Lose() {
        std::error_code error;
        const auto lngSize = std::filesystem::file_size(strNew_, error);
        if (!error)
            std::filesystem::resize_file(strNew_, lngSize / 2, error);
        return error_;
    }

    std::atomic<int> intCalls_ = 0;
    int intBroken_ = 0;
    Fault fault_ = Fault::Error;
    std::error_code error_;
    FileHandle cut_ = FileHandle::None;
    FileHandle new_ = FileHandle::None;
    std::string strNew_; ///< the newest file, wherever it is
    bool blnFlushed_ = true;
};

} // namespace cellora
