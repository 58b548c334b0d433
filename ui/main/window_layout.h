#pragma once

#include <functional>

#include <QSize>
#include <QTimer>

class QMainWindow;
class QWidget;

namespace cellora {

struct Game;
struct LayoutInput;

/// Where the panes of the main window stand, the View menu's switches and the window's two modes:
/// "Normal", and "Fit To Grid", which keeps the window as small as the panes allow until the player
/// changes its size.
class WindowLayout final {
public:
    /// What the layout places. `picGrid`, `picButtons` and `picStatistics` lie in `picBorder`, the
    /// others in `client`, the area between menu bar and status bar.
    struct Elements {
        QWidget* client;
        QWidget* picMenuShadow;
        QWidget* tbrMain;
        QWidget* picBorder;
        QWidget* picGrid;
        QWidget* picButtons;
        QWidget* picStatistics;
    };

    /// `fnUpdate` mirrors the game. Window, game and elements outlive the layout.
    WindowLayout(QMainWindow& window, Game& game, const Elements& elements,
                 std::function<void()> fnUpdate);

    /// Shows the window maximised; restored, it has its design size in the middle of the screen.
    void ShowAtStart();

    /// Places every element. A change of size that is not the layout's own ends "Fit To Grid".
    void Form_Resize();

    // The commands of the View menu and the Window menu.
    void mnuToolbar_Click();
    void mnuStatusBar_Click();
    void mnuNumberSelector_Click();
    void mnuStatistics_Click();
    void mnuNormal_Click();
    void mnuFitWindow_Click();

private:
    LayoutInput GetLayoutInput() const;
    bool IsOwnResize() const;

    // Each ticks its entry of the View menu, or not, and places the elements.
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
    void TakeFittedSize();
    void tmrFitting_Timer();

    QMainWindow& window_;
    Game& game_;
    Elements elements_;
    std::function<void()> fnUpdate_;

    /// A command is changing the view; its size changes leave the window mode alone.
    bool blnViewChange_ = false;

    /// The window system reports the sizes of a fitted window only after the command has ended.
    QTimer tmrFitting_;
    QSize sizeFitted_;
    bool blnFitWaits_ = false; ///< for the window to leave its state
};

} // namespace cellora
