#pragma once

#include <cstdint>
#include <functional>

#include <QSize>
#include <QTimer>

#include "ui/main/border_scroll.h"

class QMainWindow;
class QWidget;

namespace cellora {

class BoardView;
class NumberSelector;
class StatisticsPane;
class ZoomSlider;
struct Game;
struct LayoutInput;
struct LayoutRect;

/// Where the panes of the main window stand, the View menu's switches, the zoom and the window's
/// two modes: "Normal", and "Fit To Grid", which keeps the window as small as the panes allow until
/// the player changes its size.
class WindowLayout final {
public:
    /// What the layout places. `picGrid`, `picButtons`, `picStatistics` and `startCard` lie in
    /// `picBorder`, the others in `client`, the area between menu bar and status bar, but for the
    /// slider, which lies in the status bar.
    struct Elements {
        QWidget* client;
        QWidget* picMenuShadow;
        QWidget* tbrMain;
        QWidget* picBorder;
        BoardView* picGrid;
        NumberSelector* picButtons;
        StatisticsPane* picStatistics;
        QWidget* startCard;
        ZoomSlider* sldZoom;
    };

    /// `fnUpdate` mirrors the game. Window, game and elements outlive the layout.
    WindowLayout(QMainWindow& window, Game& game, const Elements& elements,
                 std::function<void()> fnUpdate);

    /// Shows the window maximised; restored, it has its design size, as far as the screen holds it,
    /// in the middle of the screen.
    void ShowAtStart();

    /// Follows every change between maximised, restored and minimised.
    void StateChanged();

    /// Places every element. A change of size that is not the layout's own ends "Fit To Grid".
    void Form_Resize();

    // The commands of the View menu and the Window menu.
    void mnuToolbar_Click();
    void mnuStatusBar_Click();
    void mnuNumberSelector_Click();
    void mnuStatistics_Click();
    void mnuNormal_Click();
    void mnuFitWindow_Click();

    /// Runs a command of rules/zoom.h.
    void Zoom(const std::function<void(Game&, std::int16_t intLargest)>& fnZoom);

    /// A wheel over the border pane moves the panes where they do not fit; false where they do.
    bool Scroll(QWheelEvent& event) { return scroll_.Wheel(event); }

    /// Moves the panes until that place, which is measured in the border pane, is seen.
    void Reveal(const QRect& rect) { scroll_.Reveal(rect); }

private:
    LayoutInput GetLayoutInput() const;
    QSize GetLargestSize() const;
    std::int16_t GetLargestZoomHeld() const;
    QSize GetFittedSize() const;
    void ApplyZoom();
    void WatchScreen();
    /// The window is on another screen, or that one has got another size.
    void ScreenChanged();
    void PlaceInBorder(QWidget& pane, const LayoutRect& rect);
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
    BorderScroll scroll_;
    std::int16_t intZoom_ = 100; ///< that the panes have

    /// A command is changing the view; its size changes leave the window mode alone.
    bool blnViewChange_ = false;

    /// The window system reports the sizes of a fitted window only after the command has ended.
    QTimer tmrFitting_;
    QSize sizeFitted_;
    bool blnFitWaits_ = false; ///< for the window to leave its state

    /// Until the window is restored for the first time its frame is not known, nor its true middle.
    QPoint positionAtStart_;
    bool blnRestoredBefore_ = false;

    QMetaObject::Connection screenWatch_; ///< of the size of the screen that the window is on
};

} // namespace cellora
