#include "store/saved_game.h"

#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/scripted_desktop.h"

namespace cellora {
namespace {

constexpr int intLineCount = 413;

SavedGame MakeSavedGame() {
    SavedGame savedGame;
    savedGame.lngHours = 1;
    savedGame.lngSeconds = 59;
    savedGame.strLevel = "Level 12";
    savedGame.strVisibleCells = "38";
    savedGame.strSolvedByYou = "2";
    savedGame.strCellsToSolve = "41";
    savedGame.strIncorrectCells = "(hidden)";
    for (int i = 1; i <= intCellCount; ++i) {
        savedGame.cells[i].strSolution = std::to_string((i * 7) % 9 + 1);
        savedGame.cells[i].blnGiven = i % 2 == 1;
    }
    savedGame.cells[2].strEntry = "9";
    savedGame.cells[80].strNotes = "3 5 1 ";
    return savedGame;
}

/// The lines without their ends.
std::vector<std::string> SplitLines(const std::string& strBytes) {
    std::vector<std::string> lines;
    for (std::size_t n = 0; n < strBytes.size();) {
        const std::size_t lngEnd = strBytes.find("\r\n", n);
        lines.push_back(strBytes.substr(n, lngEnd - n));
        n = lngEnd + 2;
    }
    return lines;
}

std::string JoinLines(const std::vector<std::string>& lines, const std::string& strEnd) {
    std::string strBytes;
    for (const std::string& strLine : lines)
        strBytes += strLine + strEnd;
    return strBytes;
}

TEST(SavedGame, Is413LinesInThreeForms) {
    const std::string strBytes = FormatSavedGame(MakeSavedGame());
    EXPECT_TRUE(strBytes.starts_with("1\r\n0\r\n59\r\n"
                                     "\"Level 12\"\r\n\"38\"\r\n\"2\"\r\n\"41\"\r\n\"(hidden)\"\r\n"
                                     "\"1\"\r\n#TRUE#\r\n\"8\"\r\n\"\"\r\n\"\"\r\n"
                                     "\"2\"\r\n#FALSE#\r\n\"6\"\r\n\"9\"\r\n\"\"\r\n"));
    EXPECT_TRUE(strBytes.ends_with("\"80\"\r\n#FALSE#\r\n\"3\"\r\n\"\"\r\n\"3 5 1 \"\r\n"
                                   "\"81\"\r\n#TRUE#\r\n\"1\"\r\n\"\"\r\n\"\"\r\n"));
    EXPECT_EQ(SplitLines(strBytes).size(), std::size_t{intLineCount});
    EXPECT_EQ(ParseSavedGame(strBytes), MakeSavedGame());
}

TEST(SavedGame, EveryTextWithoutALineFeedReadsBackTheSame) {
    for (const std::string& strText :
         {std::string("\""), std::string("\"\""), std::string("a\"b"), std::string("\r"),
          std::string(" 5 "), std::string("#TRUE#"), std::string("\0x", 2), std::string("\xE9\xFF"),
          std::string(100000, '1')}) {
        SavedGame savedGame = MakeSavedGame();
        savedGame.lngHours = 2147483647;
        savedGame.lngSeconds = -2147483647 - 1;
        savedGame.strLevel = savedGame.strIncorrectCells = strText;
        savedGame.cells[1] = {true, strText, strText, strText};
        savedGame.cells[81].strNotes = strText;
        EXPECT_EQ(ParseSavedGame(FormatSavedGame(savedGame)), savedGame) << strText.substr(0, 9);
    }
}

TEST(SavedGame, ReadsOtherLineEndsAndCellNumbersAndNothingBehindTheLastLine) {
    const std::string strBytes = FormatSavedGame(MakeSavedGame());
    std::vector<std::string> lines = SplitLines(strBytes);
    for (const std::string& strOther :
         {JoinLines(lines, "\n"), strBytes + "\r\n", strBytes + "\n\nnotes of mine",
          strBytes.substr(0, strBytes.size() - 1), strBytes.substr(0, strBytes.size() - 2)})
        EXPECT_EQ(ParseSavedGame(strOther), MakeSavedGame());

    for (const char* strNumber : {"\"7\"", "7", "-32768", "\"32767\"", "0"}) {
        lines[8] = lines[13] = strNumber;
        EXPECT_EQ(ParseSavedGame(JoinLines(lines, "\r\n")), MakeSavedGame()) << strNumber;
    }
}

struct Damage {
    std::size_t lngLine;
    const char* strLine;
};

TEST(SavedGame, RefusesLinesThatAreNotInForm) {
    for (const Damage& damage : {
             Damage{1, ""},          Damage{1, "2147483648"}, Damage{1, "-2147483649"},
             Damage{2, "\"0\""},     Damage{2, "1.5"},        Damage{2, " 1"},
             Damage{3, "1 "},        Damage{3, "+1"},         Damage{3, "0x1"},
             Damage{4, ""},          Damage{4, "Level 12"},   Damage{5, "38"},
             Damage{6, "\"2"},       Damage{7, "41\""},       Damage{8, "\""},
             Damage{9, "\"32768\""}, Damage{9, "\"\""},       Damage{9, "one"},
             Damage{10, "TRUE"},     Damage{10, "#True#"},    Damage{10, "\"#TRUE#\""},
             Damage{15, "0"},        Damage{15, "#FALSE# "},  Damage{16, "\"6\" "},
             Damage{413, "\" \"x"},
         }) {
        std::vector<std::string> lines = SplitLines(FormatSavedGame(MakeSavedGame()));
        lines[damage.lngLine - 1] = damage.strLine;
        EXPECT_FALSE(ParseSavedGame(JoinLines(lines, "\r\n")))
            << damage.lngLine << ": " << damage.strLine;
    }
    for (const int intLine : {0, 8, 9, 412}) {
        std::vector<std::string> lines = SplitLines(FormatSavedGame(MakeSavedGame()));
        lines.erase(lines.begin() + intLine);
        EXPECT_FALSE(ParseSavedGame(JoinLines(lines, "\r\n"))) << "without line " << intLine + 1;
    }
}

TEST(SavedGame, RefusesEveryFileCutShort) {
    const std::string strBytes = FormatSavedGame(MakeSavedGame());
    for (std::size_t n = 0; n + 2 < strBytes.size(); ++n)
        ASSERT_FALSE(ParseSavedGame(std::string_view(strBytes).substr(0, n))) << n;
}

TEST(SavedGame, WhatIsReadFromADamagedFileIsWrittenAndReadTheSame) {
    std::mt19937 random(2026);
    const std::string strBytes = FormatSavedGame(MakeSavedGame());
    int intRead = 0;
    for (int n = 0; n < 2000; ++n) {
        // Most bytes belong to the form; the change looks for a value.
        std::string strDamaged = strBytes;
        const std::size_t lngAt = random() % strBytes.size();
        const std::size_t lngDigit = strBytes.find_first_of("123456789", lngAt);
        strDamaged[lngDigit == std::string::npos ? lngAt : lngDigit] = static_cast<char>(random());
        const auto savedGame = ParseSavedGame(strDamaged);
        if (!savedGame)
            continue;
        ++intRead;
        ASSERT_EQ(ParseSavedGame(FormatSavedGame(*savedGame)), savedGame) << n;
    }
    EXPECT_GT(intRead, 200);
}

TEST(SavedGame, TakesAndPutsTheWholeRecord) {
    ScriptedDesktop desktop;
    Game game(desktop);
    game.cells[5].strNotes = "3 ";
    game.cells[5].blnEntryShown = false;
    game.cells[5].outline.intWidth = 4;
    PutGame(game, MakeSavedGame());
    EXPECT_EQ(TakeGame(game), MakeSavedGame());
    EXPECT_TRUE(game.cells[5].blnEntryShown);
    EXPECT_EQ(game.cells[5].outline.intWidth, 1);
}

} // namespace
} // namespace cellora
