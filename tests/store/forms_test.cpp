#include <chrono>
#include <filesystem>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "core/modCellora.h"
#include "store/hall_of_fame_form.h"
#include "store/modCommon_INI.h"
#include "store/saved_game.h"
#include "store/settings.h"
#include "store/system_files.h"
#include "tests/support/golden.h"
#include "tests/support/idle_desktop.h"
#include "tests/support/temporary_folder.h"

namespace cellora {
namespace {

constexpr std::string_view strControls = "\r\n\t";
constexpr std::string_view strLetters = "rnt";

/// Bytes that cannot be seen are written \r, \n, \t and \xE4; a hyphen alone is an empty text.
std::string Unescape(const std::string& strText) {
    std::string bytes;
    for (std::size_t n = 0; n < strText.size() && strText != "-"; ++n) {
        if (strText[n] != '\\') {
            bytes += strText[n];
        } else if (strText[++n] == 'x') {
            bytes += static_cast<char>(std::stoi(strText.substr(n + 1, 2), nullptr, 16));
            n += 2;
        } else {
            bytes += strControls[strLetters.find(strText[n])];
        }
    }
    return bytes;
}

std::string Escape(std::string_view bytes) {
    constexpr std::string_view strDigits = "0123456789ABCDEF";
    std::string strText;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (const auto intControl = strControls.find(c); intControl != std::string_view::npos)
            strText += {'\\', strLetters[intControl]};
        else if (byte < ' ' || byte > '~')
            strText += {'\\', 'x', strDigits[byte / 16], strDigits[byte % 16]};
        else
            strText += c;
    }
    return strText;
}

std::vector<std::string> Split(const std::string& strText, const std::string& strBetween) {
    std::vector<std::string> parts;
    std::size_t n = 0;
    for (std::size_t intEnd = 0; intEnd != std::string::npos; n = intEnd + strBetween.size()) {
        intEnd = strText.find(strBetween, n);
        parts.push_back(strText.substr(n, intEnd - n));
    }
    return parts;
}

std::string Join(const std::vector<std::string>& lines, std::size_t intCount,
                 const std::string& strEnd = "\r\n") {
    std::string bytes;
    for (std::size_t n = 0; n < intCount; ++n)
        bytes += lines[n] + strEnd;
    return bytes;
}

std::string Describe(const Settings& settings) {
    std::string strText = "colours";
    for (const Color lngColor : settings.colors)
        strText += Text(' ', lngColor);
    return Text(strText, ", cursor ", settings.intCursorOption, ", view ", settings.blnStatusBar,
                settings.blnToolbar, settings.blnNumberSelector, settings.blnStatistics,
                settings.blnCellErrors, ", zoom ", settings.intZoom, ", startup ",
                settings.dblStartup, ", folder ", settings.strGameFolder);
}

std::string Describe(const HallOfFameEntry& entry) {
    return Text(", ", Escape(entry.strName), ' ', entry.lngHours, ' ', entry.lngMinutes, ' ',
                entry.lngSeconds);
}

class Forms : public testing::Test {
protected:
    Forms() {
        savedLines.pop_back();
        for (int intLevel = 1; intLevel <= 30; ++intLevel) {
            listLines.push_back(Text(intLevel));
            for (int i = 1; i <= 10; ++i)
                for (const std::string& strLine :
                     {Text("\"N", intLevel, '.', i, '"'), Text(i), Text(intLevel), Text(10 + i)})
                    listLines.push_back(strLine);
        }
    }

    std::string Run(const std::string& strCommand) {
        const std::string strVerb = strCommand.substr(0, strCommand.find(' '));
        std::vector<std::string> parts;
        for (const std::string& strPart : Split(strCommand.substr(strVerb.size() + 1), " | "))
            parts.push_back(Unescape(strPart));
        return "  = " + Answer(strVerb, parts) + '\n';
    }

    std::string Answer(const std::string& strVerb, std::vector<std::string> parts) {
        if (strVerb == "damage")
            return ReadSavedGame(parts[0], parts[1]);
        if (strVerb == "entry")
            return ReadList(parts[0], parts[1]);
        if (strVerb == "cut")
            return ReadCutList(std::stoul(parts[0]));
        folder.WriteBytes("cl.ini", parts[0]);
        if (strVerb == "read")
            return Escape(ReadINI(files, "view", "toolbar", strPath));
        if (strVerb == "load")
            return Describe(LoadSettings(files, strPath));
        parts.resize(4);
        WriteINI(files, parts[2].empty() ? "view" : parts[2],
                 parts[3].empty() ? "toolbar" : parts[3], parts[1], strPath);
        return Escape(folder.ReadBytes("cl.ini"));
    }

