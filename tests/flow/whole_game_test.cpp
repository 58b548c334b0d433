#include <gtest/gtest.h>

#include <algorithm>

#include "flow/aids.h"
#include "play/entry.h"
#include "play/selector.h"
#include "played_game.h"

namespace cellora {
namespace {

/// A player who uses the keys and the mouse only, and keeps the time on a watch.
class ScriptedPlayer final {
public:
    explicit ScriptedPlayer(PlayedGame& played) : played_(played), game_(played.game) {}

    int lngWatch = 0; ///< seconds

    void Wait(int lngSeconds) {
        for (int i = 0; i < lngSeconds; ++i) {
            ASSERT_TRUE(played_.desktop.IsRunning(Timer::tmr));
            tmr_Timer(game_);
        }
        lngWatch += lngSeconds;
    }

    /// Takes the main keyboard, the keypad and the mouse in turn.
    void Place(int intCell, const std::string& strDigit) {
        const int intDigit = std::stoi(strDigit);
        switch (intMoves_++ % 3) {
        case 0:
            Type(intCell, intKeyDigit1 + intDigit - 1);
            break;
        case 1:
            Type(intCell, intKeyKeypad1 + intDigit - 1);
            break;
        default:
            picButton_MouseUp(game_, intDigit, false);
            CellClick(game_, intCell, MouseButton::Left);
        }
    }

    void Erase(int intCell) { Type(intCell, intKeyDelete); }

    void Buy() {
        played_.desktop.answers.push_back(Answer::Yes);
        SolveOneCell(game_);
        lngWatch += 30;
    }

private:
    void Type(int intCell, int intKeyCode) {
        while (GetRow(game_.intCursorCell) != GetRow(intCell))
            DoKeyDown(game_, intKeyUp);
        while (GetColumn(game_.intCursorCell) != GetColumn(intCell))
            DoKeyDown(game_, intKeyRight);
        DoKeyDown(game_, static_cast<std::int16_t>(intKeyCode));
    }

    PlayedGame& played_;
    Game& game_;
    int intMoves_ = 0;
};

struct PlannedGame {
    int intLevel;
    int lngSecondsPerCell;
    int intBought;    ///< cells solved for the player
    int intCorrected; ///< wrong digits that are put right at once
    int intMistakes;  ///< wrong digits that stay
    std::string strName;
};

/// Plays from New Game to the end and returns the player's own time.
int PlayGame(PlayedGame& played, PlannedGame plan) {
    Game& game = played.game;
    ScriptedPlayer player(played);
    played.Start(plan.intLevel);
    for (; plan.intBought > 0; --plan.intBought)
        player.Buy();
    for (const int i : played.FindEmptyCells()) {
        player.Wait(plan.lngSecondsPerCell);
        if (plan.intCorrected-- > 0) {
            player.Place(i, played.GetWrongDigit(i));
            EXPECT_EQ(game.lblIncorrectCells, "1");
            player.Erase(i);
            EXPECT_TRUE(game.cells[i].strEntry.empty());
        } else if (plan.intMistakes-- > 0) {
            player.Place(i, played.GetWrongDigit(i));
            continue;
        }
        EXPECT_TRUE(game.picGrid.blnEnabled);
        player.Place(i, game.cells[i].strSolution);
    }
    EXPECT_TRUE(game.blnGameChanged);
    EXPECT_FALSE(game.picGrid.blnEnabled);
    EXPECT_EQ(GetTimeInSeconds(game.lngHours, game.lngMinutes, game.lngSeconds), player.lngWatch);
    return player.lngWatch;
}

/// The list with the new time in it, ahead of its equals.
void Record(std::vector<HallOfFameEntry>& entries, const std::string& strName, int lngWatch) {
    const auto it = std::ranges::find_if(entries, [&](const HallOfFameEntry& entry) {
        return lngWatch <= GetTimeInSeconds(entry.lngHours, entry.lngMinutes, entry.lngSeconds);
    });
    entries.insert(it, {strName, lngWatch / 3600, lngWatch / 60 % 60, lngWatch % 60});
}

TEST(WholeGame, PlaysManyGamesIntoTheHallOfFame) {
    RecordedEntries recorded = {{12, MakeFullList()}};
    PlayedGame played(recorded);
    const PlannedGame plans[] = {
        {1, 1, 0, 0, 0, "Ada"},    {1, 1, 0, 3, 0, "Bea, the equal"},
        {30, 97, 0, 0, 0, "Cy"},   {30, 60, 2, 1, 0, "\xC3\x89va"},
        {1, 2, 5, 0, 0, "  Dan "}, {30, 1, 61, 0, 0, "Machine"},
        {17, 3, 0, 0, 1, ""},      {17, 3, 1, 2, 12, ""},
        {12, 30, 0, 0, 0, ""},     {12, 1, 9, 0, 0, "Flo"},
    };
    for (const PlannedGame& plan : plans) {
        SCOPED_TRACE(plan.strName + " at level " + std::to_string(plan.intLevel));
        const std::size_t intWindows = played.desktop.windows.size();
        played.desktop.boxes.clear();
        played.desktop.fnDuring[ModalWindow::frmEnterName] = [&] {
            EXPECT_EQ(played.game.lblIncorrectCells, "0");
            EXPECT_EQ(SaveHallOfFameEntry(played.game, plan.strName), std::nullopt);
        };
        const int lngWatch = PlayGame(played, plan);
        const bool blnNamed = !plan.strName.empty();
        EXPECT_EQ(played.desktop.windows.size() - intWindows, blnNamed ? 1U : 0U);
        EXPECT_EQ(played.desktop.boxes.size(),
                  static_cast<std::size_t>(plan.intBought) + (blnNamed ? 0U : 1U));
        if (blnNamed) {
            Record(recorded[plan.intLevel], plan.strName, lngWatch);
            recorded[plan.intLevel].resize(
                std::min<std::size_t>(10, recorded[plan.intLevel].size()));
        }
        EXPECT_EQ(FindDifference(played.ReadFile(), WriteHallOfFame(recorded)), "");
    }
    ASSERT_EQ(recorded[1].size(), 3U);
    EXPECT_EQ(recorded[1][0].strName, "Bea, the equal");
    EXPECT_GE(recorded[30].back().lngHours, 1);
    EXPECT_EQ(GetHighestRecordedLevel(played.game), 30);
}

} // namespace
} // namespace cellora
