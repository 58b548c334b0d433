#include <array>

#include <QCheckBox>
#include <QFileDialog>
#include <QLineEdit>

#include "tests/soak/random_player.h"

namespace cellora {

namespace {

constexpr int intSavedGames = 4;

void PressEscape(QWidget& window) {
    QTest::keyClick(&window, Qt::Key_Escape);
}

} // namespace

void RandomPlayer::ToggleView() {
    constexpr std::array aEntries = {"mnuToolbar", "mnuNumberSelector", "mnuStatistics",
                                     "mnuCellErrors"};
    const char* const strEntry = aEntries[static_cast<std::size_t>(Draw(0, 3))];
    const bool blnBefore = run_.IsTicked(strEntry);
    run_.Choose(strEntry);
    EXPECT_NE(run_.IsTicked(strEntry), blnBefore) << strEntry;
}

void RandomPlayer::ChangeWindowMode() {
    run_.Choose(run_.IsTicked("mnuNormal") ? "mnuFitWindow" : "mnuNormal");
}

void RandomPlayer::Pause() {
    const int intMinutes = run_.game().lngMinutes;
    run_.modal.Then([this](QWidget& dialog) {
        Check("the pause window opened");
        if (Chance(30))
            CheckPaint("the pause window opened");
        Chance(50) ? ClickControl(dialog, "cmdContinue") : PressEscape(dialog);
    });
    run_.Choose("mnuPause");
    EXPECT_EQ(run_.game().lngMinutes, intMinutes);
}

void RandomPlayer::SolveOneCell() {
    const int intEmpty = CountEmptyCells();
    const bool blnYes = Chance(70);
    run_.modal.ThenPress("Solve One Cell?", blnYes ? QMessageBox::Yes : QMessageBox::No);
    run_.Choose("mnuSolveCell");
    EXPECT_EQ(CountEmptyCells(), blnYes ? intEmpty - 1 : intEmpty);
}

void RandomPlayer::ExpectFile(const std::string& strFile) {
    run_.modal.Then([strPath = run_.folder.Path(strFile)](QWidget& dialog) {
        GetControl<QLineEdit>(dialog, "fileNameEdit").setText(QString::fromStdString(strPath));
        QTest::keyClick(&GetControl<QLineEdit>(dialog, "fileNameEdit"), Qt::Key_Return);
    });
}

void RandomPlayer::NoteSavedGame() {
    const std::filesystem::path file(run_.game().strGameFile);
    saved_[file.filename().string()] = TakeGame(run_.game());
    EXPECT_FALSE(run_.game().blnGameChanged);
}

void RandomPlayer::Save() {
    if (run_.game().strGameFile.empty())
        ExpectFile("game-" + std::to_string(Draw(1, intSavedGames)) + ".clp");
    run_.Choose("mnuSave");
    NoteSavedGame();
}

void RandomPlayer::SaveAs() {
    ExpectFile("game-" + std::to_string(Draw(1, intSavedGames)) + ".clp");
    run_.Choose("mnuSaveAs");
    NoteSavedGame();
}

void RandomPlayer::ExpectSaveQuestion() {
    if (!run_.game().blnGameChanged)
        return;
    const bool blnYes = Chance(20);
    run_.modal.ThenPress("Save Game?", blnYes ? QMessageBox::Yes : QMessageBox::No);
    if (!blnYes)
        return;
    std::string strFile = std::filesystem::path(run_.game().strGameFile).filename().string();
    if (strFile.empty()) {
        strFile = "game-" + std::to_string(Draw(1, intSavedGames)) + ".clp";
        ExpectFile(strFile);
    }
    saved_[strFile] = TakeGame(run_.game());
}

void RandomPlayer::Open() {
    ExpectSaveQuestion();
    if (saved_.empty()) {
        run_.modal.Then(PressEscape);
        run_.Choose("mnuOpen");
        return;
    }
    auto chosen = saved_.begin();
    std::advance(chosen, Draw(0, static_cast<int>(saved_.size()) - 1));
    ExpectFile(chosen->first);
    run_.Choose("mnuOpen");
    CheckOpenedGame(chosen->first);
}

void RandomPlayer::CheckOpenedGame(const std::string& strFile) {
    const SavedGame opened = TakeGame(run_.game());
    const SavedGame& written = saved_.at(strFile);
    EXPECT_EQ(run_.game().strGameFile, run_.folder.Path(strFile));
    EXPECT_EQ(opened.strLevel, written.strLevel);
    EXPECT_EQ(opened.lngSeconds, written.lngSeconds);
    EXPECT_EQ(opened.lngMinutes, written.lngMinutes);
    if (!run_.game().picGrid.blnEnabled)
        return; // a finished game opens with its mistakes in view
    EXPECT_TRUE(opened.cells == written.cells) << strFile;
}

void RandomPlayer::OpenDamaged() {
    run_.folder.WriteBytes("damaged.clp", "\"Level 1\"\r\n41\r\n");
    ExpectSaveQuestion();
    ExpectFile("damaged.clp");
    run_.modal.ThenPress("Can't Open File", QMessageBox::Ok);
    run_.Choose("mnuOpen");
}

void RandomPlayer::CancelOpen() {
    ExpectSaveQuestion();
    run_.modal.Then(PressEscape);
    run_.Choose("mnuOpen");
}

void RandomPlayer::LookAtWindow() {
    constexpr std::array aEntries = {"mnuTopTen", "mnuContents", "mnuAbout"};
    run_.modal.Then([](QWidget& dialog) { dialog.close(); });
    run_.Choose(aEntries[static_cast<std::size_t>(Draw(0, 2))]);
}

void RandomPlayer::ChangeOptions() {
    run_.modal.Then([this](QWidget& dialog) {
        GetControl<QCheckBox>(dialog, "chkCursor").click();
        ClickControl(dialog, Chance(70) ? "cmdOK" : "cmdCancel");
    });
    run_.Choose("mnuOptions");
}

void RandomPlayer::StartGame() {
    ExpectSaveQuestion();
    run_.ChooseNewGame(Draw(1, intLevelCount));
    EXPECT_TRUE(IsInPlay());
    EXPECT_EQ(run_.game().intHighlight, 0);
}

void RandomPlayer::FillGrid() {
    const bool blnFaultless = Chance(50);
    if (blnFaultless) {
        for (int i = 1; i <= intCellCount; ++i)
            if (run_.game().cells[i].IsIncorrect())
                Enter(i, run_.GetSolution(i));
    }
    while (CountEmptyCells() > 1 && IsInPlay())
        Make("fill a cell", &RandomPlayer::TypeSolution);
    FillLastCell(!blnFaultless && Chance(50));
}

void RandomPlayer::FillLastCell(bool blnWrong) {
    run_.modal.Then([this](QWidget& window) {
        Check("the game's last window opened");
        auto* const txtName = window.findChild<QLineEdit*>(QStringLiteral("txtName"));
        if (txtName == nullptr) {
            window.close();
            return;
        }
        QTest::keyClicks(txtName, QStringLiteral("Player %1").arg(Draw(1, 99)));
        ClickControl(window, Chance(80) ? "cmdOK" : "cmdCancel");
    });
    const int intCell = DrawEmptyCell();
    Enter(intCell, blnWrong ? run_.GetWrongDigit(intCell) : run_.GetSolution(intCell));
    EXPECT_FALSE(run_.grid().isEnabled());
    EXPECT_FALSE(run_.program.desktop().IsTimerEnabled(Timer::tmr));
}

void RandomPlayer::SolvePuzzle() {
    run_.modal.ThenPress("Solve Puzzle?", QMessageBox::Yes);
    run_.Choose("mnuSolve");
    EXPECT_FALSE(run_.grid().isEnabled());
}

void RandomPlayer::SwitchSolutionView() {
    if (!run_.IsShown("cmdFinished"))
        return;
    ClickControl(run_.window(), "cmdFinished");
}

} // namespace cellora
