#include "ui/frmMain.h"

#include <QMenuBar>
#include <QTabWidget>
#include <QToolBar>

#include <gtest/gtest.h>

#include "tests/support/clipping.h"
#include "tests/support/running_program.h"

namespace cellora {

namespace {

/// "Sa&ve Game [Ctrl+S] (off)" and the like, a line for each entry that can be seen.
std::string DescribeMenu(const QMenu& menu) {
    std::string strText;
    for (const QAction* const action : menu.actions()) {
        if (!action->isVisible())
            continue;
        strText += action->isSeparator() ? "-" : action->text().toStdString();
        if (!action->shortcut().isEmpty())
            strText += " [" + action->shortcut().toString().toStdString() + "]";
        if (action->isCheckable())
            strText += action->isChecked() ? " (ticked)" : " (not ticked)";
        strText += action->isEnabled() || action->isSeparator() ? "\n" : " (off)\n";
    }
    return strText;
}

using MenuTest = RunningProgramTest;

TEST_F(MenuTest, EntriesAndTheirStatesBeforeTheFirstGame) {
    Start();
    QStringList menus;
    for (const QAction* const action : window().menuBar()->actions())
        menus << action->text();
    EXPECT_EQ(menus.join(QLatin1Char(' ')),
              QLatin1String("&File &View Puzzle Scores &Tools &Window &Help"));
    const auto Describe = [this](const char* strMenu) { return DescribeMenu(Get<QMenu>(strMenu)); };
    EXPECT_EQ(Describe("mnuFile"), "&New Game... [Ctrl+N]\n&Open Game... [Ctrl+O]\n-\n"
                                   "Sa&ve Game [Ctrl+S] (off)\nSav&e Game As... (off)\n-\n"
                                   "&Print... [Ctrl+P] (off)\n-\nE&xit\n");
    EXPECT_EQ(Describe("mnuView"),
              "&Toolbar (ticked)\n-\nNumber Selector (ticked) (off)\nStatisti&cs (ticked) (off)\n"
              "-\nCell Errors (ticked) (off)\n");
    EXPECT_EQ(Describe("mnuPuzzle"), "Pause Game [Ctrl+U] (off)\n-\nSolve On&e Cell (off)\n"
                                     "&Solve Puzzle (off)\n");
    EXPECT_EQ(Describe("mnuScores"), "&Top Ten...\n");
    EXPECT_EQ(Describe("mnuTools"), "&Options...\n");
    EXPECT_EQ(Describe("mnuWindow"), "Normal (ticked) (off)\nFit To Grid (not ticked) (off)\n");
    EXPECT_EQ(Describe("mnuHelp"), "&Instructions... [F1]\n-\n&About...\n");
    EXPECT_EQ(GetToolbarEnabling(), (std::vector{true, true, false, false, true, false}));
}

TEST_F(MenuTest, AGameEnablesItsCommands) {
    StartGame();
    for (const char* const strEntry :
         {"mnuPrint", "mnuSave", "mnuSaveAs", "mnuNormal", "mnuFitWindow", "mnuNumberSelector",
          "mnuStatistics", "mnuSolveCell", "mnuCellErrors", "mnuSolve", "mnuPause"})
        EXPECT_TRUE(IsEnabled(strEntry)) << strEntry;
    EXPECT_EQ(GetToolbarEnabling(), std::vector(6, true));
    EXPECT_EQ(DescribeClippedTexts(window()), "");
}

TEST_F(MenuTest, ToolbarButtonsInOrderAndByTheirPictures) {
    StartGame();
    QStringList tooltips;
    for (const QAction* const action : Get<QToolBar>("tbrMain").actions())
        tooltips << (action->isSeparator() ? QStringLiteral("-") : action->toolTip());
    EXPECT_EQ(tooltips.join(QLatin1Char('|')),
              QLatin1String("New game...|Open an existing game...|-|Save current game...|-|"
                            "Print game...|-|Options...|-|Pause the current game...|-"));
    std::vector<std::string> opened;
    const auto Note = [&opened](QWidget& dialog) {
        opened.push_back(dialog.windowTitle().trimmed().toStdString());
        dialog.close();
    };
    for (const int intPicture : {5, 7}) {
        modal.Then(Note);
        window().tbrMain_ButtonClick(intPicture);
    }
    for (const int intPicture : {0, 6, 8})
        window().tbrMain_ButtonClick(intPicture);
    EXPECT_EQ(opened, (std::vector<std::string>{"Options", ""}));
}

TEST_F(MenuTest, CommandsOpenTheirWindows) {
    Start();
    for (const auto& [strEntry, strTitle] : {std::pair{"mnuNew", "New Game"},
                                             {"mnuTopTen", "Top Ten"},
                                             {"mnuOptions", "Options"},
                                             {"mnuAbout", "About Cellora"}}) {
        modal.Then([strTitle = strTitle](QWidget& dialog) {
            EXPECT_TRUE(dialog.windowTitle().startsWith(QLatin1String(strTitle)))
                << dialog.windowTitle().toStdString();
            dialog.close();
        });
        Choose(strEntry);
    }
    EXPECT_FALSE(game().blnGameActive);
    modal.Then([](QWidget& dialog) {
        EXPECT_EQ(dialog.objectName(), QLatin1String("frmHelp"));
        EXPECT_EQ(GetControl<QTabWidget>(dialog, "tab").currentIndex(), 1);
        dialog.close();
    });
    Activate();
    QTest::keyClick(&window(), Qt::Key_F1);
}

using ViewTest = RunningProgramTest;

TEST_F(ViewTest, AFittedWindowEnclosesThePanesShown) {
    StartGame();
    Choose("mnuFitWindow");
    EXPECT_TRUE(IsTicked("mnuFitWindow"));
    EXPECT_FALSE(IsTicked("mnuNormal"));
    for (int intStep = 0; intStep < 8; ++intStep) {
        const bool blnToolbar = IsTicked("mnuToolbar");
        const bool blnStatistics = IsTicked("mnuStatistics");
        const bool blnSelector = IsTicked("mnuNumberSelector");
        // Twips: 6795 x 6785 round the grid, 3735 for the statistics, 485 for the selector, which
        // reaches 10 above the border pane, 480 for the toolbar.
        const QSize size(453 + (blnStatistics ? 249 : 0),
                         449 + 25 + (blnSelector ? 33 : 0) + (blnToolbar ? 32 : 0));
        const auto GetInnerSize = [this] {
            return window().size() - QSize(0, window().menuBar()->height());
        };
        EXPECT_TRUE(WaitFor([&] { return GetInnerSize() == size; }))
            << intStep << ": " << GetInnerSize().width() << " x " << GetInnerSize().height();
        EXPECT_TRUE(WaitFor([&] { return grid().x() == (blnStatistics ? 249 : 0); })) << intStep;
        EXPECT_NEAR(grid().y(), blnSelector ? 32 : -1, 1) << intStep;
        EXPECT_EQ(Get<QWidget>("picBorder").y(), blnToolbar ? 32 : 0);
        EXPECT_EQ(IsShown("tbrMain"), blnToolbar);
        EXPECT_EQ(IsShown("picStatistics"), blnStatistics);
        EXPECT_EQ(IsShown("picButtons"), blnSelector);
        EXPECT_EQ(Get<QWidget>("picStatistics").geometry(),
                  QRect(grid().x() - 249, grid().y(), 249, 449));
        EXPECT_EQ(Get<QWidget>("picButtons").geometry(),
                  QRect(grid().x(), blnSelector ? -1 : -34, 449, 33));
        EXPECT_TRUE(IsTicked("mnuFitWindow")) << intStep;
        EXPECT_EQ(DescribeClippedTexts(window()), "") << intStep;
        // One toggle at a time, so that every combination comes up once.
        constexpr const char* aToggles[] = {"mnuStatistics", "mnuNumberSelector", "mnuStatistics",
                                            "mnuToolbar"};
        Choose(aToggles[intStep % 4]);
    }
}

TEST_F(ViewTest, DraggingAFittedWindowBringsNormalBack) {
    StartGame();
    Choose("mnuFitWindow");
    // The window system has reported the fitted size by then.
    QTest::qWait(1200);
    EXPECT_TRUE(IsTicked("mnuFitWindow"));
    window().resize(window().size() + QSize(40, 30));
    EXPECT_TRUE(WaitFor([this] { return IsTicked("mnuNormal"); }));
    EXPECT_FALSE(IsTicked("mnuFitWindow"));
    const QSize size = window().size();
    Choose("mnuStatistics");
    QTest::qWait(20);
    EXPECT_EQ(window().size(), size) << "in Normal mode a toggle leaves the window alone";

    Choose("mnuFitWindow");
    Choose("mnuNormal");
    EXPECT_TRUE(IsTicked("mnuNormal"));
    EXPECT_TRUE(window().isMaximized());
    EXPECT_TRUE(grid().isVisible());
}

TEST_F(ViewTest, TheNumberSelectorRemembersItsNumber) {
    StartGame();
    ClickNumber(6);
    Choose("mnuNumberSelector");
    EXPECT_EQ(game().intSelectedNumber, 0);
    const int intCell = FindEmptyCell();
    ClickCell(intCell);
    EXPECT_EQ(game().intCursorCell, intCell);
    EXPECT_TRUE(game().cells[intCell].strEntry.empty());
    Choose("mnuNumberSelector");
    EXPECT_EQ(game().intSelectedNumber, 6);
    EXPECT_TRUE(button(6).isChecked());
}

TEST_F(ViewTest, ATinyWindowIsBorne) {
    StartGame();
    for (const QSize size : {QSize(1, 1), QSize(120, 90)}) {
        window().resize(size);
        QTest::qWait(20);
    }
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    window().resize(780, 590);
    EXPECT_TRUE(WaitFor([this] { return Get<QWidget>("picBorder").width() == 780; }));
    EXPECT_EQ(grid().size(), QSize(449, 449));
}

TEST_F(ViewTest, FlagsAreReadAtTheStartAndWrittenAtTheEnd) {
    std::string strSettings = GetShippedSettings();
    strSettings.replace(strSettings.find("statusbar=True"), 14, "statusbar=False");
    strSettings.replace(strSettings.find("cellerrors=True"), 15, "cellerrors=0");
    folder.WriteBytes("cl.ini", strSettings);
    StartGame();
    EXPECT_FALSE(IsShown("sbrMain"));
    EXPECT_EQ(GetValue("lblIncorrectCells"), QLatin1String("(hidden)"));
    // A hidden status bar keeps 45 twips.
    Choose("mnuFitWindow");
    EXPECT_TRUE(WaitFor(
        [this] { return window().height() - window().menuBar()->height() == (8445 - 690) / 15; }));
    for (const char* const strEntry :
         {"mnuToolbar", "mnuNumberSelector", "mnuStatistics", "mnuCellErrors"})
        Choose(strEntry);
    game().blnGameChanged = false;
    EXPECT_EQ(RunLoop([this] { window().close(); }), 0);
    const std::string strWritten = folder.ReadBytes("cl.ini");
    EXPECT_EQ(strWritten.substr(strWritten.find("statusbar")),
              strSettings.substr(strSettings.find("statusbar"), 17) +
                  "toolbar=False\r\nnumberselector=False\r\nstatistics=False\r\n"
                  "cellerrors=True\r\n");
}

TEST_F(ViewTest, UnsavedChangesAreAskedForBeforeTheEnd) {
    StartGame();
    for (const auto button : {QMessageBox::Cancel, QMessageBox::No}) {
        modal.ThenPress("Save Game?", button);
        EXPECT_EQ(RunLoop([this] { Choose("mnuExit"); }), button == QMessageBox::Cancel ? 1 : 0);
        EXPECT_EQ(window().isVisible(), button == QMessageBox::Cancel);
    }
}

} // namespace

} // namespace cellora
