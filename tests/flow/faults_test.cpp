#ifndef _WIN32

#include <algorithm>
#include <array>
#include <chrono>
#include <functional>
#include <iterator>
#include <limits>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "flow/game_file.h"
#include "flow/recovery.h"
#include "flow/start_up.h"
#include "played_game.h"
#include "store/modCommon_File.h"
#include "store/program_folder.h"
#include "store/replace_file.h"
#include "store/settings.h"
#include "tests/support/faults.h"

namespace cellora {
namespace {

enum class File { SavedGame, Settings, HallOfFame, Recovery };

constexpr File aFiles[] = {File::SavedGame, File::Settings, File::HallOfFame, File::Recovery};
constexpr int intFileCount = static_cast<int>(std::size(aFiles));
constexpr int intKills = 200;
constexpr int intLongestLife = 6000; ///< of a program once it writes, in microseconds

/// The number of the state that each file is in.
using States = std::array<int, intFileCount>;

std::string GetName(File file) {
    constexpr const char* aNames[] = {"game.clp", "cl.ini", "hof.clh", "recovery.clp"};
    return aNames[static_cast<std::size_t>(file)];
}

/// A program whose files hold numbered states. The whole content of a file follows from its name
/// and the number of its state.
class NumberedFiles final {
public:
    NumberedFiles() {
        played_.Start(1);
        played_.SetTime(0, 1, 0);
        played_.game.strGameFile = GetPath(File::SavedGame);
        for (const File file : aFiles)
            played_.folder.WriteBytes(GetName(file), Format(file, 0));
    }

    std::string GetPath(File file) const { return played_.folder.Path(GetName(file)); }
    std::string Read(File file) const { return played_.folder.ReadBytes(GetName(file)); }

    std::string Format(File file, int intState) {
        switch (file) {
        case File::Settings:
            return FormatSettings(intState);
        case File::HallOfFame:
            return FormatHallOfFame(intState);
        case File::SavedGame:
        case File::Recovery:
            break;
        }
        Play(intState);
        return FormatSavedGame(TakeGame(played_.game));
    }

    /// Has the program write the state that follows the present one. Returns what the player is
    /// told, and for a saved game whether it still counts as changed; empty when all went well.
    std::string Write(File file, int intState) {
        Game& game = played_.game;
        switch (file) {
        case File::SavedGame:
            return Save(intState);
        case File::Settings:
            WriteColor(ColorKey::GridX, intState, GetSettingsFile(game));
            return {};
        case File::HallOfFame:
            return SaveHallOfFameEntry(game, "Player " + std::to_string(intState)).value_or("");
        case File::Recovery:
            Play(intState);
            recovery_->tmrRecovery_Timer(game);
            return {};
        }
        return {};
    }

    /// True when the program goes on with the game that was left behind.
    bool StartRecovery() {
        recovery_.emplace(played_.folder.Path());
        return recovery_->file() == GetPath(File::Recovery);
    }

    const PlayedGame& played() const { return played_; }

private:
    static std::string FormatSettings(int intState) {
        return "; colours\r\n[color]\r\ngridx=" + std::to_string(intState) +
               "\r\nfontuser=255\r\n[general]\r\npath=/home/player/games\r\n";
    }

    /// The last ten states are on the first level's list, the newest on top.
    static std::string FormatHallOfFame(int intState) {
        RecordedEntries recorded;
        for (int i = intState; i >= 0 && i > intState - 10; --i)
            recorded[1].push_back({"Player " + std::to_string(i), 0, 1, 0});
        return WriteHallOfFame(recorded);
    }

    /// Every entry differs from that of the state before, and the lengths differ too.
    void Play(int intState) {
        int intDigit = intState;
        for (Cell& cell : played_.game.cells) {
            if (cell.blnGiven)
                continue;
            cell.strEntry = std::to_string(++intDigit % 10);
            if (cell.strEntry == "0")
                cell.strEntry.clear();
            cell.strNotes = std::to_string(intState);
        }
    }