    /// The saved game with another text in a line.
    std::string ReadSavedGame(const std::string& strLine, const std::string& strText) {
        std::vector<std::string> lines = savedLines;
        lines[std::stoul(strLine) - 1] = strText;
        const std::string bytes = Join(lines, 413);
        const auto game = ParseSavedGame(bytes);
        if (!game)
            return "refused";
        EXPECT_EQ(ParseSavedGame(FormatSavedGame(*game)), game);
        return FormatSavedGame(*game) == bytes ? "read" : "read as another text";
    }

    /// The list with another text in a line.
    std::string ReadList(const std::string& strLine, const std::string& strText) {
        std::vector<std::string> lines = listLines;
        lines[std::stoul(strLine) - 1] = strText;
        HallOfFame list;
        const bool blnInForm = ReadHallOfFameBytes(Join(lines, 1230), list);
        return (blnInForm ? "in form" : "damaged") + Describe(list[1][1]) + Describe(list[30][10]);
    }

    std::string ReadCutList(std::size_t intLines) {
        LevelEntries entries;
        entries.fill({"before", -1, -2, -3});
        const bool blnWhole = ReadLevelBytes(Join(listLines, intLines), 2, entries);
        return (blnWhole ? "whole" : "cut") + Describe(entries[1]) + Describe(entries[10]);
    }

