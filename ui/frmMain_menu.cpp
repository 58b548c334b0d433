#include <array>

#include <QMenuBar>
#include <QPushButton>
#include <QToolBar>

#include "flow/aids.h"
#include "flow/clock.h"
#include "flow/game_file.h"
#include "flow/new_game.h"
#include "flow/options.h"
#include "play/check.h"
#include "ui/frmMain.h"
#include "ui/pictures.h"
#include "ui/print.h"
#include "ui/qt_desktop.h"
#include "ui/text.h"
#include "ui/twips.h"

namespace cellora {

/// One menu entry; without a handler it is a separator.
struct frmMain::MenuDesign {
    const char* strName;
    const char* strCaption = "";
    void (frmMain::*fnClick)() = nullptr;
    const MenuItem Game::*item = nullptr; ///< null: always enabled
    const char* strShortcut = "";
    bool blnTicked = false; ///< carries a check mark
};

struct frmMain::TopMenuDesign {
    const char* strName;
    const char* strCaption;
    std::vector<MenuDesign> entries;
};

/// One place of the toolbar; picture 0 is a separator.
struct frmMain::ToolbarDesign {
    int intPicture = 0;
    const char* strTooltip = "";
};

const frmMain::ToolbarDesign frmMain::aToolbar[11] = {
    {4, "New game..."},
    {3, "Open an existing game..."},
    {},
    {1, "Save current game..."},
    {},
    {2, "Print game..."},
    {},
    {5, "Options..."},
    {},
    {7, "Pause the current game..."},
    {},
};

namespace {

/// The image list of the toolbar, by picture number from 1; the sixth picture is on no button.
constexpr const char* aPictures[] = {"tbr_save",    "tbr_print", "tbr_open", "tbr_new",
                                     "tbr_options", "tbr_spare", "tbr_pause"};

constexpr int intPictureSize = 24;
constexpr int intControlsTab = 1;

} // namespace

const std::vector<frmMain::TopMenuDesign>& frmMain::GetMenuDesign() {
    static const std::vector<TopMenuDesign> aMenus = {
        {"mnuFile",
         "&File",
         {{"mnuNew", "&New Game...", &frmMain::mnuNew_Click, nullptr, "Ctrl+N"},
          {"mnuOpen", "&Open Game...", &frmMain::mnuOpen_Click, nullptr, "Ctrl+O"},
          {"mnuFileSep2"},
          {"mnuSave", "Sa&ve Game", &frmMain::mnuSave_Click, &Game::mnuSave, "Ctrl+S"},
          {"mnuSaveAs", "Sav&e Game As...", &frmMain::mnuSaveAs_Click, &Game::mnuSaveAs},
          {"mnuFileSep1"},
          {"mnuPrint", "&Print...", &frmMain::mnuPrint_Click, &Game::mnuPrint, "Ctrl+P"},
          {"mnuFileSep3"},
          {"mnuExit", "E&xit", &frmMain::mnuExit_Click}}},
        {"mnuView",
         "&View",
         {{"mnuToolbar", "&Toolbar", &frmMain::mnuToolbar_Click, &Game::mnuToolbar, "", true},
          {"mnuStatusBar", "&Status bar", &frmMain::mnuStatusBar_Click, &Game::mnuStatusBar, "",
           true},
          {"mnuViewSep1"},
          {"mnuNumberSelector", "Number Selector", &frmMain::mnuNumberSelector_Click,
           &Game::mnuNumberSelector, "", true},
          {"mnuStatistics", "Statisti&cs", &frmMain::mnuStatistics_Click, &Game::mnuStatistics, "",
           true},
          {"mnuSep5"},
          {"mnuCellErrors", "Cell Errors", &frmMain::mnuCellErrors_Click, &Game::mnuCellErrors, "",
           true}}},
        {"mnuPuzzle",
         "Puzzle",
         {{"mnuPause", "Pause Game", &frmMain::mnuPause_Click, &Game::mnuPause, "Ctrl+U"},
          {"mnuPuzzleSep2"},
          {"mnuSolveCell", "Solve On&e Cell", &frmMain::mnuSolveCell_Click, &Game::mnuSolveCell},
          {"mnuSolve", "&Solve Puzzle", &frmMain::mnuSolve_Click, &Game::mnuSolve}}},
        {"mnuScores", "Scores", {{"mnuTopTen", "&Top Ten...", &frmMain::mnuTopTen_Click}}},
        {"mnuTools", "&Tools", {{"mnuOptions", "&Options...", &frmMain::mnuOptions_Click}}},
        {"mnuWindow",
         "&Window",
         {{"mnuNormal", "Normal", &frmMain::mnuNormal_Click, &Game::mnuNormal, "", true},
          {"mnuFitWindow", "Fit To Grid", &frmMain::mnuFitWindow_Click, &Game::mnuFitWindow, "",
           true}}},
        {"mnuHelp",
         "&Help",
         {{"mnuContents", "&Instructions...", &frmMain::mnuContents_Click, nullptr, "F1"},
          {"mnuHelpSep1"},
          {"mnuAbout", "&About...", &frmMain::mnuAbout_Click}}},
    };
    return aMenus;
}

void frmMain::MakeMenus() {
    for (const TopMenuDesign& design : GetMenuDesign()) {
        QMenu* const menu = menuBar()->addMenu(QLatin1String(design.strCaption));
        menu->setObjectName(QLatin1String(design.strName));
        for (const MenuDesign& entry : design.entries)
            AddMenuEntry(*menu, entry);
    }
    // The status bar follows the settings file alone.
    findChild<QAction*>(QStringLiteral("mnuStatusBar"))->setVisible(false);
}

void frmMain::AddMenuEntry(QMenu& menu, const MenuDesign& design) {
    if (design.fnClick == nullptr) {
        menu.addSeparator()->setObjectName(QLatin1String(design.strName));
        return;
    }
    QAction* const action = menu.addAction(QLatin1String(design.strCaption));
    action->setObjectName(QLatin1String(design.strName));
    action->setShortcut(QKeySequence(QLatin1String(design.strShortcut)));
    action->setMenuRole(QAction::NoRole);
    action->setCheckable(design.blnTicked);
    connect(action, &QAction::triggered, this, design.fnClick);
    if (design.item != nullptr)
        menuEntries_.push_back({action, design.item});
}

void frmMain::MakeToolbar() {
    tbrMain_ = new QToolBar(client_);
    tbrMain_->setObjectName(QStringLiteral("tbrMain"));
    tbrMain_->setIconSize({intPictureSize, intPictureSize});
    tbrMain_->setAccessibleName(QStringLiteral("Toolbar"));
    for (int intPlace = 1; intPlace <= static_cast<int>(std::size(aToolbar)); ++intPlace) {
        const ToolbarDesign& design = aToolbar[intPlace - 1];
        if (design.intPicture == 0) {
            tbrMain_->addSeparator();
            continue;
        }
        const QString strTooltip = QLatin1String(design.strTooltip);
        QAction* const action = tbrMain_->addAction(
            MakeIcon(QLatin1String(aPictures[design.intPicture - 1])), strTooltip);
        action->setToolTip(strTooltip);
        action->setIconText(strTooltip); // the button's accessible name
        connect(action, &QAction::triggered, this,
                [this, intPicture = design.intPicture] { tbrMain_ButtonClick(intPicture); });
        toolbarButtons_[intPlace] = action;
    }
    cmdFinished_ = new QPushButton(tbrMain_);
    cmdFinished_->setObjectName(QStringLiteral("cmdFinished"));
    cmdFinished_->setGeometry(ToPixelRect(3480, 45, 1335, 375));
    cmdFinished_->hide();
    connect(cmdFinished_, &QPushButton::clicked, this, [this] {
        ToggleSolutionView(game_);
        Mirror();
    });
}

void frmMain::tbrMain_ButtonClick(int intPicture) {
    static const std::map<int, void (frmMain::*)()> aCommands = {
        {1, &frmMain::mnuSave_Click},    {2, &frmMain::mnuPrint_Click},
        {3, &frmMain::mnuOpen_Click},    {4, &frmMain::mnuNew_Click},
        {5, &frmMain::mnuOptions_Click}, {7, &frmMain::mnuPause_Click},
    };
    if (const auto found = aCommands.find(intPicture); found != aCommands.end())
        (this->*found->second)();
}

void frmMain::MirrorMenus() {
    for (const MenuEntry& entry : menuEntries_) {
        const MenuItem& item = game_.*entry.item;
        entry.action->setEnabled(item.blnEnabled);
        entry.action->setChecked(item.blnChecked);
    }
}

void frmMain::MirrorToolbar() {
    for (const auto& [intPlace, action] : toolbarButtons_)
        action->setEnabled(game_.tbrMain.blnButtonEnabled[intPlace]);
    cmdFinished_->setText(ToQString(game_.cmdFinished.strCaption));
    cmdFinished_->setVisible(game_.cmdFinished.blnVisible);
    tbrMain_->setVisible(game_.tbrMain.blnVisible);
}

void frmMain::mnuNew_Click() {
    NewGame(game_);
    Mirror();
}

void frmMain::mnuOpen_Click() {
    OpenGame(game_);
    Mirror();
}

void frmMain::mnuSave_Click() {
    SaveGame(game_);
    Mirror();
}

void frmMain::mnuSaveAs_Click() {
    SaveGameAs(game_);
    Mirror();
}

void frmMain::mnuPrint_Click() {
    PrintGame(game_, scene_, this);
    Mirror();
}

void frmMain::mnuExit_Click() {
    close();
}

void frmMain::mnuCellErrors_Click() {
    ToggleCellErrors(game_);
    Mirror();
}

void frmMain::mnuPause_Click() {
    PauseGame(game_);
    Mirror();
}

void frmMain::mnuSolveCell_Click() {
    SolveOneCell(game_);
    Mirror();
}

void frmMain::mnuSolve_Click() {
    SolvePuzzle(game_);
    Mirror();
}

void frmMain::mnuTopTen_Click() {
    desktop_.ShowModal(ModalWindow::frmTopTen);
}

void frmMain::mnuOptions_Click() {
    ShowOptions(game_);
    Mirror();
}

void frmMain::mnuContents_Click() {
    desktop_.ShowInstructions(intControlsTab);
}

void frmMain::mnuAbout_Click() {
    desktop_.ShowModal(ModalWindow::frmAbout);
}

} // namespace cellora
