#pragma once

#include "tests/soak/file_moves.h"

namespace cellora {

/// Plays whole games through the main window as chance has it. A model of the rules plays beside
/// it: after every move the window, and with every write the file, must be what the model tells. A
/// difference fails the test and ends the game. The program is started where it does not run, and
/// left, killed and started again on the way.
class RandomPlayer final : public FileMoves {
public:
    RandomPlayer(RunningProgram& run, std::uint64_t lngSeed) : FileMoves(run, lngSeed) {}

    /// One game more; then leaves the program and takes it apart if told so. Returns how many moves
    /// were made in all.
    int PlayGame(bool blnLeave) {
        if (run_.program == nullptr)
            Begin();
        Make({"start a game", 0, &RandomPlayer::StartGame});
        // Some games are left behind.
        const bool blnToTheEnd = Chance(85);
        PlayMoves(blnToTheEnd ? 250 : Draw(5, 60));
        if (blnToTheEnd)
            Finish();
        if (blnLeave && !testing::Test::HasFailure())
            GoAway();
        return intMoves_;
    }

private:
    struct Move {
        const char* strName;
        int intWeight; ///< of a thousand
        void (RandomPlayer::*fnMake)();
    };

    bool IsInPlay() const { return !testing::Test::HasFailure() && model_.IsInPlay(); }

    void Make(const Move& move) {
        if (testing::Test::HasFailure())
            return;
        strMove_ = Text("after move ", ++intMoves_, ", ", move.strName);
        (this->*move.fnMake)();
        QCoreApplication::processEvents();
        EXPECT_TRUE(steps_.empty()) << strMove_ << ": a window did not open";
        Compare();
        if (intMoves_ % 25 == 0)
            CheckPaint();
    }

    const Move& DrawMove() {
        static constexpr Move aMoves[] = {
            {"type a right digit", 195, &RandomPlayer::TypeSolution},
            {"click a right digit", 190, &RandomPlayer::ClickSolution},
            {"type a wrong digit", 35, &RandomPlayer::TypeWrongDigit},
            {"type any digit anywhere", 35, &RandomPlayer::TypeAnywhere},
            {"click any cell", 40, &RandomPlayer::ClickAnywhere},
            {"edit notes", 70, &RandomPlayer::EditNotes},
            {"use a number", 60, &RandomPlayer::UseNumber},
            {"pass time", 100, &RandomPlayer::PassTimeAtRandom},
            {"toggle the view", 60, &RandomPlayer::ToggleView},
            {"look at a window", 25, &RandomPlayer::LookAtWindow},
            {"solve one cell", 20, &RandomPlayer::SolveOneCell},
            {"save", 20, &RandomPlayer::Save},
            {"open", 12, &RandomPlayer::Open},
            {"leave the program", 3, &RandomPlayer::Leave},
            {"kill the program", 10, &RandomPlayer::Kill},
        };
        static constexpr Move other = {"press a key", 0, &RandomPlayer::PressKey};
        int intDrawn = Draw(1, 1000);
        for (const Move& move : aMoves)
            if ((intDrawn -= move.intWeight) <= 0)
                return move;
        return other;
    }

    void PlayMoves(int intMost) {
        for (; IsInPlay() && model_.game.intRemaining > 3 && intMost > 0; --intMost)
            Make(DrawMove());
    }

    void Finish() {
        while (IsInPlay() && model_.game.intRemaining > 1)
            Make({"fill a cell", 0, &RandomPlayer::TypeSolution});
        const int intMistakes = Chance(60) ? 0 : Draw(1, 12);
        while (IsInPlay() && model_.game.CountWrong() > intMistakes)
            Make({"correct a cell", 0, &RandomPlayer::CorrectCell});
        for (int n = model_.game.CountWrong();
             IsInPlay() && n < intMistakes && model_.game.intSolvedByYou > 0; ++n)
            Make({"spoil a cell", 0, &RandomPlayer::SpoilCell});
        if (IsInPlay())
            Make({"end the game", 0, &RandomPlayer::EndGame});
        PlayOn();
        if (model_.phase == model::Phase::Finished)
            Make({"save the finished game", 0, &RandomPlayer::Save});
        if (!saved_.empty() && Chance(30))
            Make({"open", 0, &RandomPlayer::Open});
        PlayOn();
        CheckPaint();
    }

    /// What a finished board still allows.
    void PlayOn() {
        for (int intTimes = Draw(0, 3); intTimes > 0; --intTimes)
            Make({"switch the view", 0, &RandomPlayer::SwitchSolutionView});
        if (model_.phase == model::Phase::Finished && Chance(50))
            Make({"try the finished board", 0, &RandomPlayer::TryFinishedBoard});
    }

    int intMoves_ = 0;
};

} // namespace cellora
