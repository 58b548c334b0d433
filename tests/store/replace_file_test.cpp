#include "store/replace_file.h"

#include "tests/support/faults.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <thread>

namespace cellora {
namespace {

TEST(ReplaceFile, LeavesExactlyTheBytesAndNothingBeside) {
    const TemporaryFolder folder;
    const std::string bytes("a\r\nb\n\0\xFF", 7);
    const std::string strPath = folder.Path("\xC3\xA4 b.clp");
    EXPECT_EQ(ReplaceFile(strPath, "the longer text that was there before"), std::nullopt);
    EXPECT_EQ(ReplaceFile(strPath, bytes), std::nullopt);
    EXPECT_EQ(ReadWholeFile(strPath, bytes.size()), bytes);
    EXPECT_EQ(ReplaceFile(strPath, ""), std::nullopt);
    EXPECT_EQ(ReadWholeFile(strPath, 0), "");
    EXPECT_EQ(folder.Count(), 1);
}

TEST(ReplaceFile, FailsWithOneSentenceThatNamesTheFile) {
    const TemporaryFolder folder;
    const std::string strFile = folder.WriteBytes("plain", "x");
    folder.MakeFolder("folder");
    for (const std::string& strPath :
         {strFile + "/below", folder.Path("missing/file"), folder.Path("folder"), std::string()}) {
        const auto strReason = ReplaceFile(strPath, "new");
        ASSERT_TRUE(strReason.has_value()) << strPath;
        EXPECT_TRUE(strReason->starts_with("\"" + strPath + "\" could not be written: "));
        EXPECT_FALSE(strReason->ends_with(": .")) << *strReason;
        EXPECT_TRUE(strReason->ends_with(".")) << *strReason;
    }
    EXPECT_EQ(folder.ReadBytes("plain"), "x");
    EXPECT_EQ(folder.Count(), 2);
}

#ifndef _WIN32

TEST(ReplaceFile, KeepsALinkAndTheModeOfTheFileBehindIt) {
    const TemporaryFolder folder;
    const std::string strTarget = folder.WriteBytes("target", "old");
    std::filesystem::permissions(strTarget, std::filesystem::perms::owner_read |
                                                std::filesystem::perms::owner_write);
    std::filesystem::create_symlink("target", folder.Path("link"));
    EXPECT_EQ(ReplaceFile(folder.Path("link"), "new"), std::nullopt);
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("link")));
    EXPECT_EQ(folder.ReadBytes("target"), "new");
    EXPECT_EQ(std::filesystem::status(strTarget).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST(ReplaceFile, AWriteThatBreaksOffLeavesTheOldFileWhole) {
    const TemporaryFolder folder;
    const std::string strPath = folder.WriteBytes("file", "old");
    for (const std::size_t lngSize : {2, 5000, 100000}) {
        const std::string bytes(lngSize, 'n');
        for (const std::size_t lngLimit : {std::size_t{0}, std::size_t{1}, lngSize - 1}) {
            std::optional<std::string> strReason;
            {
                const FileSizeLimit limit(lngLimit);
                strReason = ReplaceFile(strPath, bytes);
            }
            EXPECT_EQ(strReason, "\"" + strPath + "\" could not be written: File too large.");
            EXPECT_EQ(folder.ReadBytes("file"), "old") << lngSize << " " << lngLimit;
            EXPECT_EQ(folder.Count(), 1);
        }
    }
}

#endif

TEST(ReadWholeFile, RefusesWhatIsNoReadableFileOfThatSize) {
    const TemporaryFolder folder;
    const std::string strFile = folder.WriteBytes("five", "12345");
    EXPECT_EQ(ReadWholeFile(strFile, 5), "12345");
    EXPECT_EQ(ReadWholeFile(strFile, 4), std::nullopt);
    EXPECT_EQ(ReadWholeFile(folder.Path("missing"), 5), std::nullopt);
    EXPECT_EQ(ReadWholeFile(folder.Path(), 1000000), std::nullopt);
    EXPECT_EQ(ReadWholeFile("", 5), std::nullopt);
}

TEST(FileLock, IsHeldByOneAtATime) {
    const TemporaryFolder folder;
    const std::string strPath = folder.Path("hof.clh");
    {
        FileLock first(strPath);
        FileLock second(strPath);
        EXPECT_TRUE(first.TryLock(0));
        EXPECT_FALSE(second.TryLock(30));
        FileLock other(folder.Path("other"));
        EXPECT_TRUE(other.TryLock(0));
    }
    FileLock third(strPath);
    EXPECT_TRUE(third.TryLock(0));
}

TEST(FileLock, WaitsForTheHolder) {
    const TemporaryFolder folder;
    FileLock waiting(folder.Path("file"));
    auto holder = std::make_unique<FileLock>(folder.Path("file"));
    ASSERT_TRUE(holder->TryLock(0));
    std::thread release([&holder] {
        std::this_thread::sleep_for(std::chrono::milliseconds(60));
        holder.reset();
    });
    EXPECT_TRUE(waiting.TryLock(10000));
    release.join();
}

TEST(FileLock, GivesUpAtOnceWhereNoLockCanBeMade) {
    const TemporaryFolder folder;
    FileLock lock(folder.Path("missing/file"));
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(lock.TryLock(60000));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

TEST(FileLock, TakesOverTheLockOfACopyThatIsGone) {
    const TemporaryFolder folder;
    // No process has this number; the computer's name is left open.
    folder.WriteBytes("file.lock", "2147483646\ncellora\n\n");
    FileLock lock(folder.Path("file"));
    EXPECT_TRUE(lock.TryLock(1000));
}

TEST(FileLock, TakesOverALockThatWasNeverFilledIn) {
    const TemporaryFolder folder;
    const std::string strLock = folder.WriteBytes("file.lock", "");
    FileLock lock(folder.Path("file"));
    EXPECT_FALSE(lock.TryLock(0)) << "its holder may be about to write its name";
    std::filesystem::last_write_time(strLock, std::filesystem::file_time_type::clock::now() -
                                                  std::chrono::seconds(10));
    EXPECT_TRUE(lock.TryLock(0));
    EXPECT_FALSE(FileLock(folder.Path("file")).TryLock(0));
}

} // namespace
} // namespace cellora
