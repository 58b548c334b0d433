#pragma once

#include <map>
#include <memory>
#include <optional>
#include <vector>

#include <QMainWindow>
#include <QTimer>

#include "core/modCellora.h"
#include "ui/board_accessible.h"
#include "ui/board_scene.h"
#include "ui/cell_popup.h"
#include "ui/layout_pass.h"

class QAction;
class QPushButton;
class QSessionManager;
class QToolBar;

namespace cellora {

class BoardView;
class NumberSelector;
class Recovery;
class QtDesktop;
class StatisticsPane;

/// The main window. It shows what the game says and reports what the player does; after every event
/// it mirrors the game into its elements in one pass.
class frmMain final : public QMainWindow {
    Q_OBJECT

public:
    /// Loads the settings into the game and builds the window around it. All three outlive the
    /// window.
    frmMain(Game& game, QtDesktop& desktop, Recovery& recovery);
    ~frmMain() override;

    /// Copies the game into the window's elements. What has not changed costs nothing.
    void Mirror();

    /// Shows the window maximised; restored, it has its design size in the middle of the screen.
    void ShowAtStart();

    BoardScene& scene() { return scene_; }

public slots:
    // The commands of menus and toolbar.
    void mnuNew_Click();
    void mnuOpen_Click();
    void mnuSave_Click();
    void mnuSaveAs_Click();
    void mnuPrint_Click();
    void mnuExit_Click();
    void mnuToolbar_Click();
    void mnuStatusBar_Click();
    void mnuNumberSelector_Click();
    void mnuStatistics_Click();
    void mnuCellErrors_Click();
    void mnuPause_Click();
    void mnuSolveCell_Click();
    void mnuSolve_Click();
    void mnuTopTen_Click();
    void mnuOptions_Click();
    void mnuNormal_Click();
    void mnuFitWindow_Click();
    void mnuContents_Click();
    void mnuAbout_Click();

    /// The toolbar's buttons are told apart by their picture numbers; others do nothing.
    void tbrMain_ButtonClick(int intPicture);

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct MenuDesign;
    struct TopMenuDesign;
    struct ToolbarDesign;
    static const std::vector<TopMenuDesign>& GetMenuDesign();
    static const ToolbarDesign aToolbar[11];

    /// A menu entry and the state it shows; entries that are always enabled have none.
    struct MenuEntry {
        QAction* action;
        const MenuItem Game::*item;
    };

    // Construction.
    void MakeMenus();
    void AddMenuEntry(QMenu& menu, const MenuDesign& design);
    void MakeClient();
    void MakeToolbar();
    void MakeBorder();
    void MakePopups();
    void ConnectTimers();

    // Mirroring.
    void MirrorMenus();
    void MirrorToolbar();

    /// The end of the program, if the player agrees.
    bool Leave();
    /// The same when the desktop's session ends, which the player may thereby stop.
    void EndSession(QSessionManager& manager);

    // Layout: the pass over the panes and what changes it.
    void Form_Resize();
    LayoutInput GetLayoutInput() const;
    bool IsOwnResize() const;
    void ShowToolbar(bool blnShow);
    void ShowStatusBar(bool blnShow);
    void ShowStatistics(bool blnShow);
    void ShowNumberSelector(bool blnShow);
    void ToggleToolbar();
    void ToggleStatusBar();
    template <typename Change>
    void ChangeView(Change fnChange);
    void WindowNormal();
    void FitWindowToGrid();
    void tmrFitting_Timer();
    void TickWindowMode(bool blnFit);

    /// Whether the key was used up; keys that move the keyboard's focus are not.
    bool picBorder_KeyDown(const QKeyEvent& event);
    void Form_Activate();
    void FocusGrid();
    void OnTick(Timer timer);
    void OpenPopup(PopupMenu menu);

    /// Runs a command of the rules and mirrors what it did.
    template <typename Command>
    void Do(Command fnCommand);

    Game& game_;
    QtDesktop& desktop_;
    Recovery& recovery_;
    BoardScene scene_;
    std::vector<MenuEntry> menuEntries_;
    std::map<int, QAction*> toolbarButtons_; ///< by their place, 1 to 11
    QWidget* client_ = nullptr;
    QWidget* picMenuShadow_ = nullptr;
    QToolBar* tbrMain_ = nullptr;
    QPushButton* cmdFinished_ = nullptr;
    QWidget* picBorder_ = nullptr;
    BoardView* picGrid_ = nullptr;
    NumberSelector* picButtons_ = nullptr;
    StatisticsPane* picStatistics_ = nullptr;
    CellPopup* mnuRightClick_ = nullptr;
    QMenu* mnuButton_ = nullptr;
    QAction* mnuHighlight_ = nullptr;
    QPoint popupPosition_;
    std::optional<Color> lngBorderColor_;

    /// A command is changing the view; its size changes leave the window mode alone.
    bool blnViewChange_ = false;

    /// The window system reports the sizes of a fitted window only after the command has ended.
    QTimer tmrFitting_;
    QSize sizeFitted_;

    std::unique_ptr<BoardAnnouncer> announcer_;
};

} // namespace cellora
