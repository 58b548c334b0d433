#include "flow/recovery.h"

#include <optional>

#include <gtest/gtest.h>

#include "flow/aids.h"
#include "flow/completion.h"
#include "flow/game_file.h"
#include "play/entry.h"
#include "play/notes.h"
#include "played_game.h"
#include "store/modCommon_File.h"

namespace cellora {

namespace {

class RecoveryTest : public testing::Test {
protected:
    /// Starts a game and lets it be kept.
    void StartKeptGame() {
        played.Start(5);
        recovery->Observe(played.game);
        recovery->tmrRecovery_Timer(played.game);
    }

    bool IsKept(const std::string& strName = "recovery.clp") const {
        return FileExists(played.folder.Path(strName));
    }

    PlayedGame played;
    std::optional<Recovery> recovery{std::in_place, played.folder.Path()};
};

TEST_F(RecoveryTest, EveryKindOfChangeIsWrittenASecondLater) {
    Game& game = played.game;
    recovery->Observe(game);
    EXPECT_FALSE(played.desktop.IsRunning(Timer::tmrRecovery)) << "no game, nothing to keep";
    StartKeptGame();
    const int intEmpty = played.FindEmptyCells().front();
    const auto fnChanges = {
        +[](Game& changed) { DoKeyDown(changed, intKeyDigit1); },
        +[](Game& changed) { CandidateAdd(changed, 3); },
        +[](Game& changed) { DoKeyDown(changed, intKeyDelete); },
        +[](Game& changed) { SolveOneCell(changed); },
    };
    for (const auto fnChange : fnChanges) {
        game.intCursorCell = static_cast<std::int16_t>(intEmpty);
        played.desktop.answers = {Answer::Yes};
        fnChange(game);
        recovery->Observe(game);
        EXPECT_TRUE(played.desktop.IsRunning(Timer::tmrRecovery));
        recovery->tmrRecovery_Timer(game);
        EXPECT_FALSE(played.desktop.IsRunning(Timer::tmrRecovery));
        EXPECT_EQ(played.folder.ReadBytes("recovery.clp"), FormatSavedGame(TakeGame(game)));
    }
    recovery->Observe(game);
    EXPECT_FALSE(played.desktop.IsRunning(Timer::tmrRecovery)) << "nothing has changed";
}

TEST_F(RecoveryTest, TheClockIsKeptEveryTenSeconds) {
    StartKeptGame();
    for (int intTick = 1; intTick <= 10; ++intTick) {
        tmr_Timer(played.game);
        EXPECT_TRUE(played.folder.ReadBytes("recovery.clp").starts_with("0\r\n0\r\n0\r\n"));
        recovery->CountTick(played.game);
    }
    EXPECT_TRUE(played.folder.ReadBytes("recovery.clp").starts_with("0\r\n0\r\n10\r\n"));
}

TEST_F(RecoveryTest, AGameLeftBehindComesBackOrIsRemoved) {
    StartKeptGame();
    const std::string strGame = played.folder.ReadBytes("recovery.clp");
    for (const Answer answer : {Answer::Yes, Answer::No}) {
        played.folder.WriteBytes("recovery.clp", strGame);
        recovery.reset(); // a crash says no goodbye
        recovery.emplace(played.folder.Path());
        PlayedGame next;
        next.desktop.answers = {answer};
        recovery->OfferToRestore(next.game);
        ASSERT_EQ(next.desktop.boxes.size(), 1U);
        EXPECT_EQ(next.desktop.boxes[0].strTitle, "Restore Game?");
        EXPECT_EQ(next.desktop.boxes[0].strText,
                  "Cellora was closed before your last game was finished.\r\n\r\n"
                  "Do you want to go on with it?");
        EXPECT_EQ(next.desktop.boxes[0].icon, MessageIcon::Question);
        EXPECT_EQ(next.game.blnGameActive, answer == Answer::Yes);
        EXPECT_EQ(next.game.blnGameChanged, answer == Answer::Yes);
        EXPECT_EQ(next.game.strGameFile, "");
        EXPECT_EQ(IsKept(), answer == Answer::Yes);
        if (answer == Answer::Yes) {
            EXPECT_EQ(FormatSavedGame(TakeGame(next.game)), strGame);
            EXPECT_TRUE(next.desktop.IsRunning(Timer::tmr));
        }
    }
}

TEST_F(RecoveryTest, ADamagedFileIsPutAsideWithoutAQuestion) {
    played.folder.WriteBytes("recovery.clp", "0\r\n0\r\n");
    recovery->OfferToRestore(played.game);
    EXPECT_TRUE(played.desktop.boxes.empty());
    EXPECT_FALSE(IsKept());
    EXPECT_EQ(played.folder.ReadBytes("recovery.clp.damaged"), "0\r\n0\r\n");
}

TEST_F(RecoveryTest, RunningCopiesDoNotTakeEachOthersGames) {
    StartKeptGame();
    std::optional<Recovery> second(std::in_place, played.folder.Path());
    EXPECT_EQ(second->file(), played.folder.Path("recovery-2.clp"));
    PlayedGame other;
    second->OfferToRestore(other.game);
    EXPECT_TRUE(other.desktop.boxes.empty());

    other.Start(1);
    second->Observe(other.game);
    second->tmrRecovery_Timer(other.game);
    second.reset();
    EXPECT_EQ(Recovery(played.folder.Path()).file(), played.folder.Path("recovery-2.clp"))
        << "the game the second copy left behind comes first";
}

TEST_F(RecoveryTest, AnEndLeavesNothing) {
    StartKeptGame();
    played.FillEmptyCells(1);
    DoCellCount(played.game);
    recovery->Observe(played.game);
    EXPECT_FALSE(IsKept()) << "the game is finished";

    StartKeptGame();
    EXPECT_TRUE(IsKept());
    recovery->Remove();
    EXPECT_FALSE(IsKept()) << "the program was closed";
}

} // namespace

} // namespace cellora
