#include "flow/new_game.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "played_game.h"

namespace cellora {
namespace {

/// Passes everything on to a scripted desktop and calls back after each event, so that a test sees
/// the game in the middle of a sequence.
class WatchedDesktop final : public Desktop {
public:
    std::function<void(const std::string&)> fnWatch;

    Answer ShowMessageBox(const MessageBox& box) override { return script_.ShowMessageBox(box); }
    void Beep() override {
        Report([this] { script_.Beep(); });
    }
    void SetMousePointer(MousePointer pointer) override {
        Report([&] { script_.SetMousePointer(pointer); });
    }
    void EnableTimer(Timer timer, bool blnEnabled) override {
        Report([&] { script_.EnableTimer(timer, blnEnabled); });
    }
    void ShowModal(ModalWindow window) override {
        Report([&] { script_.ShowModal(window); });
    }
    void UnloadWindow(ModalWindow window) override {
        Report([&] { script_.UnloadWindow(window); });
    }
    void ShowPopup(PopupMenu menu) override { script_.ShowPopup(menu); }
    std::optional<std::string> PickFile(const FileRequest& request) override {
        return script_.PickFile(request);
    }
    std::int32_t GetTimeOfDay() override {
        if (fnWatch && !blnDrew_)
            fnWatch("draw");
        blnDrew_ = fnWatch != nullptr;
        return script_.GetTimeOfDay();
    }

private:
    template <typename Event>
    void Report(Event fnEvent) {
        fnEvent();
        if (fnWatch)
            fnWatch(script_.log.back());
    }

    ScriptedDesktop script_;
    bool blnDrew_ = false; ///< only the first draw of a watched sequence is reported
};

auto CountCells(const Game& game, bool (*fnTest)(const Cell&)) {
    return std::ranges::count_if(game.cells, fnTest);
}

/// The state that the steps of a new game change, in the order of the steps.
std::string DescribeSteps(const Game& game) {
    const auto lngFilled =
        CountCells(game, [](const Cell& c) { return !c.strEntry.empty() || !c.strNotes.empty(); });
    const auto lngSolved = CountCells(game, [](const Cell& c) { return !c.strSolution.empty(); });
    const auto lngGiven = CountCells(game, [](const Cell& c) { return c.blnGiven; });
    const auto lngThick = CountCells(game, [](const Cell& c) { return c.outline.intWidth == 4; });
    std::string strText = game.picGrid.blnEnabled ? "on" : "off";
    for (const auto lngCount : {lngFilled, lngSolved, lngGiven, lngThick})
        strText += ' ' + std::to_string(lngCount);
    strText += ' ' + game.lblLevel + " @" + std::to_string(game.intCursorCell);
    strText += game.cmdFinished.blnVisible ? "" : " commands";
    strText += game.picGrid.blnVisible ? " grid" : "";
    strText += game.picStatistics.blnVisible ? " statistics" : "";
    strText += game.picButtons.blnVisible ? " selector" : "";
    return strText + " number " + std::to_string(game.intSelectedNumber) + ' ' + game.lblTime +
           ' ' + game.strGameFile + (game.blnGameChanged ? "changed" : "");
}

/// A board as a finished game leaves it, hidden panes included, so that each step shows.
void LeaveFinishedGame(Game& game) {
    for (Cell& cell : game.cells) {
        cell.strSolution = cell.strEntry = cell.strNotes = "5";
        cell.blnGiven = true;
    }
    game.picGrid.blnEnabled = false;
    game.picButtons.blnEnabled = false;
    game.intCursorCell = 7;
    game.intPrevCursorCell = 8;
    game.intSelectedNumber = 9;
    game.lngHours = 1;
    game.lblTime = "01:00:00";
    game.lblLevel = "Level 2";
    game.strGameFile = "old";
    game.cmdFinished.blnVisible = true;
    game.blnSolvedByComputer = true;
    game.mnuStatistics.blnChecked = true;
    game.mnuNumberSelector.blnChecked = true;
}

TEST(StartNewGame, RunsItsStepsInOrderAfterAFinishedGame) {
    WatchedDesktop desktop;
    Game game(desktop);
    std::vector<std::string> steps;
    LeaveFinishedGame(game);
    game.fnDoCellCount = [&](Game& counted) {
        steps.push_back("count: " + DescribeSteps(counted));
        DoCellCount(counted);
    };
    desktop.fnWatch = [&](const std::string& strEvent) {
        steps.push_back(strEvent + ": " + DescribeSteps(game));
    };
    StartNewGame(game, "Level 30");
    const std::string strMade = "on 0 81 20 1 Level 30 @41";
    const std::string strPanes = strMade + " commands grid statistics selector number 1 ";
    EXPECT_EQ(steps, (std::vector<std::string>{
                         "hourglass: off 81 81 81 0 Level 2 @7 number 9 01:00:00 old",
                         "draw: on 0 0 0 0 Level 2 @7 number 9 01:00:00 old",
                         "tmrCellWait off: " + strMade + " number 9 01:00:00 old",
                         "tmrCellWait on: " + strMade + " number 9 01:00:00 old",
                         "unload 0: " + strMade + " commands grid number 9 01:00:00 old",
                         "tmrCellWait off: " + strPanes + "01:00:00 old",
                         "tmrCellWait on: " + strPanes + "01:00:00 old",
                         "count: " + strPanes + "01:00:00 old",
                         "tmr off: " + strPanes + "01:00:00 old",
                         "tmr on: " + strPanes + "00:00:00 changed",
                     }));
    EXPECT_TRUE(game.blnGameActive && game.picButtons.blnEnabled && game.mnuPause.blnEnabled);
    EXPECT_FALSE(game.blnSolvedByComputer);
    EXPECT_EQ(game.lngHours, 0);
    EXPECT_EQ(game.intPrevCursorCell, 41);
    EXPECT_EQ(game.lblVisibleCells, "20");
    EXPECT_EQ(game.lblCellsToSolve, "61");
    EXPECT_EQ(game.cmdFinished.strCaption, "View Mistakes");
}

TEST(StartNewGame, ShowsThePanesThatAreTicked) {
    for (const bool blnStatistics : {false, true}) {
        for (const bool blnSelector : {false, true}) {
            PlayedGame played;
            Game& game = played.game;
            game.mnuStatistics.blnChecked = blnStatistics;
            game.mnuNumberSelector.blnChecked = blnSelector;
            game.intSelectedNumber = 4;
            game.picStatistics.blnVisible = !blnStatistics;
            game.picButtons.blnVisible = !blnSelector;
            played.Start(2);
            EXPECT_EQ(game.picStatistics.blnVisible, blnStatistics);
            EXPECT_EQ(game.picButtons.blnVisible, blnSelector);
            EXPECT_EQ(game.intSelectedNumber, blnSelector ? 1 : 4);
            EXPECT_EQ(game.picButton[1].blnFramed, blnSelector);
            EXPECT_EQ(std::ranges::count(played.desktop.log, "tmrCellWait on"),
                      blnSelector ? 2 : 1);
        }
    }
}

} // namespace
} // namespace cellora
