#include "tests/soak/random_player.h"

#include <algorithm>

namespace cellora {

namespace {

constexpr int intMostMoves = 250;
constexpr int intMovesPerPaintCheck = 25;

void PressEscape(QWidget& window) {
    QTest::keyClick(&window, Qt::Key_Escape);
}

} // namespace

RandomPlayer::RandomPlayer(RunningProgram& run, std::uint64_t lngSeed)
    : run_(run), check_(run), random_(lngSeed) {}

const std::vector<RandomPlayer::WeightedMove>& RandomPlayer::GetMoves() {
    static const std::vector<WeightedMove> aMoves = {
        {"type a right digit", 200, &RandomPlayer::TypeSolution},
        {"click a right digit", 200, &RandomPlayer::ClickSolution},
        {"type a wrong digit", 40, &RandomPlayer::TypeWrongDigit},
        {"click any cell", 40, &RandomPlayer::ClickAnyCell},
        {"clear a cell", 30, &RandomPlayer::ClearCell},
        {"move the cursor", 60, &RandomPlayer::MoveCursor},
        {"edit notes", 80, &RandomPlayer::EditNotes},
        {"select a number", 40, &RandomPlayer::SelectNumber},
        {"highlight", 25, &RandomPlayer::Highlight},
        {"pass time", 60, &RandomPlayer::PassTime},
        {"idle", 30, &RandomPlayer::IdleCursor},
        {"toggle the view", 40, &RandomPlayer::ToggleView},
        {"change the window mode", 8, &RandomPlayer::ChangeWindowMode},
        {"pause", 12, &RandomPlayer::Pause},
        {"solve one cell", 15, &RandomPlayer::SolveOneCell},
        {"save", 10, &RandomPlayer::Save},
        {"save as", 5, &RandomPlayer::SaveAs},
        {"open", 7, &RandomPlayer::Open},
        {"open a damaged file", 2, &RandomPlayer::OpenDamaged},
        {"open nothing", 2, &RandomPlayer::CancelOpen},
        {"look at a window", 6, &RandomPlayer::LookAtWindow},
        {"change the options", 4, &RandomPlayer::ChangeOptions},
    };
    return aMoves;
}

void RandomPlayer::PlayGame() {
    Make("start a game", &RandomPlayer::StartGame);
    const bool blnLeft = Chance(15);
    const int intLastMove = blnLeft ? Draw(5, 60) : intMostMoves;
    for (int i = 0; i < intLastMove && IsInPlay() && CountEmptyCells() > 3; ++i)
        MakeRandomMove();
    if (!IsInPlay() || blnLeft)
        return;
    if (Chance(15))
        Make("solve the puzzle", &RandomPlayer::SolvePuzzle);
    else
        Make("fill the grid", &RandomPlayer::FillGrid);
    CheckPaint("the end");
    for (int i = 0; i < 4; ++i)
        Make("switch the view", &RandomPlayer::SwitchSolutionView);
    Make("click a finished board", &RandomPlayer::ClickAnyCell);
    Make("save the finished game", &RandomPlayer::Save);
    if (Chance(30))
        Make("open after the end", &RandomPlayer::Open);
    CheckPaint("after the end");
}

void RandomPlayer::MakeRandomMove() {
    static const int intAllWeights = [] {
        int intSum = 0;
        for (const WeightedMove& move : GetMoves())
            intSum += move.intWeight;
        return intSum;
    }();
    int intDrawn = Draw(1, intAllWeights);
    for (const WeightedMove& move : GetMoves()) {
        intDrawn -= move.intWeight;
        if (intDrawn > 0)
            continue;
        Make(move.strName, move.fnMove);
        if (intMoves_ % intMovesPerPaintCheck == 0)
            CheckPaint(move.strName);
        return;
    }
}

void RandomPlayer::Make(const char* strName, Move fnMove) {
    if (testing::Test::HasFailure())
        return;
    (this->*fnMove)();
    ++intMoves_;
    QCoreApplication::processEvents();
    EXPECT_TRUE(run_.modal.IsDone()) << strName << ": a window did not open";
    Check(strName);
}

void RandomPlayer::Check(const char* strMove) {
    EXPECT_EQ(check_.FindDifferences(), "") << "after move " << intMoves_ << ", " << strMove;
}

void RandomPlayer::CheckPaint(const char* strMove) {
    EXPECT_EQ(check_.FindPaintedDifferences(), "") << "after move " << intMoves_ << ", " << strMove;
}

int RandomPlayer::Draw(int intLow, int intHigh) {
    return std::uniform_int_distribution(intLow, intHigh)(random_);
}

bool RandomPlayer::IsInPlay() {
    return !testing::Test::HasFailure() && run_.game().picGrid.blnEnabled;
}

int RandomPlayer::CountEmptyCells() {
    return static_cast<int>(std::ranges::count_if(run_.game().cells, [](const Cell& cell) {
        return !cell.blnGiven && cell.strEntry.empty();
    }));
}

int RandomPlayer::DrawEmptyCell() {
    int intCell = Draw(1, intCellCount);
    while (run_.game().cells[intCell].blnGiven || !run_.game().cells[intCell].strEntry.empty())
        intCell = intCell % intCellCount + 1;
    return intCell;
}

void RandomPlayer::Enter(int intCell, int intDigit) {
    run_.MoveTo(intCell);
    run_.Type(intDigit, Chance(50) ? Qt::KeypadModifier : Qt::NoModifier);
    EXPECT_EQ(run_.game().cells[intCell].strEntry, std::to_string(intDigit));
}

void RandomPlayer::TypeSolution() {
    const int intCell = DrawEmptyCell();
    Enter(intCell, run_.GetSolution(intCell));
}

void RandomPlayer::ClickSolution() {
    if (!run_.IsShown("picButtons"))
        return TypeSolution();
    const int intCell = DrawEmptyCell();
    run_.ClickNumber(run_.GetSolution(intCell));
    run_.ClickCell(intCell);
    EXPECT_EQ(run_.game().cells[intCell].strEntry, run_.game().cells[intCell].strSolution);
}

void RandomPlayer::TypeWrongDigit() {
    const int intCell = DrawEmptyCell();
    Enter(intCell, run_.GetWrongDigit(intCell));
}

void RandomPlayer::ClickAnyCell() {
    run_.ClickCell(Draw(1, intCellCount));
}

void RandomPlayer::ClearCell() {
    constexpr Qt::Key aKeys[] = {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Space};
    run_.MoveTo(Draw(1, intCellCount));
    run_.Press(aKeys[Draw(0, 2)]);
}

void RandomPlayer::MoveCursor() {
    constexpr Qt::Key aKeys[] = {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_A};
    run_.Press(aKeys[Draw(0, 4)]);
}

void RandomPlayer::EditNotes() {
    run_.ClickCell(DrawEmptyCell(), Qt::RightButton);
    QMenu& menu = run_.WaitForPopup("mnuRightClick");
    if (Chance(10)) {
        QTest::keyClick(&menu, Qt::Key_End);
        QTest::keyClick(&menu, Qt::Key_Return);
    } else if (Chance(10)) {
        QTest::mouseClick(&menu, Qt::LeftButton, {},
                          menu.actionGeometry(menu.actions().constFirst()).center());
    } else {
        QTest::keyClick(&menu, static_cast<Qt::Key>(Qt::Key_0 + Draw(1, 9)));
    }
    if (menu.isVisible()) // the digit was not offered
        PressEscape(menu);
}

void RandomPlayer::SelectNumber() {
    if (run_.IsShown("picButtons"))
        run_.ClickNumber(Draw(1, intEraser));
}

void RandomPlayer::Highlight() {
    if (!run_.IsShown("picButtons"))
        return;
    run_.ClickNumber(Draw(1, intEraser), Qt::RightButton);
    QMenu& menu = run_.WaitForPopup("mnuButton");
    QTest::mouseClick(&menu, Qt::LeftButton, {},
                      menu.actionGeometry(menu.actions().constFirst()).center());
    if (menu.isVisible()) // nothing can be highlighted with the eraser
        PressEscape(menu);
}

void RandomPlayer::PassTime() {
    for (int i = Draw(1, 5); i > 0; --i)
        emit run_.program.desktop().tick(Timer::tmr);
    if (Chance(5))
        emit run_.program.desktop().tick(Timer::tmrRecovery);
}

void RandomPlayer::IdleCursor() {
    emit run_.program.desktop().tick(Timer::tmrCellWait);
    if (!run_.program.desktop().IsTimerEnabled(Timer::tmrCell))
        return;
    for (int i = Draw(1, 5); i > 0; --i)
        emit run_.program.desktop().tick(Timer::tmrCell);
}

} // namespace cellora
