#include "flow/hall_of_fame.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "played_game.h"
#include "store/replace_file.h"

namespace cellora {
namespace {

constexpr int intLinesOfFile = 1230;

std::vector<std::string> SplitLines(const std::string& strBytes) {
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < strBytes.size();) {
        const std::size_t intEnd = strBytes.find("\r\n", i) + 2;
        lines.push_back(strBytes.substr(i, intEnd - i));
        i = intEnd;
    }
    return lines;
}

std::string JoinLines(const std::vector<std::string>& lines, std::size_t intCount) {
    std::string strBytes;
    for (std::size_t i = 0; i < intCount; ++i)
        strBytes += lines[i];
    return strBytes;
}

/// A file in which every entry differs from every other.
std::string WriteFullFile() {
    RecordedEntries recorded;
    for (int intLevel = 1; intLevel <= 30; ++intLevel) {
        for (int i = 1; i <= 10; ++i)
            recorded[intLevel].push_back({"N" + std::to_string(intLevel) + "." + std::to_string(i),
                                          i, intLevel % 60, 10 + i});
    }
    return WriteHallOfFame(recorded);
}

std::string Describe(const LevelEntries& entries) {
    std::string strText;
    for (const HallOfFameEntry& entry : entries)
        strText += entry.strName + ',' + std::to_string(entry.lngHours) + ',' +
                   std::to_string(entry.lngMinutes) + ',' + std::to_string(entry.lngSeconds) + ' ';
    return strText;
}

LevelEntries ReadLevel(const PlayedGame& played, int intLevel) {
    LevelEntries entries;
    entries.fill({"before", -1, -2, -3});
    ReadHallOfFame(played.game, intLevel, entries);
    return entries;
}

void BeAtLevel(PlayedGame& played, int intLevel, int lngMinutes, int lngSeconds) {
    played.game.lblLevel = GetLevelName(intLevel);
    played.SetTime(0, lngMinutes, lngSeconds);
}

TEST(HallOfFame, ShipsTheFileThatAResetWrites) {
    PlayedGame played({{30, MakeFullList()}});
    EXPECT_EQ(ResetHallOfFame(played.game), std::nullopt);
    const std::string strEmpty = WriteHallOfFame({});
    EXPECT_EQ(FindDifference(played.ReadFile(), strEmpty), "");
    EXPECT_EQ(SplitLines(strEmpty).size(), static_cast<std::size_t>(intLinesOfFile));
    EXPECT_EQ(FindDifference(FormatEmptyHallOfFame(), strEmpty), "");
    std::ifstream file(std::filesystem::path(CELLORA_ASSETS) / "hof.clh", std::ios::binary);
    EXPECT_EQ(FindDifference({std::istreambuf_iterator<char>(file), {}}, strEmpty), "");
    EXPECT_FALSE(std::filesystem::exists(played.folder.Path("hof.clh.damaged")));
}

TEST(GetRank, GivesTheFirstPlaceWithATimeNotShorter) {
    PlayedGame played({{2, MakeFullList()}, {12, MakeFullList()}, {3, {{"A", 0, 1, 0}}}});
    struct Case {
        int intLevel;
        int lngMinutes;
        int lngSeconds;
        int intRank;
    };
    for (const Case& c : {Case{12, 0, 1, 1}, Case{12, 4, 0, 4}, Case{12, 4, 1, 5},
                          Case{12, 10, 0, 10}, Case{12, 10, 1, 99}, Case{2, 9, 59, 10},
                          Case{3, 1, 0, 1}, Case{3, 1, 1, 2}, Case{4, 1, 1, 1}}) {
        BeAtLevel(played, c.intLevel, c.lngMinutes, c.lngSeconds);
        EXPECT_EQ(GetCurrentLevel(played.game), c.intLevel);
        EXPECT_EQ(GetRank(played.game), c.intRank) << played.game.lblLevel << played.game.lblTime;
    }
    played.SetTime(99, 99, 99);
    EXPECT_EQ(GetRank(played.game), 1);
    played.SetTime(2'147'483'647, 59, 59);
    EXPECT_EQ(GetRank(played.game), 99);
}

TEST(GetRank, FindsOnlyATimeOfZeroGoodEnoughWithoutAFile) {
    PlayedGame played;
    std::filesystem::remove(played.folder.Path("hof.clh"));
    BeAtLevel(played, 1, 0, 1);
    EXPECT_EQ(GetRank(played.game), 99);
    played.SetTime(0, 0, 0);
    EXPECT_EQ(GetRank(played.game), 1);
    EXPECT_EQ(GetHighestRecordedLevel(played.game), 30);
    EXPECT_EQ(played.folder.Count(), 0);
}

TEST(ReadHallOfFame, LeavesWhatAFileCutAtAnyLineDoesNotGive) {
    PlayedGame played;
    const std::vector<std::string> lines = SplitLines(WriteFullFile());
    for (std::size_t intCut = 0; intCut <= 82; ++intCut) {
        SCOPED_TRACE(intCut);
        played.WriteFile(JoinLines(lines, intCut));
        LevelEntries expected;
        expected.fill({"before", -1, -2, -3});
        for (int i = 1; i <= 10; ++i) {
            const std::size_t intFirst = 42 + 4 * static_cast<std::size_t>(i - 1);
            if (intFirst < intCut)
                expected[i].strName = "N2." + std::to_string(i);
            if (intFirst + 1 < intCut)
                expected[i].lngHours = i;
            if (intFirst + 2 < intCut)
                expected[i].lngMinutes = 2;
            if (intFirst + 3 < intCut)
                expected[i].lngSeconds = 10 + i;
        }
        EXPECT_EQ(Describe(ReadLevel(played, 2)), Describe(expected));
    }
}

TEST(ReadHallOfFame, TakesWhatADamagedFileStillGives) {
    PlayedGame played;
    std::vector<std::string> lines = SplitLines(WriteFullFile());
    lines[0] = "seventeen\r\n";      // the level number is not looked at
    lines[1] = "\"A, \xFF b \"\r\n"; // any bytes make a name
    lines[2] = "abc\r\n";
    lines[3] = "  7 \n";
    lines[4] = "99999999999\r\n";
    lines[5] = "no quotes\r\n";
    lines[6] = "\r\n";
    played.WriteFile(JoinLines(lines, lines.size()));
    const LevelEntries entries = ReadLevel(played, 1);
    EXPECT_TRUE(Describe(entries).starts_with("A, \xFF b ,-1,7,-3 no quotes,-1,1,12 N1.3,3,1,13 "))
        << Describe(entries);
    EXPECT_TRUE(Describe(ReadLevel(played, 2)).starts_with("N2.1,1,2,11 "));
    for (const int intLevel : {-1, 0, 31, 32'767})
        EXPECT_EQ(ReadLevel(played, intLevel)[10].strName, "before");
}

TEST(SaveHallOfFameEntry, InsertsAheadOfATieAndDropsTheTenth) {
    const std::vector<HallOfFameEntry> full = MakeFullList();
    PlayedGame played({{1, full}, {23, full}, {30, {{"last", 5, 6, 7}}}});
    BeAtLevel(played, 23, 4, 0);
    const std::string strName = "  \xC3\x84nne, (none) \xE6\x95\xB0 ";
    EXPECT_EQ(SaveHallOfFameEntry(played.game, strName), std::nullopt);
    std::vector<HallOfFameEntry> expected = full;
    expected.insert(expected.begin() + 3, {strName, 0, 4, 0});
    expected.pop_back();
    EXPECT_EQ(
        FindDifference(played.ReadFile(),
                       WriteHallOfFame({{1, full}, {23, expected}, {30, {{"last", 5, 6, 7}}}})),
        "");
    EXPECT_EQ(played.folder.Count(), 1);
}

TEST(SaveHallOfFameEntry, LeavesTheListsAloneForATimeWithoutAPlace) {
    PlayedGame played({{23, MakeFullList()}});
    const std::string strBefore = played.ReadFile();
    BeAtLevel(played, 23, 10, 1);
    EXPECT_EQ(SaveHallOfFameEntry(played.game, "late"), std::nullopt);
    played.game.lblLevel = "no level";
    EXPECT_EQ(SaveHallOfFameEntry(played.game, "lost"), std::nullopt);
    EXPECT_EQ(FindDifference(played.ReadFile(), strBefore), "");
}

TEST(SaveHallOfFameEntry, KeepsADamagedFileBesideAndWritesOneInForm) {
    struct Damage {
        std::size_t intLine;
        std::string strLine;
    };
    const Damage damages[] = {
        {0, "2\r\n"},       {0, "one\r\n"}, {43, "no quotes\r\n"},
        {42, "\"open\r\n"}, {42, "\"\r\n"}, {42, "\"a\" \"b\"\r\n"},
        {2, "1.5\r\n"},     {1229, "\r\n"}, {1229, "1\r\n\n"},
        {1229, ""},
    };
    for (const Damage& damage : damages) {
        SCOPED_TRACE(damage.strLine);
        PlayedGame played;
        std::vector<std::string> lines = SplitLines(WriteFullFile());
        lines[damage.intLine] = damage.strLine;
        const std::string strDamaged = JoinLines(lines, lines.size());
        played.WriteFile(strDamaged);
        BeAtLevel(played, 20, 0, 1);
        EXPECT_EQ(SaveHallOfFameEntry(played.game, "new"), std::nullopt);
        EXPECT_EQ(FindDifference(played.folder.ReadBytes("hof.clh.damaged"), strDamaged), "");
        EXPECT_TRUE(Describe(ReadLevel(played, 20)).starts_with("new,0,0,1 N20.1,1,20,11 "));
        EXPECT_TRUE(Describe(ReadLevel(played, 29)).ends_with("N29.10,10,29,20 "));

        EXPECT_EQ(SaveHallOfFameEntry(played.game, "again"), std::nullopt);
        EXPECT_EQ(FindDifference(played.folder.ReadBytes("hof.clh.damaged"), strDamaged), "");
    }
}

TEST(SaveHallOfFameEntry, LosesNothingOfAFileCutAtAnyPlace) {
    const std::string strFull = WriteFullFile();
    const std::vector<std::string> lines = SplitLines(strFull);
    for (std::size_t intCut = 0; intCut < lines.size(); intCut += 123) {
        SCOPED_TRACE(intCut);
        PlayedGame played;
        const std::string strCut = JoinLines(lines, intCut);
        played.WriteFile(strCut);
        BeAtLevel(played, 30, 0, 1);
        EXPECT_EQ(SaveHallOfFameEntry(played.game, "new"), std::nullopt);
        EXPECT_EQ(FindDifference(played.folder.ReadBytes("hof.clh.damaged"), strCut), "");
        EXPECT_TRUE(played.ReadFile().starts_with(strCut));
        EXPECT_EQ(SplitLines(played.ReadFile()).size(), lines.size());
    }
}

TEST(HallOfFame, GivesAReasonAndTouchesNothingWhereItCannotWrite) {
    for (const auto fnWrite : {+[](Game& game) { return SaveHallOfFameEntry(game, "new"); },
                               +[](Game& game) { return ResetHallOfFame(game); }}) {
        PlayedGame below; // the program's folder is a file
        below.game.strProgramFolder = below.folder.Path("hof.clh");
        const std::string strBefore = below.ReadFile();
        EXPECT_TRUE(fnWrite(below.game).value_or("").ends_with("."));
        EXPECT_EQ(FindDifference(below.ReadFile(), strBefore), "");
        EXPECT_EQ(below.folder.Count(), 1);

        PlayedGame taken; // a folder is where the file should be
        taken.game.strProgramFolder = taken.folder.MakeFolder("program");
        taken.folder.MakeFolder("program/hof.clh");
        EXPECT_EQ(fnWrite(taken.game), "The file \"hof.clh\" cannot be read.");

        PlayedGame damaged; // for the second time: the copy kept first stays
        damaged.WriteFile("damaged");
        EXPECT_EQ(fnWrite(damaged.game), std::nullopt);
        damaged.WriteFile("damaged again");
        EXPECT_EQ(fnWrite(damaged.game), std::nullopt);
        const std::string strKept = damaged.folder.Path("hof.clh.damaged");
        EXPECT_EQ(ReadWholeFile(strKept, 100), "damaged");
        EXPECT_EQ(ReadWholeFile(strKept + "-2", 100), "damaged again");
    }
}

TEST(HallOfFame, TellsThePlayerTheReason) {
    PlayedGame played;
    ShowHallOfFameError(played.game, "The reason.");
    EXPECT_EQ(played.desktop.log, (std::vector<std::string>{"beep", "box Hall of Fame"}));
    EXPECT_EQ(played.desktop.boxes[0].strText, "The reason.");
    EXPECT_EQ(played.desktop.boxes[0].icon, MessageIcon::Exclamation);
}

TEST(GetHighestRecordedLevel, LooksAtTheFirstEntryOfEachLevel) {
    const HallOfFameEntry real{"A", 0, 1, 0};
    EXPECT_EQ(GetHighestRecordedLevel(PlayedGame().game), 0);
    EXPECT_EQ(GetHighestRecordedLevel(PlayedGame({{3, {real}}, {17, {real}}}).game), 17);
    EXPECT_EQ(GetHighestRecordedLevel(PlayedGame({{30, {real}}}).game), 30);
    const HallOfFameEntry typed{" (none) ", 0, 1, 0};
    EXPECT_EQ(GetHighestRecordedLevel(PlayedGame({{3, {real}}, {17, {typed, real}}}).game), 3);
    EXPECT_EQ(GetHighestRecordedLevel(PlayedGame({{9, {{" ", 0, 1, 0}}}}).game), 9);
}

TEST(FormatEntryTime, ShowsTheLastTwoDigits) {
    EXPECT_EQ(FormatEntryTime({"", 3, 5, 9}), "03:05:09");
    EXPECT_EQ(FormatEntryTime({"", 100, 59, 0}), "00:59:00");
    EXPECT_EQ(FormatEntryTime({"", 2'147'483'647, 0, 10}), "47:00:10");
}

} // namespace
} // namespace cellora