    std::string Save(int intState) {
        Play(intState);
        played_.game.blnGameChanged = true;
        played_.desktop.files = {std::nullopt};
        played_.desktop.boxes.clear();
        SaveGame(played_.game);
        std::string strTold = played_.game.blnGameChanged ? "not saved" : "";
        for (const MessageBox& box : played_.desktop.boxes)
            strTold += ", " + box.strTitle + ": " + box.strText;
        return strTold;
    }

    PlayedGame played_;
    std::optional<Recovery> recovery_;
};

/// What the player may be told when the file cannot be written.
std::set<std::string> GetComplaints(const NumberedFiles& files, File file) {
    const std::string strReason =
        '"' + files.GetPath(file) + "\" could not be written: File too large.";
    switch (file) {
    case File::SavedGame:
        return {"not saved, Can't Save File: " + strReason +
                "\r\n\r\nTo continue, please choose another place for the file."};
    case File::HallOfFame:
        return {strReason,
                "The folder of the file \"hof.clh\" cannot be written, or its disk is full."};
    case File::Settings:
    case File::Recovery:
        break;
    }
    return {""};
}

class WriteFault : public testing::TestWithParam<File> {};

TEST_P(WriteFault, LeavesTheOldFileWholeWhereverItBreaksOff) {
    const File file = GetParam();
    NumberedFiles files;
    ASSERT_TRUE(files.StartRecovery());
    const std::string strOld = files.Format(file, 0);
    const std::string strNew = files.Format(file, 1);
    const std::set<std::string> complaints = GetComplaints(files, file);
    const auto lngCount = files.played().folder.Count();
    for (std::size_t lngLimit = 0; lngLimit < strNew.size(); ++lngLimit) {
        std::string strTold;
        {
            const FileSizeLimit limit(lngLimit);
            strTold = files.Write(file, 1);
        }
        ASSERT_EQ(FindDifference(files.Read(file), strOld), "") << lngLimit;
        ASSERT_TRUE(complaints.contains(strTold)) << lngLimit << ": " << strTold;
        ASSERT_EQ(files.played().folder.Count(), lngCount) << lngLimit;
        // The hall of fame syncs its lock each time, so beyond the lock's size it takes strides.
        if (file == File::HallOfFame && lngLimit > 100 && lngLimit + 100 < strNew.size())
            lngLimit += 28;
    }
    {
        const FileSizeLimit limit(strNew.size());
        EXPECT_EQ(files.Write(file, 1), "");
    }
    EXPECT_EQ(FindDifference(files.Read(file), strNew), "");
    EXPECT_EQ(files.Write(file, 2), "");
    EXPECT_EQ(FindDifference(files.Read(file), files.Format(file, 2)), "");
}

INSTANTIATE_TEST_SUITE_P(, WriteFault, testing::ValuesIn(aFiles),
                         [](const testing::TestParamInfo<File>& param) {
                             const std::string strName = GetName(param.param);
                             return strName.substr(0, strName.find('.'));
                         });

TEST(FullDisk, LeavesNoPartOfANewFileAndNoLock) {
    const std::string strContent = FormatEmptyHallOfFame();
    const ShippedFile aShipped[] = {{"hof.clh", strContent}};
    const TemporaryFolder folder;
    for (std::size_t lngLimit = 0; lngLimit < strContent.size(); lngLimit += 53) {
        std::string strKept;
        {
            const FileSizeLimit limit(lngLimit);
            PlaceShippedFiles(folder.Path(), aShipped);
            strKept = Recovery(folder.Path()).file();
        }
        ASSERT_EQ(folder.Count(), 0) << lngLimit;
        ASSERT_TRUE(lngLimit > 0 || strKept.empty()) << "there was no room for the lock";
    }
    PlaceShippedFiles(folder.Path(), aShipped);
    EXPECT_EQ(folder.ReadBytes("hof.clh"), strContent);
    EXPECT_EQ(Recovery(folder.Path()).file(), folder.Path("recovery.clp"));
}

TEST(FullDisk, ADamagedHallOfFameIsNotReplacedBeforeItIsKept) {
    PlayedGame played;
    played.Start(1);
    const std::string strDamaged = played.ReadFile().substr(5);
    played.WriteFile(strDamaged);
    for (std::size_t lngLimit = 0; lngLimit < strDamaged.size(); lngLimit += 211) {
        std::optional<std::string> strReason;
        {
            const FileSizeLimit limit(lngLimit);
            strReason = SaveHallOfFameEntry(played.game, "Player");
        }
        EXPECT_NE(strReason, std::nullopt);
        ASSERT_EQ(FindDifference(played.ReadFile(), strDamaged), "") << lngLimit;
        ASSERT_EQ(played.folder.Count(), 1) << lngLimit;
    }
    EXPECT_EQ(SaveHallOfFameEntry(played.game, "Player"), std::nullopt);
    EXPECT_EQ(played.folder.ReadBytes("hof.clh.damaged"), strDamaged);
}

/// Brings one file after the other into its next state and tells each time, until it is killed or
/// something fails.
bool WriteForEver(NumberedFiles& files, States states, const std::function<void()>& fnTell) {
    if (!files.StartRecovery())
        return false;
    for (;;) {
        for (const File file : aFiles) {
            if (!files.Write(file, ++states[static_cast<std::size_t>(file)]).empty())
                return false;
            fnTell();
        }
    }
}

/// Runs the program until all its files were written once, and some time longer. Returns how many
/// writes it had completed when it was killed; nothing when it failed before.
std::optional<int> RunUntilKilled(NumberedFiles& files, const States& states,
                                  std::chrono::microseconds life) {
    ChildProcess child([&](const auto& fnTell) { return WriteForEver(files, states, fnTell); });
    const int intFirst = child.CountSteps(intFileCount);
    std::this_thread::sleep_for(life);
    if (!child.Kill())
        return std::nullopt;
    return intFirst + child.CountSteps(std::numeric_limits<int>::max());
}

/// Finds each file in the state of its last completed write, or in that of the one write that the
/// kill may have come upon.
testing::AssertionResult FollowWrites(NumberedFiles& files, int intWrites, States& states) {
    for (const File file : aFiles) {
        const int intFile = static_cast<int>(file);
        int& intState = states[static_cast<std::size_t>(file)];
        intState += (intWrites + intFileCount - 1 - intFile) / intFileCount;
        const std::string strContent = files.Read(file);
        if (strContent == files.Format(file, intState))
            continue;
        if (intWrites % intFileCount != intFile || strContent != files.Format(file, ++intState))
            return testing::AssertionFailure()
                   << GetName(file) << " is in no state it was given; state " << intState
                   << " differs in " << FindDifference(strContent, files.Format(file, intState));
    }
    return testing::AssertionSuccess();
}

/// The files besides those that belong there, among them the locks of the killed programs.
int CountLeftovers(const NumberedFiles& files) {
    const auto lngLocks = std::ranges::count_if(
        aFiles, [&](File file) { return FileExists(files.GetPath(file) + ".lock"); });
    return static_cast<int>(files.played().folder.Count() - lngLocks) - intFileCount;
}

TEST(KilledProgram, LeavesEveryFileOldOrNewAndTheNextOneGoesOn) {
    NumberedFiles files;
    States states{};
    std::mt19937 random(20'260'401);
    std::uniform_int_distribution<> life(20, intLongestLife);
    for (int intKill = 1; intKill <= intKills; ++intKill) {
        const auto intWrites =
            RunUntilKilled(files, states, std::chrono::microseconds(life(random)));
        ASSERT_TRUE(intWrites.has_value()) << "kill " << intKill;
        ASSERT_TRUE(FollowWrites(files, *intWrites, states)) << "kill " << intKill;
    }
    EXPECT_LE(CountLeftovers(files), intKills) << "no more than one file each";
    ASSERT_TRUE(files.StartRecovery());
    for (const File file : aFiles) {
        const int intNext = states[static_cast<std::size_t>(file)] + 1;
        EXPECT_EQ(files.Write(file, intNext), "");
        EXPECT_EQ(FindDifference(files.Read(file), files.Format(file, intNext)), "");
    }
}

} // namespace
} // namespace cellora

#endif
