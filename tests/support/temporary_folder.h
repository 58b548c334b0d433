#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

namespace cellora {

/// Where a test with thousands of files is quick: a disk in memory, if the system has one.
inline std::filesystem::path GetQuickDisk() {
    const std::filesystem::path disk = "/dev/shm";
    return std::filesystem::is_directory(disk) ? disk : std::filesystem::temp_directory_path();
}

/// A new empty folder for one test, removed with all it holds when the object goes.
class TemporaryFolder final {
public:
    explicit TemporaryFolder(
        const std::filesystem::path& disk = std::filesystem::temp_directory_path()) {
        std::random_device random;
        do {
            folder_ =
                disk / ("cellora-test-" + std::to_string(random()) + std::to_string(random()));
        } while (!std::filesystem::create_directory(folder_));
    }

    ~TemporaryFolder() {
        std::error_code error;
        std::filesystem::remove_all(folder_, error);
    }

    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string Path() const { return folder_.string(); }

    /// The path of a file or folder of that name inside; nothing is created.
    std::string Path(const std::string& strName) const { return (folder_ / strName).string(); }

    std::string MakeFolder(const std::string& strName) const {
        std::filesystem::create_directories(folder_ / strName);
        return Path(strName);
    }

    /// Makes the bytes the whole content of the file and returns its path.
    std::string WriteBytes(const std::string& strName, std::string_view bytes) const {
        std::ofstream file(folder_ / strName, std::ios::binary);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return Path(strName);
    }

    /// Empty for a file that cannot be read.
    std::string ReadBytes(const std::string& strName) const {
        std::ifstream file(folder_ / strName, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    /// How many files and folders lie directly inside.
    std::ptrdiff_t Count() const {
        return std::distance(std::filesystem::directory_iterator(folder_), {});
    }

private:
    std::filesystem::path folder_;
};

} // namespace cellora
