#pragma once

#include <filesystem>

#include "tests/soak/board_moves.h"

namespace cellora {

/// What a player does with files, and between two runs of the program.
class FileMoves : public BoardMoves {
protected:
    using BoardMoves::BoardMoves;

    std::string DrawFile() {
        return run_.folder.Path(Text(Chance(50) ? "games/" : "", "game-", Draw(1, 3), ".clp"));
    }

    /// A file dialog has been left with this file.
    void TakePicked(const std::string& strFile) {
        model_.strFile = strFile;
        strFolder_ = std::filesystem::path(strFile).parent_path().string();
    }

    /// The game has just been written.
    void TakeSaved() {
        model_.blnChanged = false;
        saved_[model_.strFile] = model_.game;
        ExpectLines(ReadLines(model_.strFile), model_.game.Write(), "saved game");
    }

    /// Where the game has changes a question is asked, and asked only there. What is returned must
    /// be called once it is answered.
    std::function<void()> ExpectSaveQuestion(QMessageBox::StandardButton answer) {
        if (!model_.blnChanged)
            return [] {};
        ThenPress("Save Game?", answer);
        if (answer != QMessageBox::Yes)
            return [] {};
        if (!model_.strFile.empty())
            return [this] { TakeSaved(); };
        const std::string strFile = DrawFile();
        ThenPickFile(strFile);
        return [this, strFile] {
            TakePicked(strFile);
            TakeSaved();
        };
    }

    /// Solution and clues are chance; a solution has each digit once wherever the rules say so.
    void TakePuzzle(int intLevel) {
        model::Cells cells;
        std::set<std::string> places;
        int intClues = 0;
        for (int i = 1; i <= 81; ++i) {
            model::Cell& cell = cells[i];
            cell.intSolution = run_.GetSolution(i);
            cell.blnGiven = run_.game().cells[i].blnGiven;
            intClues += cell.blnGiven ? 1 : 0;
            const int intRow = (i - 1) / 9;
            const int intColumn = (i - 1) % 9;
            places.insert({Text("row ", intRow, ' ', cell.intSolution),
                           Text("column ", intColumn, ' ', cell.intSolution),
                           Text("region ", intRow / 3, intColumn / 3, ' ', cell.intSolution)});
        }
        EXPECT_EQ(places.size(), 3U * 81U) << "no solution";
        EXPECT_EQ(intClues, 50 - intLevel);
        model_.Start(intLevel, cells);
    }

    void GoAway(const std::function<void()>& fnAnswered) {
        Choose("mnuExit");
        fnAnswered();
        EXPECT_FALSE(run_.window().isVisible()) << strMove_;
        model_.stored = model_.view;
    }

    /// The next start offers the game that was left behind.
    void ComeBack() {
        const model::Model left = model_;
        const bool blnRestore = Chance(80);
        model_.Restart();
        ThenPress("Restore Game?", blnRestore ? QMessageBox::Yes : QMessageBox::No);
        Begin();
        if (!blnRestore)
            return;
        const Game& game = run_.game();
        const int intNow = game.lngHours * 3600 + game.lngMinutes * 60 + game.lngSeconds;
        const int intLost = left.game.intSeconds + model_.game.intSeconds - intNow;
        EXPECT_TRUE(intLost >= 0 && intLost < 10) << strMove_ << ": " << intLost << " s lost";
        model::Position kept = left.game;
        kept.intSeconds = intNow;
        model_.Open(kept);
        model_.strFile = left.strFile;
        model_.blnChanged = true;
    }

    void StartGame() {
        const auto fnAnswered = ExpectSaveQuestion(Chance(30) ? QMessageBox::Yes : QMessageBox::No);
        Then([this, fnAnswered](QWidget& dialog) {
            fnAnswered();
            const int intLevel = Draw(1, 30);
            GetControl<QComboBox>(dialog, QStringLiteral("cboDifficulty"))
                .setCurrentIndex(intLevel - 1);
            GetControl<QPushButton>(dialog, QStringLiteral("cmdOK")).click();
            TakePuzzle(intLevel);
        });
        Choose("mnuNew");
        run_.Activate();
    }

    void Save() {
        const bool blnAs = Chance(30);
        const bool blnAsks = blnAs || model_.strFile.empty();
        const std::string strFile = Chance(15) ? "" : DrawFile();
        if (blnAsks)
            ThenPickFile(strFile);
        Choose(blnAs ? "mnuSaveAs" : "mnuSave");
        if (blnAsks && strFile.empty())
            return;
        if (blnAsks)
            TakePicked(strFile);
        TakeSaved();
    }

    void Open() {
        if (saved_.empty())
            return Save();
        const auto fnAnswered = ExpectSaveQuestion(Chance(30) ? QMessageBox::Yes : QMessageBox::No);
        auto chosen = std::next(saved_.begin(), Draw(0, static_cast<int>(saved_.size()) - 1));
        const bool blnCancels = Chance(10);
        const bool blnMissing = !blnCancels && Chance(10);
        Then([&](QWidget& dialog) {
            fnAnswered();
            // Somebody else may have played it for just under a minute or an hour.
            if (Chance(40)) {
                const int intUnit = Chance(50) ? 60 : 3600;
                chosen->second.intSeconds = intUnit * Draw(1, 101) - Draw(1, 59);
                WriteLines(chosen->first, chosen->second.Write());
            }
            PickFile(dialog, blnCancels   ? ""
                             : blnMissing ? run_.folder.Path("missing.clp")
                                          : chosen->first);
        });
        if (blnMissing)
            ThenPress("File Doesn't Exist", QMessageBox::Ok);
        Choose("mnuOpen");
        if (blnCancels || blnMissing)
            return;
        TakePicked(chosen->first);
        model_.Open(chosen->second);
    }

    void Leave() {
        constexpr QMessageBox::StandardButton aAnswers[] = {QMessageBox::Yes, QMessageBox::No,
                                                            QMessageBox::Cancel};
        const auto answer = aAnswers[Draw(0, 2)];
        if (model_.blnChanged && answer == QMessageBox::Cancel) {
            ThenPress("Save Game?", answer);
            return Choose("mnuExit");
        }
        GoAway(ExpectSaveQuestion(answer));
        model_.Restart();
        Begin();
    }

    void GoAway() {
        GoAway(ExpectSaveQuestion(QMessageBox::No));
        model_.Restart();
        run_.program.reset();
    }

    void Kill() {
        if (Chance(70))
            Chance(50) ? EditNotes() : Chance(50) ? TypeWrongDigit() : ClickAnywhere();
        // A change is kept a second after it was made, the clock at every tenth second.
        PassTime(Timer::tmrRecovery, 1);
        PassTime(Timer::tmr, Draw(0, 12));
        ComeBack();
    }
};

} // namespace cellora
