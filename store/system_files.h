#pragma once

#include "store/file_port.h"

namespace cellora {

/// The disks of this computer. The only place that knows the systems' calls for files:
/// system_files_posix.cpp and system_files_windows.cpp.
class SystemFiles : public FilePort {
public:
    std::error_code GetStatus(const std::string& strPath, PathStatus& status) override;
    std::error_code FollowLinks(const std::string& strPath, std::string& strTarget) override;
    std::error_code OpenForReading(const std::string& strPath, FileHandle& file,
                                   std::uint64_t& lngSize) override;
    std::error_code Create(const std::string& strPath, const std::string& strLike,
                           FileHandle& file) override;
    std::error_code Read(FileHandle file, std::span<char> buffer, std::size_t& lngRead) override;
    std::error_code Write(FileHandle file, std::string_view bytes,
                          std::size_t& lngWritten) override;
    std::error_code Flush(FileHandle file) override;
    std::error_code Close(FileHandle file) override;
    std::error_code Rename(const std::string& strPath, const std::string& strNewPath) override;
    std::error_code Remove(const std::string& strPath) override;
    std::error_code FlushFolder(const std::string& strPath) override;
    std::error_code MakeFolder(const std::string& strPath) override;
    std::error_code ListFolder(const std::string& strPath,
                               std::vector<std::string>& names) override;
    std::error_code TakeLock(const std::string& strPath, FileHandle& lock) override;
    void ReleaseLock(const std::string& strPath, FileHandle lock) override;
};

} // namespace cellora
