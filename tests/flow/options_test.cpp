#include "flow/options.h"

#include <gtest/gtest.h>

#include "store/modCommon_INI.h"
#include "tests/support/scripted_desktop.h"
#include "tests/support/temporary_folder.h"

namespace cellora {
namespace {

constexpr char strSettingsOfOneToEight[] =
    "[color]\r\nscreenbackground=2\r\ngridbackground=1\r\ngridlines=3\r\ngridx=8\r\n"
    "gridcursor=6\r\nfontuser=4\r\nfontcomputer=5\r\ngridincorrectcell=7\r\n"
    "[view]\r\ncursor=1\r\n";

/// Slot n holds the colour n + 1.
Options MakeOptions() {
    return {.lngColors = {1, 2, 3, 4, 5, 6, 7, 8}, .blnDisappearingCursor = true};
}

class OptionsTest : public testing::Test {
protected:
    OptionsTest() {
        game.strProgramFolder = folder.Path();
        game.fnDoCellCount = [this](Game&) { ++intChecks; };
    }

    TemporaryFolder folder;
    ScriptedDesktop desktop;
    Game game{desktop};
    int intChecks = 0;
};

TEST_F(OptionsTest, EveryColorReachesItsPlaces) {
    ApplyOptions(game, MakeOptions());
    EXPECT_EQ(game.picGrid.lngBackColor, 1);
    EXPECT_EQ(game.picStatistics.lngBackColor, 1);
    EXPECT_EQ(game.picBorder.lngBackColor, 2);
    EXPECT_EQ(game.picButtons.lngBackColor, 2);
    EXPECT_EQ(game.boardColors.lngRegionLine, 3);
    EXPECT_EQ(game.cells[1].outline, (Outline{1, 3}));
    EXPECT_EQ(game.boardColors.lngUserText, 4);
    EXPECT_EQ(game.boardColors.lngComputerText, 5);
    EXPECT_EQ(game.cells[intCenterCell].outline, (Outline{4, 6}));
    EXPECT_EQ(game.colors.lngColorIncorrectCell, 7);
    EXPECT_EQ(game.boardColors.lngRegionFill, 8);
    EXPECT_EQ(game.intCursorOption, 1);
    EXPECT_EQ(game.colors.lngColorScreenBackground, lngColorWhite);
    EXPECT_EQ(ReadOptions(game), MakeOptions());
    EXPECT_EQ(desktop.log, (std::vector<std::string>{"tmrCellWait off", "tmrCellWait on"}));
}

TEST_F(OptionsTest, AllNineSettingsAreWrittenInTheirOrder) {
    ApplyOptions(game, MakeOptions());
    EXPECT_EQ(folder.ReadBytes("cl.ini"), strSettingsOfOneToEight);
    ApplyOptions(game, ReadOptions(game));
    EXPECT_EQ(folder.ReadBytes("cl.ini"), strSettingsOfOneToEight);
}

TEST_F(OptionsTest, ASettingsFileThatCannotBeWrittenIsIgnored) {
    game.strProgramFolder = folder.Path("missing");
    ApplyOptions(game, MakeOptions());
    EXPECT_EQ(ReadOptions(game), MakeOptions());
    EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(OptionsTest, CellsAreCheckedOnlyOnAGridInPlay) {
    game.mnuCellErrors.blnChecked = true;
    game.cells[9].strSolution = "1";
    game.cells[9].strEntry = "2";
    for (const auto& [blnVisible, blnEnabled] :
         {std::pair{false, true}, {true, false}, {false, false}}) {
        game.picGrid.blnVisible = blnVisible;
        game.picGrid.blnEnabled = blnEnabled;
        ApplyOptions(game, MakeOptions());
        EXPECT_EQ(intChecks, 0);
        EXPECT_FALSE(game.cells[9].wrongMark.blnOpaque);
    }
    game.picGrid = {.blnVisible = true, .blnEnabled = true};
    ApplyOptions(game, MakeOptions());
    EXPECT_EQ(intChecks, 1);
    EXPECT_EQ(game.cells[9].wrongMark, (WrongMark{true, 7}));
}

TEST_F(OptionsTest, ALockedGridKeepsItsCursorAsItIs) {
    game.picGrid.blnEnabled = false;
    ApplyOptions(game, MakeOptions());
    EXPECT_EQ(game.cells[intCenterCell].outline, (Outline{1, 3}));
    EXPECT_EQ(game.colors.lngColorGridCursor, 6);
}

TEST_F(OptionsTest, OnlyTheOptionOneTicksTheBox) {
    for (const std::int16_t intOption : std::initializer_list<std::int16_t>{0, 2, -1}) {
        game.intCursorOption = intOption;
        EXPECT_FALSE(ReadOptions(game).blnDisappearingCursor) << intOption;
    }
}

TEST_F(OptionsTest, TheCommandShowsTheDialogBetweenHourglassAndCursor) {
    desktop.fnDuring[ModalWindow::frmOptions] = [this] {
        EXPECT_EQ(desktop.pointer, MousePointer::Hourglass);
        EXPECT_EQ(game.cells[intCenterCell].outline.intWidth, 1);
    };
    ShowOptions(game);
    EXPECT_EQ(desktop.windows, std::vector{ModalWindow::frmOptions});
    EXPECT_EQ(desktop.pointer, MousePointer::Default);
    EXPECT_EQ(game.cells[intCenterCell].outline.intWidth, 4);
    EXPECT_EQ(desktop.log.back(), "tmrCellWait on");
}

} // namespace
} // namespace cellora
