#include "ui/frmMain.h"

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>

#include <gtest/gtest.h>

#include "flow/hall_of_fame.h"
#include "tests/support/clipping.h"
#include "tests/support/running_program.h"

namespace cellora {

namespace {

using PlayTest = RunningProgramTest;

TEST_F(PlayTest, DigitsByMouseAndKeysAreCountedAndMarked) {
    StartGame();
    EXPECT_EQ(GetValue("lblLevel"), QLatin1String("Level 1"));
    EXPECT_EQ(game().intCursorCell, 41);
    EXPECT_TRUE(button(1).isChecked());
    const int intTotal = GetValue("lblCellsToSolve").toInt();
    EXPECT_EQ(GetValue("lblVisibleCells").toInt() + intTotal, 81);

    const int intFirst = FindEmptyCell();
    const int intWrong = GetWrongDigit(intFirst);
    const QColor colorPlain = GetCellColor(intFirst);
    ClickNumber(intWrong);
    ClickCell(intFirst);
    EXPECT_EQ(game().intCursorCell, intFirst);
    EXPECT_TRUE(grid().hasFocus());
    EXPECT_EQ(GetCellColor(intFirst), QColor(Qt::red));
    EXPECT_EQ(GetValue("lblIncorrectCells"), QLatin1String("1"));
    EXPECT_EQ(GetValue("lblSolvedByYou"), QLatin1String("1"));
    EXPECT_EQ(GetValue("lblCellsToSolve").toInt(), intTotal - 1);

    Choose("mnuCellErrors");
    EXPECT_EQ(GetCellColor(intFirst), colorPlain);
    EXPECT_EQ(GetValue("lblIncorrectCells"), QLatin1String("(hidden)"));
    Choose("mnuCellErrors");
    EXPECT_EQ(GetCellColor(intFirst), QColor(Qt::red));

    Type(GetSolution(intFirst));
    EXPECT_EQ(GetCellColor(intFirst), colorPlain);
    EXPECT_TRUE(button(GetSolution(intFirst)).isChecked()) << "a typed digit is selected";
    const int intSecond = FindEmptyCell(intFirst);
    MoveTo(intSecond);
    Type(GetSolution(intSecond), Qt::KeypadModifier);
    EXPECT_EQ(game().cells[intSecond].strEntry, game().cells[intSecond].strSolution);
    EXPECT_EQ(GetValue("lblSolvedByYou"), QLatin1String("2"));
    Press(Qt::Key_Delete);
    EXPECT_TRUE(button(intEraser).isChecked());
    ClickCell(intFirst);
    EXPECT_EQ(GetValue("lblCellsToSolve").toInt(), intTotal);
}

TEST_F(PlayTest, CompleteDigitsShadeTheirButtons) {
    StartGame();
    const int intLast = FindEmptyCell();
    const int intDigit = GetSolution(intLast);
    const auto GrabButton = [this](int n) { return button(n).grab().toImage(); };
    const int intOther = intDigit % 9 + 1;
    ClickNumber(intEraser);
    const QImage plain = GrabButton(intOther);
    FillAllBut(intLast);
    ClickNumber(intEraser);
    EXPECT_NE(GrabButton(intOther), plain);
    EXPECT_FALSE(game().picButton[intDigit].blnShaded);
    // One wrong digit takes the shade from the digit that is missing now.
    int intCell = intLast + 1;
    while (game().cells[intCell].blnGiven || GetSolution(intCell) != intOther)
        ++intCell;
    ClickCell(intCell);
    EXPECT_EQ(GrabButton(intOther), plain);
}

TEST_F(PlayTest, NotesByMouse) {
    StartGame();
    const int intCell = FindEmptyCell();
    ClickNumber(8);
    const auto ChooseNote = [&](const QString& strCaption) {
        ClickCell(intCell, Qt::RightButton);
        QMenu& menu = WaitForPopup("mnuRightClick");
        for (QAction* const action : menu.actions()) {
            if (action->text() == strCaption && action->isVisible()) {
                QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
                return;
            }
        }
        menu.close();
        ADD_FAILURE() << strCaption.toStdString() << " is not offered";
    };
    for (const char* const strCaption : {"3", "5", "8"})
        ChooseNote(QLatin1String(strCaption));
    EXPECT_EQ(game().cells[intCell].strNotes, "3 5 8 ");
    EXPECT_EQ(scene().lblCandidate(intCell).text(), QLatin1String("3 5 8 "));
    ClickCell(intCell, Qt::RightButton);
    QMenu& menu = WaitForPopup("mnuRightClick");
    EXPECT_EQ(menu.actions().first()->text(), QLatin1String("8 - Remove")) << "the quick entry";
    EXPECT_EQ(menu.actions().last()->text(), QLatin1String("Remove All"));
    menu.close();
    ChooseNote(QStringLiteral("5 - Remove"));
    EXPECT_EQ(game().cells[intCell].strNotes, "3 8 ");
    ChooseNote(QStringLiteral("Remove All"));
    EXPECT_EQ(game().cells[intCell].strNotes, "");

    // A clue takes the cursor and no notes.
    int intClue = 1;
    while (!game().cells[intClue].blnGiven)
        ++intClue;
    ClickCell(intClue, Qt::RightButton);
    QTest::qWait(20);
    EXPECT_FALSE(menu.isVisible());
    EXPECT_EQ(game().intCursorCell, intClue);
}

TEST_F(PlayTest, NotesByKeyboard) {
    StartGame();
    const int intCell = FindEmptyCell();
    MoveTo(intCell);
    const auto OpenByMenuKey = [this] {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {1, 1}, grid().mapToGlobal(QPoint()));
        QApplication::sendEvent(grid().viewport(), &event);
    };
    const auto OpenByShiftF10 = [this] { Press(Qt::Key_F10, Qt::ShiftModifier); };
    OpenByMenuKey();
    QMenu& menu = WaitForPopup("mnuRightClick");
    EXPECT_EQ(menu.pos(), grid().mapToGlobal(grid().GetCellRect(intCell).center()));
    QTest::keyClick(&menu, Qt::Key_4);
    EXPECT_FALSE(menu.isVisible());
    OpenByShiftF10();
    WaitForPopup("mnuRightClick");
    QTest::keyClick(&menu, Qt::Key_2, Qt::KeypadModifier);
    EXPECT_EQ(game().cells[intCell].strNotes, "4 2 ");
    OpenByShiftF10();
    WaitForPopup("mnuRightClick");
    QTest::keyClick(&menu, Qt::Key_4);
    EXPECT_EQ(game().cells[intCell].strNotes, "2 ");
    OpenByShiftF10();
    WaitForPopup("mnuRightClick");
    QTest::keyClick(&menu, Qt::Key_Escape);
    EXPECT_FALSE(menu.isVisible());
    EXPECT_EQ(game().cells[intCell].strNotes, "2 ");
    Type(7);
    EXPECT_EQ(game().cells[intCell].strNotes, "");
}

TEST_F(PlayTest, HighlightFollowsItsDigit) {
    StartGame();
    const int intCell = FindEmptyCell();
    const int intDigit = GetSolution(intCell);
    const auto CountRings = [this] {
        int intRings = 0;
        for (int i = 1; i <= intCellCount; ++i)
            intRings += scene().shpHighlight(i).isVisible();
        return intRings;
    };
    const auto ChooseHighlight = [&](int n) {
        ClickNumber(n, Qt::RightButton);
        QMenu& menu = WaitForPopup("mnuButton");
        QTest::mouseClick(&menu, Qt::LeftButton, {},
                          menu.actionGeometry(menu.actions().first()).center());
    };
    ChooseHighlight(intDigit);
    const int intRings = CountRings();
    EXPECT_GT(intRings, 0);
    MoveTo(intCell);
    Type(intDigit);
    EXPECT_EQ(CountRings(), intRings + 1);
    ChooseHighlight(intDigit);
    EXPECT_EQ(CountRings(), 0);

    ClickNumber(intEraser, Qt::RightButton);
    QMenu& menu = WaitForPopup("mnuButton");
    EXPECT_FALSE(menu.actions().first()->isEnabled());
    menu.close();
    // The keyboard reaches the button's menu as well.
    button(intDigit).setFocus();
    QTest::keyClick(&button(intDigit), Qt::Key_F10, Qt::ShiftModifier);
    WaitForPopup("mnuButton").close();
    EXPECT_EQ(game().intSelectedNumber, intDigit);
}

TEST_F(PlayTest, APausedBoardCannotBeRead) {
    StartGame();
    const int intWrong = FindEmptyCell();
    MoveTo(intWrong);
    Type(GetWrongDigit(intWrong));
    emit program.desktop().tick(Timer::tmr);
    // How dark the insides of the cells are, clear of the lines between them.
    const auto GetDarkest = [this] {
        const QImage image = grid().grab().toImage().scaled(449, 449);
        int intDarkest = 255;
        for (int i = 1; i <= intCellCount; ++i) {
            const QRect inside = grid().GetCellRect(i).adjusted(5, 5, -5, -5);
            for (int y = inside.top(); y <= inside.bottom(); ++y) {
                for (int x = inside.left(); x <= inside.right(); ++x)
                    intDarkest = std::min(intDarkest, qGray(image.pixel(x, y)));
            }
        }
        return intDarkest;
    };
    EXPECT_LT(GetDarkest(), 100);
    modal.Then([&](QWidget& dialog) {
        EXPECT_GT(GetDarkest(), 200);
        EXPECT_NE(GetCellColor(intWrong), QColor(Qt::red));
        EXPECT_EQ(Get<QLabel>("lblTime").palette().color(QPalette::WindowText),
                  QColor(232, 235, 238));
        EXPECT_FALSE(IsShown("picButtons"));
        EXPECT_EQ(GetToolbarEnabling(), std::vector(6, false));
        EXPECT_FALSE(program.desktop().IsTimerEnabled(Timer::tmr));
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    QTest::keyClick(&window(), Qt::Key_U, Qt::ControlModifier);
    EXPECT_TRUE(modal.IsDone());
    EXPECT_LT(GetDarkest(), 100);
    EXPECT_EQ(GetCellColor(intWrong), QColor(Qt::red));
    EXPECT_TRUE(IsShown("picButtons"));
    EXPECT_EQ(GetToolbarEnabling(), std::vector(6, true));
    EXPECT_EQ(GetValue("lblTime"), QLatin1String("00:00:01"));
    EXPECT_TRUE(program.desktop().IsTimerEnabled(Timer::tmr));
}

TEST_F(PlayTest, SolveOneCellCostsThirtySeconds) {
    StartGame();
    const int intClues = GetValue("lblVisibleCells").toInt();
    modal.ThenPress("Solve One Cell?", QMessageBox::No);
    Choose("mnuSolveCell");
    EXPECT_EQ(GetValue("lblVisibleCells").toInt(), intClues);
    EXPECT_EQ(game().lngSeconds, 0);
    modal.ThenPress("Solve One Cell?", QMessageBox::Yes);
    Choose("mnuSolveCell");
    const int intCell = game().intCursorCell;
    EXPECT_EQ(GetValue("lblVisibleCells").toInt(), intClues + 1);
    EXPECT_EQ(GetValue("lblTime"), QLatin1String("00:00:30"));
    EXPECT_TRUE(scene().lblSolution(intCell).isVisible());
    EXPECT_TRUE(button(GetSolution(intCell)).isChecked());
    Type(GetWrongDigit(intCell));
    EXPECT_TRUE(game().cells[intCell].strEntry.empty());
}

TEST_F(PlayTest, OneMistakeEndsWithAMessageAndTwoViews) {
    StartGame();
    const int intCell = FindEmptyCell();
    modal.Then([this](QWidget& box) {
        EXPECT_EQ(box.windowTitle(), QLatin1String("Good Effort!"));
        EXPECT_EQ(qobject_cast<QMessageBox*>(&box)->text(),
                  QLatin1String("You have completed the 'Cellora' but you have made 1 mistake.\n\n"
                                "Your time was ") +
                      GetValue("lblTime") + QLatin1Char('.'));
        EXPECT_EQ(GetValue("lblCellsToSolve"), QLatin1String("0")) << "seen behind the box";
        EXPECT_TRUE(IsShown("cmdFinished"));
        box.close();
    });
    FinishWith(intCell, GetWrongDigit(intCell));
    EXPECT_FALSE(grid().isEnabled());
    EXPECT_FALSE(program.desktop().IsTimerEnabled(Timer::tmr));
    for (const char* const strEntry : {"mnuCellErrors", "mnuSolveCell", "mnuSolve", "mnuPause"})
        EXPECT_FALSE(IsEnabled(strEntry)) << strEntry;
    EXPECT_EQ(GetToolbarEnabling(), (std::vector{true, true, true, true, true, false}));
    EXPECT_EQ(DescribeClippedTexts(window()), "");

    auto& cmdFinished = Get<QPushButton>("cmdFinished");
    for (int intRound = 0; intRound < 2; ++intRound) {
        EXPECT_EQ(cmdFinished.text(), QLatin1String("View Solution"));
        EXPECT_EQ(GetCellColor(intCell), QColor(Qt::red));
        EXPECT_TRUE(scene().lblCell(intCell).isVisible());
        ClickControl(window(), "cmdFinished");
        EXPECT_EQ(cmdFinished.text(), QLatin1String("View Mistakes"));
        EXPECT_NE(GetCellColor(intCell), QColor(Qt::red));
        EXPECT_TRUE(scene().lblSolution(intCell).isVisible());
        EXPECT_FALSE(scene().lblCell(intCell).isVisible());
        ClickControl(window(), "cmdFinished");
    }
}

TEST_F(PlayTest, AFaultlessGridLeadsIntoTheTopTen) {
    StartGame(2);
    const int intCell = FindEmptyCell();
    game().lngMinutes = 4;
    modal.Then([](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QLatin1String("Congratulations!"));
        QTest::keyClicks(&GetControl<QLineEdit>(dialog, "txtName"), QStringLiteral("Ada"));
        ClickControl(dialog, "cmdOK");
    });
    FinishWith(intCell, GetSolution(intCell));
    EXPECT_TRUE(modal.IsDone());
    EXPECT_FALSE(IsShown("cmdFinished"));
    EXPECT_FALSE(grid().isEnabled());
    LevelEntries entries;
    ReadHallOfFame(game(), 2, entries);
    EXPECT_EQ(entries[1].strName, "Ada");
    EXPECT_EQ(entries[1].lngMinutes, 4);

    modal.Then([](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QLatin1String("Top Ten"));
        const auto* const list = dialog.findChild<QAbstractItemView*>();
        ASSERT_TRUE(list);
        EXPECT_FALSE(list->model()
                         ->match(list->model()->index(0, 1), Qt::DisplayRole, QStringLiteral("Ada"))
                         .isEmpty());
        dialog.close();
    });
    Choose("mnuTopTen");
}

} // namespace

} // namespace cellora
