#include "ui/board_accessible.h"

#include <QAccessible>
#include <QLabel>
#include <QToolButton>

#include <gtest/gtest.h>

#include "tests/support/running_program.h"
#include "tests/support/scripted_desktop.h"
#include "ui/link_label.h"
#include "ui/modal_windows.h"

namespace cellora {

namespace {

QString GetName(QAccessibleInterface* interface) {
    return interface != nullptr ? interface->text(QAccessible::Name) : QString();
}

/// What is told of the board, as "name 41" or "focus 42".
class Listener final {
public:
    void Hear(const QAccessibleEvent& event) {
        static const std::map<QAccessible::Event, std::string> names = {
            {QAccessible::NameChanged, "name"},
            {QAccessible::Selection, "selection"},
            {QAccessible::Focus, "focus"}};
        told_.push_back(names.at(event.type()) + ' ' + std::to_string(event.child() + 1));
    }

    /// All since the last call.
    std::vector<std::string> Take() { return std::exchange(told_, {}); }

private:
    std::vector<std::string> told_;
};

TEST(CellName, SaysWhatThePlayerSees) {
    ScriptedDesktop desktop;
    Game game{desktop};
    Cell& cell = game.cells[16];
    cell.strSolution = "5";
    EXPECT_EQ(GetCellName(game, 16).toStdString(), "Row 2, column 7: empty");
    cell.strNotes = "3 5 1 ";
    EXPECT_EQ(GetCellName(game, 16).toStdString(), "Row 2, column 7: empty, notes 3 5 1");
    cell.strEntry = "4";
    cell.wrongMark.blnOpaque = true;
    EXPECT_EQ(GetCellName(game, 16).toStdString(), "Row 2, column 7: 4, incorrect, notes 3 5 1");
    game.blnPaused = true;
    EXPECT_EQ(GetCellName(game, 16).toStdString(), "Row 2, column 7: hidden");
    game.blnPaused = false;
    cell = Cell{};
    cell.strSolution = "5";
    cell.blnGiven = true;
    EXPECT_EQ(GetCellName(game, 16).toStdString(), "Row 2, column 7: given 5");
}

TEST(Accessibility, TheBoardIsATableOfCells) {
    RunningProgram run;
    run.StartGame();
    QAccessibleInterface* const grid = QAccessible::queryAccessibleInterface(&run.grid());
    ASSERT_TRUE(grid);
    EXPECT_EQ(grid->role(), QAccessible::Table);
    EXPECT_EQ(GetName(grid), QLatin1String("Grid"));
    QAccessibleTableInterface* const table = grid->tableInterface();
    ASSERT_TRUE(table);
    EXPECT_EQ(table->rowCount(), 9);
    EXPECT_EQ(table->columnCount(), 9);
    EXPECT_EQ(grid->childCount(), 81);
    EXPECT_EQ(table->cellAt(9, 0), nullptr);

    QAccessibleInterface* const cell = table->cellAt(4, 5);
    ASSERT_TRUE(cell && cell->tableCellInterface());
    EXPECT_EQ(cell->role(), QAccessible::Cell);
    EXPECT_EQ(cell->parent(), grid);
    EXPECT_EQ(grid->child(41), cell);
    EXPECT_EQ(grid->indexOfChild(cell), 41);
    EXPECT_EQ(cell->tableCellInterface()->rowIndex(), 4);
    EXPECT_EQ(cell->tableCellInterface()->columnIndex(), 5);
    const QPoint center = cell->rect().center();
    EXPECT_EQ(grid->childAt(center.x(), center.y()), cell);
    EXPECT_EQ(center, run.grid().mapToGlobal(run.grid().GetCellRect(42).center()));

    // The cursor's cell, which is the one in the centre, is the selected and the focused one.
    EXPECT_FALSE(cell->state().selected || cell->state().focused);
    run.Press(Qt::Key_Right);
    EXPECT_TRUE(cell->state().selected && cell->state().focused);
    EXPECT_EQ(table->selectedCells(), QList<QAccessibleInterface*>{cell});
    EXPECT_EQ(grid->focusChild(), cell);
}

TEST(Accessibility, ChangesAreTold) {
    RunningProgram run;
    run.StartGame();
    const int intCell = run.FindEmptyCell();
    run.MoveTo(intCell);
    Listener listener;
    BoardAnnouncer announcer(run.grid(), [&](QAccessibleEvent* event) { listener.Hear(*event); });
    const auto TakeTold = [&] {
        announcer.Announce();
        return listener.Take();
    };
    EXPECT_EQ(TakeTold().size(), 81U + 2) << "every cell for the first time, and the cursor";

    run.Type(run.GetWrongDigit(intCell));
    EXPECT_EQ(TakeTold(), std::vector{"name " + std::to_string(intCell)});
    QAccessibleInterface* const cell =
        QAccessible::queryAccessibleInterface(&run.grid())->child(intCell - 1);
    EXPECT_TRUE(GetName(cell).endsWith(QLatin1String(", incorrect")));

    run.MoveTo(80);
    TakeTold();
    run.Press(Qt::Key_Right);
    EXPECT_EQ(TakeTold(), (std::vector<std::string>{"selection 81", "focus 81"}));
    run.Press(Qt::Key_A);
    EXPECT_TRUE(TakeTold().empty());
}

TEST(Accessibility, NumberButtonsAreCheckableAndTellWhenTheyAreComplete) {
    RunningProgram run;
    run.StartGame();
    const auto GetButton = [&run](int n) {
        return QAccessible::queryAccessibleInterface(&run.button(n));
    };
    for (int n = 1; n <= intEraser; ++n) {
        EXPECT_EQ(GetName(GetButton(n)),
                  n == intEraser ? QStringLiteral("Eraser") : QString::number(n));
        EXPECT_TRUE(GetButton(n)->state().checkable);
        EXPECT_EQ(GetButton(n)->state().checked, n == 1);
    }
    // Twice, because the second time it would uncheck a button that keeps its own state.
    for (int intRound = 0; intRound < 2; ++intRound) {
        GetButton(4)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        EXPECT_TRUE(GetButton(4)->state().checked);
        EXPECT_FALSE(GetButton(1)->state().checked);
        EXPECT_EQ(run.game().intSelectedNumber, 4);
    }

    const int intLast = run.FindEmptyCell();
    const int intDigit = run.GetSolution(intLast);
    run.FillAllBut(intLast);
    EXPECT_NE(GetButton(intDigit)->text(QAccessible::Description), QLatin1String("complete"));
    EXPECT_EQ(GetButton(intDigit % 9 + 1)->text(QAccessible::Description),
              QLatin1String("complete"));
    EXPECT_NE(GetButton(intEraser)->text(QAccessible::Description), QLatin1String("complete"));
}

TEST(Accessibility, ValuesAndToolbarButtonsHaveNames) {
    RunningProgram run;
    run.StartGame(23);
    for (int i = 0; i < 7; ++i)
        emit run.program.desktop().tick(Timer::tmr);
    const auto GetLabelName = [&run](const char* strName) {
        return GetName(QAccessible::queryAccessibleInterface(&run.Get<QLabel>(strName)))
            .toStdString();
    };
    EXPECT_EQ(GetLabelName("lblTime"), "Game time: 00:00:07");
    EXPECT_EQ(GetLabelName("lblLevel"), "Difficulty: Level 23");
    EXPECT_EQ(GetLabelName("lblTotalCells"), "Total cells: 81");
    EXPECT_EQ(GetLabelName("lblVisibleCells"), "Pre-solved cells: " + run.game().lblVisibleCells);
    EXPECT_EQ(GetLabelName("lblSolvedByYou"), "Solved by you: 0");
    EXPECT_EQ(GetLabelName("lblCellsToSolve"), "Cells remaining: " + run.game().lblCellsToSolve);
    EXPECT_EQ(GetLabelName("lblIncorrectCells"), "Incorrect cells: 0");

    int intNamed = 0;
    for (QToolButton* const button : run.Get<QWidget>("tbrMain").findChildren<QToolButton*>()) {
        if (!button->isVisible())
            continue;
        ++intNamed;
        EXPECT_EQ(GetName(QAccessible::queryAccessibleInterface(button)), button->toolTip());
    }
    EXPECT_EQ(intNamed, 6);
}

TEST(Accessibility, NothingButTheBoardHasTheFocusOfTheBoard) {
    RunningProgram run;
    run.StartGame();
    for (QWidget* const widget : run.window().findChildren<QWidget*>()) {
        QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(widget);
        const bool blnBoard = widget == &run.grid() || widget == run.grid().viewport();
        EXPECT_FALSE(interface->state().focused && !blnBoard) << widget->objectName().toStdString();
    }
    // A click beside the board takes the keyboard back to it.
    run.button(1).setFocus(Qt::TabFocusReason);
    QTest::mouseClick(&run.Get<QWidget>("picStatistics"), Qt::LeftButton);
    EXPECT_TRUE(run.grid().hasFocus());
}

TEST(Accessibility, AGameIsPlayedByTheActionsOfItsCells) {
    RunningProgram run;
    run.StartGame();
    const int intCell = run.FindEmptyCell();
    QAccessibleInterface* const grid = QAccessible::queryAccessibleInterface(&run.grid());
    const auto Do = [&](int i, const QString& strAction) {
        grid->child(i - 1)->actionInterface()->doAction(strAction);
        QCoreApplication::processEvents();
    };
    run.button(1).setFocus(Qt::TabFocusReason);
    Do(intCell, QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(run.game().intCursorCell, intCell);
    EXPECT_EQ(run.game().cells[intCell].strEntry, "");
    EXPECT_TRUE(run.grid().hasFocus());
    Do(intCell, QAccessibleActionInterface::pressAction());
    EXPECT_EQ(run.game().cells[intCell].strEntry, "1");

    Do(intCell, QAccessibleActionInterface::showMenuAction());
    QMenu& menu = run.WaitForPopup("mnuRightClick");
    EXPECT_EQ(GetName(QAccessible::queryAccessibleInterface(&menu)), QLatin1String("Notes"));
    Do(80, QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(run.game().intCursorCell, intCell);
    menu.close();

    // Behind a modal window and on a locked board they do nothing.
    run.modal.Then([&](QWidget& dialog) {
        Do(80, QAccessibleActionInterface::setFocusAction());
        dialog.close();
    });
    run.Choose("mnuPause");
    run.grid().setEnabled(false);
    Do(80, QAccessibleActionInterface::pressAction());
    EXPECT_EQ(run.game().intCursorCell, intCell);
}

TEST(Accessibility, ALinkIsALinkAndPanesAreGroups) {
    RunningProgram run;
    run.StartGame();
    for (const char* const strPane : {"picStatistics", "picButtons"}) {
        QAccessibleInterface* const pane =
            QAccessible::queryAccessibleInterface(&run.Get<QWidget>(strPane));
        EXPECT_EQ(pane->role(), QAccessible::Grouping) << strPane;
        EXPECT_FALSE(GetName(pane).isEmpty()) << strPane;
    }

    LinkLabel link(nullptr);
    link.setText(QStringLiteral("here"));
    int intClicks = 0;
    QObject::connect(&link, &LinkLabel::clicked, [&intClicks] { ++intClicks; });
    QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(&link);
    EXPECT_EQ(interface->role(), QAccessible::Link);
    EXPECT_EQ(GetName(interface), QLatin1String("here"));
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(intClicks, 1);
}

TEST(Accessibility, AColorButtonTellsItsColor) {
    RunningProgram run;
    run.Start();
    const auto form = MakeModalWindow(ModalWindow::frmOptions, run.game(), nullptr);
    const auto GetDescription = [&form](const char* strButton) {
        return QAccessible::queryAccessibleInterface(&GetControl<QPushButton>(*form, strButton))
            ->text(QAccessible::Description)
            .toStdString();
    };
    EXPECT_EQ(GetDescription("cmdColor0"), "#ffffff");
    EXPECT_EQ(GetDescription("cmdColor7"), "#ffffc0");
}

} // namespace

} // namespace cellora
