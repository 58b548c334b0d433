#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QMainWindow>

#include "store/saved_game.h"
#include "ui/board/board_scene.h"

class QSessionManager;

namespace cellora {

class BoardAnnouncer;
class BoardView;
class CellPopup;
class CommandBars;
class ContextMenu;
class InputLock;
class NumberSelector;
class QtDesktop;
class Recovery;
class StartCard;
class StatisticsPane;
class WindowLayout;
class ZoomSlider;
enum class PopupMenu;
enum class Timer;
struct Game;

/// The main window. It shows what the game says and reports what the player does; after every event
/// it mirrors the game into its elements in one pass.
class frmMain final : public QMainWindow {
    Q_OBJECT

public:
    /// Loads the settings into the game and builds the window around it. All three outlive the
    /// window.
    frmMain(Game& game, QtDesktop& desktop, Recovery& recovery);
    ~frmMain() override;

    /// What follows every event, and comes before every box and modal window: mirrors the game and
    /// lets the recovery see it.
    void Update();

    /// Runs a command of the rules and shows what it did.
    void Do(const std::function<void(Game&)>& fnCommand);

    /// A window that takes no input looks as always and does nothing, whatever mouse, keyboard and
    /// the desktop want of it.
    void TakeInput(bool blnTakes);
    bool TakesInput() const { return inputLock_ == nullptr; }

    WindowLayout& windowLayout() { return *windowLayout_; }

    // The commands that are the window's own.
    void mnuPrint_Click();
    void mnuExit_Click();
    void mnuTopTen_Click();
    void mnuContents_Click();
    void mnuAbout_Click();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Copies what the game looks like into the window's elements. What has not changed is not
    /// drawn again.
    void Mirror();

    // Construction.
    void MakeClient();
    void MakeBorder();
    void MakeStatusBar();
    void MakeZoomKeys();
    void MakeGrid();
    void MakePopups();
    void ConnectDesktop();

    /// Asks about unsaved changes. False when the window stays open.
    bool AskToLeave();
    /// The desktop's session is about to end, which the player may stop; so may others afterwards.
    void EndSession(QSessionManager& manager);
    /// Whether a closing that the player did not ask for follows an answer about this very game.
    bool IsAnswered(const QCloseEvent& event) const;

    /// Whether the key was used up; keys that move the keyboard's focus are not.
    bool picBorder_KeyDown(const QKeyEvent& event);
    void picGrid_KeyDown(const QKeyEvent& event);
    bool picBorder_Wheel(QWheelEvent& event);
    void RevealCursor();
    /// When the keyboard moves to a number button.
    void RevealNumber(const QWidget* before, const QWidget* focus);
    void Form_Activate();
    void FocusGrid();
    void OnTick(Timer timer);
    void OpenPopup(PopupMenu menu);

    Game& game_;
    QtDesktop& desktop_;
    Recovery& recovery_;
    std::optional<SavedGame> answered_; ///< what was on the board when the session's end was asked
    BoardScene scene_;
    QWidget* client_ = nullptr;
    QWidget* picBorder_ = nullptr;
    BoardView* picGrid_ = nullptr;
    NumberSelector* picButtons_ = nullptr;
    StatisticsPane* picStatistics_ = nullptr;
    StartCard* startCard_ = nullptr;
    ZoomSlider* sldZoom_ = nullptr;
    CellPopup* mnuRightClick_ = nullptr;
    ContextMenu* mnuButton_ = nullptr;
    QAction* mnuHighlight_ = nullptr;
    QPoint popupPosition_; ///< on the screen, where the player asked for a menu last
    std::unique_ptr<CommandBars> commandBars_;
    std::unique_ptr<WindowLayout> windowLayout_;
    std::unique_ptr<BoardAnnouncer> announcer_;
    std::unique_ptr<InputLock> inputLock_;
};

} // namespace cellora