    SystemFiles files;
    const TemporaryFolder folder;
    const std::string strPath = folder.Path("cl.ini");
    std::vector<std::string> savedLines =
        Split(ReadTestFile("store/expected/saved_game_lines.txt"), "\n");
    std::vector<std::string> listLines;
};

TEST_F(Forms, AreReadAndWrittenAsTheirScriptsSay) {
    for (const char* const strName : {"ini", "settings", "saved_game", "hall_of_fame"})
        ExpectScript(std::string("store/expected/") + strName + ".txt",
                     [this](const std::string& strCommand) { return Run(strCommand); });
}

TEST_F(Forms, OfASavedGameAre413LinesThatTheBoardTakesAndGives) {
    ASSERT_EQ(savedLines.size(), 413U);
    const std::string bytes = Join(savedLines, 413);
    const auto savedGame = ParseSavedGame(bytes);
    ASSERT_TRUE(savedGame);
    EXPECT_EQ(ParseSavedGame(Join(savedLines, 413, "\n") + "notes of mine"), savedGame);
    for (std::size_t n = 0; n < bytes.size(); ++n)
        ASSERT_EQ(ParseSavedGame(std::string_view(bytes).substr(0, n)).has_value(),
                  n + 2 >= bytes.size());
    IdleDesktop desktop;
    Game game(desktop, files);
    game.traces.intTopOutline = 41;
    game.cells[5] = {"5", true, "7", false, "1 2 ", {true, 9}, {4, true}};
    PutGame(game, *savedGame);
    EXPECT_EQ(FormatSavedGame(TakeGame(game)), bytes);
    EXPECT_EQ(game.cells[5], (Cell{"9", true, "", true, "", {true, 9}, {1, false}}));
    EXPECT_EQ(game.traces.intTopOutline, 0);
}

TEST_F(Forms, OfTheHallOfFameAre1230Lines) {
    HallOfFame list;
    ASSERT_TRUE(ReadHallOfFameBytes(Join(listLines, 1230), list));
    EXPECT_EQ(FormatHallOfFame(list), Join(listLines, 1230));
    EXPECT_TRUE(ReadHallOfFameBytes(Join(listLines, 1230, "\n"), list));
    const std::string strOpen = Join(listLines, 1229) + listLines.back();
    EXPECT_FALSE(ReadHallOfFameBytes(strOpen, list)) << "the last line has no end";
    std::string strEmpty;
    for (int intLevel = 1; intLevel <= 30; ++intLevel) {
        strEmpty += std::to_string(intLevel) + "\r\n";
        for (int i = 1; i <= 10; ++i)
            strEmpty += "\"(none)\"\r\n99\r\n99\r\n99\r\n";
    }
    EXPECT_EQ(FormatHallOfFame(MakeEmptyHallOfFame()), strEmpty);
}

TEST_F(Forms, OfAValueReadBackAsItWasWritten) {
    std::mt19937 random(20);
    constexpr std::string_view strAlphabet = "a \t\"'=;[]\xC3\xA4";
    for (int n = 0; n < 300; ++n) {
        std::string strValue(random() % 6, 'x');
        for (char& c : strValue)
            c = strAlphabet[random() % strAlphabet.size()];
        folder.WriteBytes("cl.ini", "[view]\r\nlast=1\r\n");
        WriteINI(files, "view", "toolbar", strValue, strPath);
        EXPECT_EQ(ReadINI(files, "VIEW", "TOOLBAR", strPath), strValue);
        EXPECT_EQ(ReadINI(files, "view", "last", strPath), "1");
    }
}

TEST_F(Forms, OfAValueEndAt254Characters) {
    for (const std::string& strCharacter :
         {std::string("x"), std::string("\xC3\xA4"), std::string("\xE2\x82\xAC"),
          std::string("\xF0\x9F\x8E\xB2"), std::string("\x80"), std::string("\xC0\x80"),
          std::string("\xE0\x80\x80"), std::string("\xF0\x80\x80\x80"), std::string("\xC3")}) {
        const std::string strLimit = std::string(253, 'x') + strCharacter;
        for (const std::string& strStored : {strLimit, strLimit + 'y', '"' + strLimit + '"'}) {
            folder.WriteBytes("cl.ini", "[view]\ntoolbar=" + strStored + "\n");
            EXPECT_EQ(ReadINI(files, "view", "toolbar", strPath), strLimit);
        }
        WriteINI(files, "view", "toolbar", strLimit + "yz", strPath);
        EXPECT_EQ(folder.ReadBytes("cl.ini"), "[view]\ntoolbar=" + strLimit + "yz\n");
    }
}

TEST_F(Forms, OfSettingsAreLeftAloneBeyond16MiB) {
    const auto Write = [this](const std::string& strText, const char* strValue) {
        folder.WriteBytes("cl.ini", strText);
        WriteINI(files, "view", "toolbar", strValue, strPath);
        return folder.ReadBytes("cl.ini");
    };
    std::string strLargest = "[view]\ntoolbar=old\n";
    strLargest.resize(lngMaxINIBytes, ';');
    EXPECT_TRUE(Write(strLargest, "newer") == strLargest) << "it could not be read again";
    EXPECT_TRUE(Write(strLargest + ";", "new") == strLargest + ";");
    std::string strNew = strLargest;
    strNew.replace(strNew.find("old"), 3, "new");
    EXPECT_TRUE(Write(strLargest, "new") == strNew);
    folder.MakeFolder("folder");
    WriteINI(files, "view", "toolbar", "0", folder.Path("folder"));
    WriteINI(files, "view", "toolbar", "0", folder.Path("missing/cl.ini"));
    EXPECT_EQ(folder.Count(), 2);
}

TEST_F(Forms, OfSettingsAreWrittenByGroups) {
    Settings settings;
    settings.colors = {1, -2147483647 - 1, 2147483647, 4, 5, 6, 7, 8};
    settings.intCursorOption = 32767;
    settings.blnToolbar = false;
    settings.dblStartup = 1;
    settings.strGameFolder = "C:\\Games\\";
    std::string strGroups;
    for (const SettingsGroup group : {SettingsGroup::Options, SettingsGroup::View,
                                      SettingsGroup::Startup, SettingsGroup::Path}) {
        SaveSettings(files, settings, group, folder.Path("group"));
        SaveSettings(files, settings, group, strPath);
        strGroups += folder.ReadBytes("group") + '\n';
        std::filesystem::last_write_time(strPath, std::filesystem::file_time_type::clock::now() -
                                                      std::chrono::hours(1));
        const auto written = std::filesystem::last_write_time(strPath);
        SaveSettings(files, settings, group, strPath);
        EXPECT_EQ(std::filesystem::last_write_time(strPath), written);
        std::filesystem::remove(folder.Path("group"));
    }
    std::erase(strGroups, '\r');
    ExpectFile("store/expected/settings_groups.txt", strGroups);
    EXPECT_EQ(Describe(LoadSettings(files, strPath)), Describe(settings));

    std::filesystem::copy(CELLORA_ASSETS "/cl.ini", folder.Path("shipped"));
    const std::string strShipped = folder.ReadBytes("shipped");
    settings = LoadSettings(files, folder.Path("shipped"));
    EXPECT_EQ(settings.dblStartup, 1);
    for (const SettingsGroup group :
         {SettingsGroup::Options, SettingsGroup::View, SettingsGroup::Startup, SettingsGroup::Path})
        SaveSettings(files, settings, group, folder.Path("shipped"));
    EXPECT_EQ(folder.ReadBytes("shipped"), strShipped) << "it holds every value";
    settings.dblStartup = 0;
    settings.colors = Settings().colors; // a choice of its own
    EXPECT_EQ(Describe(settings), Describe(Settings())) << "but for colours it holds the defaults";
}

} // namespace
} // namespace cellora
