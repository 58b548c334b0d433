#include "store/settings.h"

#include "store/modCommon_INI.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>

namespace cellora {
namespace {

const std::filesystem::path assetsFolder =
    std::filesystem::path(__FILE__).parent_path() / ".." / ".." / "assets";

constexpr std::array colors = {
    std::pair(ColorKey::ScreenBackground, 16777215),
    std::pair(ColorKey::GridBackground, 16777215),
    std::pair(ColorKey::GridLines, 0),
    std::pair(ColorKey::GridX, 12648447),
    std::pair(ColorKey::GridCursor, 16711680),
    std::pair(ColorKey::FontUser, 16711680),
    std::pair(ColorKey::FontComputer, 0),
    std::pair(ColorKey::GridIncorrectCell, 255),
};

constexpr std::array viewFlags = {ViewFlag::StatusBar, ViewFlag::Toolbar, ViewFlag::NumberSelector,
                                  ViewFlag::Statistics, ViewFlag::CellErrors};

void ExpectDefaults(const std::string& strPath) {
    for (const auto& [key, lngDefault] : colors) {
        EXPECT_EQ(ReadColor(key, strPath), lngDefault) << static_cast<int>(key);
    }
    for (const ViewFlag flag : viewFlags) {
        EXPECT_TRUE(ReadViewFlag(flag, strPath)) << static_cast<int>(flag);
    }
    EXPECT_EQ(ReadCursorOption(strPath), 0);
    EXPECT_EQ(ReadGamePath(strPath), "");
}

TEST(Settings, DefaultsStandInForAMissingFileAndForDamage) {
    const TemporaryFolder folder;
    const std::string strMissing = folder.Path("missing/cl.ini");
    ExpectDefaults(strMissing);
    EXPECT_EQ(ReadStartup(strMissing), 0);
    EXPECT_FALSE(OpensAtStartup(strMissing));

    const std::string strPath = folder.Path("cl.ini");
    for (const char* strDamage : {"", "red", "12 3", "0x10", "1.5.2", "1e", "99999999999", "+-1",
                                  "1,5", "-", ".", "inf", "nan", "Truee", "&HFF"}) {
        for (const char* strKey : {"screenbackground", "gridbackground", "gridx", "gridlines",
                                   "gridcursor", "gridincorrectcell", "fontuser", "fontcomputer"}) {
            WriteINI("color", strKey, strDamage, strPath);
        }
        for (const char* strKey :
             {"cursor", "statusbar", "toolbar", "numberselector", "statistics", "cellerrors"}) {
            WriteINI("view", strKey, strDamage, strPath);
        }
        SCOPED_TRACE(strDamage);
        ExpectDefaults(strPath);
    }
}

TEST(Settings, TheShippedFileIsCompleteAndHoldsTheDefaults) {
    const std::string strPath = (assetsFolder / "cl.ini").string();
    ASSERT_TRUE(std::filesystem::exists(strPath));
    ExpectDefaults(strPath);
    EXPECT_TRUE(OpensAtStartup(strPath));

    const TemporaryFolder folder;
    const std::string strCopy = folder.Path("cl.ini");
    std::filesystem::copy_file(strPath, strCopy);
    const std::string strShipped = folder.ReadBytes("cl.ini");
    for (const auto& [key, lngDefault] : colors) {
        WriteColor(key, lngDefault, strCopy);
    }
    for (const ViewFlag flag : viewFlags) {
        WriteViewFlag(flag, true, strCopy);
    }
    WriteCursorOption(0, strCopy);
    WriteStartup(true, strCopy);
    WriteGamePath("", strCopy);
    EXPECT_EQ(folder.ReadBytes("cl.ini"), strShipped);
}

TEST(Settings, TheShippedHallOfFameIsEmptyAtEveryLevel) {
    std::string strExpected;
    for (int intLevel = 1; intLevel <= 30; ++intLevel) {
        strExpected += std::to_string(intLevel) + "\r\n";
        for (int intPosition = 1; intPosition <= 10; ++intPosition) {
            strExpected += "\"(none)\"\r\n99\r\n99\r\n99\r\n";
        }
    }
    std::ifstream file(assetsFolder / "hof.clh", std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), strExpected);
}

TEST(Settings, EveryValueIsStoredUnderItsOwnKey) {
    const TemporaryFolder folder;
    const std::string strPath = folder.Path("cl.ini");
    for (const auto& [key, lngDefault] : colors) {
        WriteColor(key, 100 + static_cast<std::int32_t>(key), strPath);
    }
    for (const ViewFlag flag : viewFlags) {
        WriteViewFlag(flag, flag == ViewFlag::Statistics, strPath);
    }
    WriteCursorOption(1, strPath);
    WriteStartup(false, strPath);
    WriteGamePath("C:\\Games\\", strPath);
    EXPECT_EQ(folder.ReadBytes("cl.ini"),
              "[color]\r\nscreenbackground=100\r\ngridbackground=101\r\ngridlines=102\r\n"
              "gridx=103\r\ngridcursor=104\r\nfontuser=105\r\nfontcomputer=106\r\n"
              "gridincorrectcell=107\r\n[view]\r\nstatusbar=False\r\ntoolbar=False\r\n"
              "numberselector=False\r\nstatistics=True\r\ncellerrors=False\r\ncursor=1\r\n"
              "[general]\r\nstartup=0\r\npath=C:\\Games\\\r\n");
    for (const auto& [key, lngDefault] : colors) {
        EXPECT_EQ(ReadColor(key, strPath), 100 + static_cast<std::int32_t>(key));
    }
    EXPECT_TRUE(ReadViewFlag(ViewFlag::Statistics, strPath));
    EXPECT_FALSE(ReadViewFlag(ViewFlag::CellErrors, strPath));
    EXPECT_EQ(ReadCursorOption(strPath), 1);
    EXPECT_EQ(ReadGamePath(strPath), "C:\\Games\\");
}

TEST(Settings, NumbersAreReadUpToTheirLimits) {
    const TemporaryFolder folder;
    const std::string strPath = folder.Path("cl.ini");
    for (const std::int32_t lngColor : {INT32_MIN, -1, 0, INT32_MAX}) {
        WriteColor(ColorKey::GridX, lngColor, strPath);
        EXPECT_EQ(ReadColor(ColorKey::GridX, strPath), lngColor);
    }
    WriteINI("color", "gridx", "2147483648", strPath);
    EXPECT_EQ(ReadColor(ColorKey::GridX, strPath), 12648447);
    WriteINI("view", "cursor", "32767", strPath);
    EXPECT_EQ(ReadCursorOption(strPath), 32767);
    WriteINI("view", "cursor", "32768", strPath);
    EXPECT_EQ(ReadCursorOption(strPath), 0);
}

TEST(Settings, ViewFlagsAreWordsOrNumbers) {
    const TemporaryFolder folder;
    const std::string strPath = folder.Path("cl.ini");
    const auto Read = [&strPath](const char* strValue) {
        WriteINI("View", "ToolBar", strValue, strPath);
        return ReadViewFlag(ViewFlag::Toolbar, strPath);
    };
    for (const char* strFalse : {"False", "FALSE", "false", "0", "-0", "0.0", "00", "+0"}) {
        EXPECT_FALSE(Read(strFalse)) << strFalse;
        EXPECT_TRUE(Read("tRUE"));
    }
    for (const char* strTrue : {"-1", "1", "0.5", ".1", "17", "+2"}) {
        EXPECT_FALSE(Read("False"));
        EXPECT_TRUE(Read(strTrue)) << strTrue;
    }
}

TEST(Settings, StartupTakesTheLeadingNumber) {
    const TemporaryFolder folder;
    const std::string strPath = folder.Path("cl.ini");
    struct Case {
        const char* strValue;
        std::int32_t lngRounded;
        bool blnOpens;
    };
    for (const Case& c : {Case{"1", 1, true},
                          {"0", 0, false},
                          {"", 0, false},
                          {"1.4", 1, false},
                          {"1 or not", 1, true},
                          {"+1", 1, true},
                          {"1.0", 1, true},
                          {"yes 1", 0, false},
                          {"2", 2, false},
                          {"-1", -1, false},
                          {"1.5", 2, false},
                          {"0.5", 0, false},
                          {"1e", 1, true},
                          {"10e-1x", 1, true},
                          {"1.0.0", 1, true},
                          {"inf", 0, false},
                          {"1e300", INT32_MAX, false},
                          {"1e999", 0, false}}) {
        WriteINI("general", "startup", c.strValue, strPath);
        EXPECT_EQ(ReadStartup(strPath), c.lngRounded) << c.strValue;
        EXPECT_EQ(OpensAtStartup(strPath), c.blnOpens) << c.strValue;
    }
}

} // namespace
} // namespace cellora
