#include "tests/rules/player.h"

#ifndef _WIN32

#include <chrono>
#include <filesystem>
#include <future>
#include <memory>
#include <set>
#include <thread>

#include "store/modCommon_File.h"
#include "tests/support/child_process.h"

namespace cellora {
namespace {

TEST(HallOfFame, LosesNoEntryOfTwoCopiesWritingAtOnce) {
    Player player;
    const auto Insert = [&player](int intCopy) {
        for (int i = 0; i < 50; ++i) {
            player.game.lngMinutes = i % 5;
            player.game.statistics.lblLevel = "Level " + std::to_string(i / 5 + 1);
            if (SaveHallOfFameEntry(player.game, std::to_string(intCopy)))
                return false;
        }
        return true;
    };
    ChildProcess first([&](const auto&) { return Insert(1); });
    ChildProcess second([&](const auto&) { return Insert(2); });
    EXPECT_EQ(first.End(0), 0);
    EXPECT_EQ(second.End(0), 0);
    for (int intLevel = 1; intLevel <= 10; ++intLevel) {
        LevelEntries entries;
        ReadHallOfFame(player.game, intLevel, entries);
        for (int i = 1; i <= 10; ++i)
            EXPECT_EQ(entries[i].lngMinutes, (i - 1) / 2);
    }
    EXPECT_EQ(player.folder.Count(), 1);
}

/// A disk on which no list of best times can be replaced.
class FullFiles final : public SystemFiles {
public:
    std::error_code Rename(const std::string& strPath, const std::string& strNewPath) override {
        return strNewPath.ends_with("hof.clh") ? std::make_error_code(std::errc::no_space_on_device)
                                               : SystemFiles::Rename(strPath, strNewPath);
    }
};

TEST(HallOfFame, KeepsADamagedFileOnceThoughItCannotBeReplaced) {
    Player player;
    FullFiles files;
    Game game(player.desktop, files);
    game.strProgramFolder = player.folder.Path();
    player.folder.WriteBytes("hof.clh", "damaged");
    for (int n = 0; n < 3; ++n)
        EXPECT_TRUE(SaveHallOfFameEntry(game, "Anna"));
    EXPECT_EQ(player.folder.ReadBytes("hof.clh") + player.folder.ReadBytes("hof.clh.damaged"),
              "damageddamaged");
    EXPECT_EQ(player.folder.Count(), 2);
}

TEST(Recovery, KeepsTheGamesOfNineCopies) {
    Player player;
    player.Play("puzzle");
    std::vector<std::unique_ptr<Recovery>> copies;
    std::string strFiles;
    for (int n = 0; n < 10; ++n) {
        copies.push_back(std::make_unique<Recovery>(player.files, player.folder.Path()));
        copies.back()->tmrRecovery_Timer(player.game);
        EXPECT_TRUE(copies.back()->Wait());
        strFiles += std::filesystem::path(copies.back()->file()).stem().string() + ' ';
    }
    EXPECT_EQ(strFiles, "copy-1 copy-2 copy-3 copy-4 copy-5 copy-6 copy-7 copy-8 copy-9  ");
    copies.erase(copies.begin() + 2);
    player.desktop.answers = {Answer::Yes};
    Recovery next(player.files, player.folder.Path());
    next.OfferToRestore(player.game);
    EXPECT_EQ(next.file(), player.folder.Path(".recovery/copy-3")) << "which nobody uses";
    for (const auto& copy : copies)
        copy->End(player.game);
    next.End(player.game);
    EXPECT_EQ(player.folder.Count(), 0);
}

/// A disk on which nothing is flushed before it is let go.
class StuckFiles final : public SystemFiles {
public:
    std::error_code Flush(FileHandle file) override {
        free_.wait();
        return SystemFiles::Flush(file);
    }

    std::promise<void> disk;

private:
    std::shared_future<void> free_{disk.get_future()};
};

TEST(Recovery, LetsThePlayerGoOnWhileTheDiskHangs) {
    Player player;
    player.Play("puzzle");
    StuckFiles files;
    Recovery recovery(files, player.folder.Path());
    for (const char* const strMove : {"put 1 1", "put 2 1", "put 3 1"}) {
        player.Play(strMove);
        recovery.tmrRecovery_Timer(player.game);
    }
    files.disk.set_value();
    EXPECT_TRUE(recovery.Wait());
    const auto copy = ParseRecoveryCopy(player.folder.ReadBytes(".recovery/copy-1"));
    ASSERT_TRUE(copy);
    EXPECT_EQ(copy->savedGame, TakeGame(player.game)) << "the newest state wins";
    recovery.End(player.game);
    EXPECT_EQ(player.folder.Count(), 0);
}

TEST(Recovery, WaitsOnceForADiskThatHangs) {
    Player player;
    player.Play("puzzle");
    StuckFiles files;
    Recovery recovery(files, player.folder.Path());
    recovery.tmrRecovery_Timer(player.game);
    player.game.blnGameChanged = player.game.blnSaveOwed = true;
    const auto start = std::chrono::steady_clock::now();
    recovery.Observe(player.game);
    recovery.End(player.game);
    EXPECT_FALSE(recovery.Wait());
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(3500));
    files.disk.set_value();
    while (!recovery.Wait())
        std::this_thread::yield();
}

/// A disk that refuses to remove a file, but not twice.
class StubbornFiles final : public SystemFiles {
public:
    std::error_code Remove(const std::string& strPath) override {
        return removed_.insert(strPath).second ? std::make_error_code(std::errc::io_error)
                                               : SystemFiles::Remove(strPath);
    }

private:
    std::set<std::string> removed_;
};

/// A disk that has become read-only.
class UnlockableFiles final : public SystemFiles {
public:
    std::error_code TakeLock(const std::string&, FileHandle&) override {
        return std::make_error_code(std::errc::read_only_file_system);
    }
};

TEST(Recovery, TellsOfACopyThatItCannotLock) {
    Player player;
    player.Play("puzzle");
    for (const char* const strCommand : {"recovery", "keep", "crash"})
        player.Play(strCommand);
    UnlockableFiles files;
    Recovery(files, player.folder.Path()).OfferToRestore(player.game);
    ASSERT_EQ(player.desktop.boxes.size(), 1);
    EXPECT_TRUE(player.desktop.boxes[0].strText.ends_with("The next start tries again."));
    EXPECT_FALSE(player.folder.ReadBytes(".recovery/copy-1").empty());
}

TEST(Recovery, TriesAtTheEndToRemoveWhatStayed) {
    Player player;
    player.Play("puzzle");
    StubbornFiles files;
    Recovery recovery(files, player.folder.Path());
    recovery.tmrRecovery_Timer(player.game);
    EXPECT_TRUE(recovery.Wait());
    player.game.phase = Phase::Finished;
    recovery.Observe(player.game);
    EXPECT_TRUE(recovery.Wait());
    recovery.End(player.game);
    EXPECT_FALSE(FileExists(player.files, player.folder.Path(".recovery/copy-1")));
}

} // namespace
} // namespace cellora

#endif
