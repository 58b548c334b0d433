#include "ui/main/commands.h"

#include <algorithm>
#include <span>
#include <string_view>

#include <QHBoxLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QToolBar>

#include "rules/aids.h"
#include "rules/check.h"
#include "rules/clock.h"
#include "rules/game_file.h"
#include "rules/new_game.h"
#include "rules/options.h"
#include "rules/view.h"
#include "ui/desktop/pictures.h"
#include "ui/desktop/text.h"
#include "ui/desktop/twips.h"
#include "ui/main/frmMain.h"
#include "ui/main/window_layout.h"

namespace cellora {

/// A row of the table; without a caption it is a separator of its menu.
struct Command {
    const char* strName; ///< of the menu entry
    const char* strCaption = nullptr;
    void (*fnStart)(frmMain& window) = nullptr;
    MenuItem View::*item = nullptr; ///< null: always enabled
    const char* strShortcut = "";
    const char* strToolTip = "";
    int intPicture = 0;     ///< of the toolbar's button, 0 for none
    bool blnTicked = false; ///< the menu entry carries a check mark
};

namespace {

template <void (*fnCommand)(Game&)>
void Start(frmMain& window) {
    window.Do(fnCommand);
}

template <void (frmMain::*fnCommand)()>
void Start(frmMain& window) {
    (window.*fnCommand)();
}

template <void (WindowLayout::*fnCommand)()>
void Start(frmMain& window) {
    (window.windowLayout().*fnCommand)();
}

constexpr Command aFile[] = {
    {"mnuNew", "&New Game...", Start<NewGame>, nullptr, "Ctrl+N", "New game...", 4},
    {"mnuOpen", "&Open Game...", Start<OpenGame>, nullptr, "Ctrl+O", "Open an existing game...", 3},
    {"mnuFileSep2"},
    {"mnuSave", "Sa&ve Game", Start<SaveGame>, &View::mnuSave, "Ctrl+S", "Save current game...", 1},
    {"mnuSaveAs", "Sav&e Game As...", Start<SaveGameAs>, &View::mnuSaveAs},
    {"mnuFileSep1"},
    {"mnuPrint", "&Print...", Start<&frmMain::mnuPrint_Click>, &View::mnuPrint, "Ctrl+P",
     "Print game...", 2},
    {"mnuFileSep3"},
    {"mnuExit", "E&xit", Start<&frmMain::mnuExit_Click>},
};

constexpr Command aView[] = {
    {"mnuToolbar", "&Toolbar", Start<&WindowLayout::mnuToolbar_Click>, &View::mnuToolbar, "", "", 0,
     true},
    {"mnuStatusBar", "&Status bar", Start<&WindowLayout::mnuStatusBar_Click>, &View::mnuStatusBar,
     "", "", 0, true},
    {"mnuViewSep1"},
    {"mnuNumberSelector", "Number Selector", Start<&WindowLayout::mnuNumberSelector_Click>,
     &View::mnuNumberSelector, "", "", 0, true},
    {"mnuStatistics", "Statisti&cs", Start<&WindowLayout::mnuStatistics_Click>,
     &View::mnuStatistics, "", "", 0, true},
    {"mnuSep5"},
    {"mnuCellErrors", "Cell Errors", Start<ToggleCellErrors>, &View::mnuCellErrors, "", "", 0,
     true},
};

constexpr Command aPuzzle[] = {
    {"mnuPause", "Pause Game", Start<PauseGame>, &View::mnuPause, "Ctrl+U",
     "Pause the current game...", 7},
    {"mnuPuzzleSep2"},
    {"mnuSolveCell", "Solve On&e Cell", Start<SolveOneCell>, &View::mnuSolveCell},
    {"mnuSolve", "&Solve Puzzle", Start<SolvePuzzle>, &View::mnuSolve},
};

constexpr Command aScores[] = {
    {"mnuTopTen", "&Top Ten...", Start<&frmMain::mnuTopTen_Click>},
};

constexpr Command aTools[] = {
    {"mnuOptions", "&Options...", Start<ShowOptions>, nullptr, "", "Options...", 5},
};

constexpr Command aWindow[] = {
    {"mnuNormal", "Normal", Start<&WindowLayout::mnuNormal_Click>, &View::mnuNormal, "", "", 0,
     true},
    {"mnuFitWindow", "Fit To Grid", Start<&WindowLayout::mnuFitWindow_Click>, &View::mnuFitWindow,
     "", "", 0, true},
};

constexpr Command aHelp[] = {
    {"mnuContents", "&Instructions...", Start<&frmMain::mnuContents_Click>, nullptr, "F1"},
    {"mnuHelpSep1"},
    {"mnuAbout", "&About...", Start<&frmMain::mnuAbout_Click>},
};

struct MenuDesign {
    const char* strName;
    const char* strCaption;
    std::span<const Command> commands;
};

constexpr MenuDesign aMenus[] = {
    {"mnuFile", "&File", aFile},      {"mnuView", "&View", aView},
    {"mnuPuzzle", "Puzzle", aPuzzle}, {"mnuScores", "Scores", aScores},
    {"mnuTools", "&Tools", aTools},   {"mnuWindow", "&Window", aWindow},
    {"mnuHelp", "&Help", aHelp},
};

/// The toolbar from left to right, by the names of the commands; an empty name is a separator.
constexpr std::string_view aToolbar[] = {"mnuNew", "mnuOpen",    "", "mnuSave",  "", "mnuPrint",
                                         "",       "mnuOptions", "", "mnuPause", ""};

/// The image list of the toolbar, by picture number from 1; the sixth picture is on no button.
constexpr const char* aPictures[] = {"tbr_save",    "tbr_print", "tbr_open", "tbr_new",
                                     "tbr_options", "tbr_spare", "tbr_pause"};

constexpr int intPictureSize = 24;

const QRect rectFinished = ToPixelRect(3480, 45, 1335, 375);
constexpr int intCornerMargin = 4; ///< in the menu bar

/// Leaves as much room before the finish button, whose place is fixed, as between the others.
constexpr int intToolButtonWidth = 30;

/// The first command that passes the test, null when none does.
template <typename Test>
constexpr const Command* FindCommand(Test fnTest) {
    for (const MenuDesign& menu : aMenus) {
        for (const Command& command : menu.commands) {
            if (fnTest(command))
                return &command;
        }
    }
    return nullptr;
}

constexpr const Command* FindNamed(std::string_view strName) {
    return FindCommand([&](const Command& row) { return row.strName == strName; });
}

static_assert(std::ranges::all_of(aToolbar,
                                  [](std::string_view strName) {
                                      return strName.empty() || FindNamed(strName) != nullptr;
                                  }),
              "a button stands for a command");

} // namespace

CommandBars::CommandBars(frmMain& window) : window_(window) {
    for (const MenuDesign& design : aMenus) {
        QMenu* const menu = window_.menuBar()->addMenu(QLatin1String(design.strCaption));
        menu->setObjectName(QLatin1String(design.strName));
        for (const Command& command : design.commands)
            AddMenuEntry(*menu, command);
    }
    // The status bar follows the settings file alone.
    window_.findChild<QAction*>(QStringLiteral("mnuStatusBar"))->setVisible(false);
}

void CommandBars::AddMenuEntry(QMenu& menu, const Command& command) {
    if (command.strCaption == nullptr) {
        menu.addSeparator()->setObjectName(QLatin1String(command.strName));
        return;
    }
    QAction* const action = menu.addAction(QLatin1String(command.strCaption));
    action->setObjectName(QLatin1String(command.strName));
    action->setShortcut(QKeySequence(QLatin1String(command.strShortcut)));
    action->setMenuRole(QAction::NoRole);
    action->setCheckable(command.blnTicked);
    QObject::connect(action, &QAction::triggered, &window_,
                     [this, &command] { command.fnStart(window_); });
    if (command.item != nullptr)
        menuEntries_.push_back({action, &command});
}

QToolBar* CommandBars::MakeToolbar(QWidget* parent) {
    tbrMain_ = new QToolBar(parent);
    tbrMain_->setObjectName(QStringLiteral("tbrMain"));
    tbrMain_->setIconSize({intPictureSize, intPictureSize});
    tbrMain_->setAccessibleName(QStringLiteral("Toolbar"));
    for (const std::string_view strName : aToolbar) {
        if (strName.empty())
            tbrMain_->addSeparator();
        else
            AddButton(*FindNamed(strName));
    }
    MakeFinishButton();
    return tbrMain_;
}

void CommandBars::AddButton(const Command& command) {
    const QString strToolTip = QLatin1String(command.strToolTip);
    QAction* const action =
        tbrMain_->addAction(MakeIcon(QLatin1String(aPictures[command.intPicture - 1])), strToolTip);
    action->setToolTip(strToolTip);
    action->setIconText(strToolTip); // the button's accessible name
    tbrMain_->widgetForAction(action)->setFixedWidth(intToolButtonWidth);
    QObject::connect(action, &QAction::triggered, &window_,
                     [this, &command] { tbrMain_ButtonClick(command.intPicture); });
    buttons_.push_back({action, &command});
}

void CommandBars::MakeFinishButton() {
    cmdFinished_ = new QPushButton(tbrMain_);
    cmdFinished_->setObjectName(QStringLiteral("cmdFinished"));
    cmdFinished_->setGeometry(rectFinished);
    cmdFinished_->hide();
    auto* const corner = new QHBoxLayout(window_.menuBar());
    corner->setContentsMargins(0, 0, intCornerMargin, 0);
    corner->addStretch();
    QObject::connect(cmdFinished_, &QPushButton::clicked, &window_,
                     [this] { window_.Do(ToggleSolutionView); });
}

void CommandBars::tbrMain_ButtonClick(int intPicture) {
    if (intPicture == 0)
        return; // that of the commands without a button
    const auto* const command =
        FindCommand([&](const Command& row) { return row.intPicture == intPicture; });
    if (command != nullptr)
        command->fnStart(window_);
}

void CommandBars::Mirror(const View& view) {
    for (const auto& [action, command] : menuEntries_) {
        const MenuItem& item = view.*command->item;
        action->setEnabled(item.blnEnabled);
        action->setChecked(item.blnChecked);
    }
    for (const auto& [action, command] : buttons_) {
        const bool blnAvailable = command->item == nullptr || (view.*command->item).blnEnabled;
        action->setEnabled(view.blnToolbarEnabled && blnAvailable);
    }
    cmdFinished_->setText(ToQString(view.strFinishedCaption));
    PlaceFinishButton(view);
    cmdFinished_->setVisible(view.blnFinishedVisible);
    tbrMain_->setVisible(view.blnToolbarVisible);
}

void CommandBars::PlaceFinishButton(const View& view) {
    QMenuBar& menuBar = *window_.menuBar();
    const bool blnInMenuBar = view.blnFinishedVisible && !view.blnToolbarVisible;
    if (blnInMenuBar == (cmdFinished_->parentWidget() == &menuBar))
        return;
    // The menu bar keeps its height, and the board its place.
    const int intHeight = blnInMenuBar ? menuBar.height() : rectFinished.height();
    cmdFinished_->setFixedSize(rectFinished.width(), intHeight);
    if (blnInMenuBar) {
        menuBar.layout()->addWidget(cmdFinished_);
    } else {
        cmdFinished_->setParent(tbrMain_);
        cmdFinished_->move(rectFinished.topLeft());
    }
}

} // namespace cellora
