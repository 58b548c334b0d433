#include "ui/main/window_layout.h"

#include <utility>

#include <QGuiApplication>
#include <QLayout>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QStyle>
#include <QWindow>

#include "core/modCellora.h"
#include "rules/selector.h"
#include "rules/zoom.h"
#include "ui/board/board_view.h"
#include "ui/desktop/placing.h"
#include "ui/desktop/twips.h"
#include "ui/main/layout_pass.h"
#include "ui/main/number_selector.h"
#include "ui/main/statistics_pane.h"
#include "ui/main/zoom_slider.h"

namespace cellora {

namespace {

constexpr double dblDesignWidth = 8640;
constexpr double dblDesignHeight = 7980;

/// How long the window system may take to report the sizes of a window that was just fitted.
constexpr int intFittingMilliseconds = 1000;

/// How long it may take to restore the window.
constexpr int intRestoringMilliseconds = 100;

constexpr auto statesToLeave = Qt::WindowMaximized | Qt::WindowMinimized | Qt::WindowFullScreen;

/// A size below zero, as in a very small window, leaves the element as it is.
void PlaceElement(QWidget& widget, const LayoutRect& rect) {
    if (rect.dblWidth >= 0 && rect.dblHeight >= 0)
        widget.setGeometry(ToPixelRect(rect.dblLeft, rect.dblTop, rect.dblWidth, rect.dblHeight));
}

} // namespace

WindowLayout::WindowLayout(QMainWindow& window, Game& game, const Elements& elements,
                           std::function<void()> fnUpdate)
    : window_(window), game_(game), elements_(elements), fnUpdate_(std::move(fnUpdate)),
      scroll_(*elements.picBorder, [this] { Form_Resize(); }) {
    tmrFitting_.setSingleShot(true);
    QObject::connect(&tmrFitting_, &QTimer::timeout, &window_, [this] { tmrFitting_Timer(); });
}

void WindowLayout::ShowAtStart() {
    const QSize size(ToPixels(dblDesignWidth),
                     ToPixels(dblDesignHeight) + window_.menuBar()->sizeHint().height());
    window_.resize(size.boundedTo(GetLargestSize()));
    CenterOnScreen(window_);
    positionAtStart_ = window_.pos();
    window_.showMaximized();
    QObject::connect(window_.windowHandle(), &QWindow::screenChanged, &tmrFitting_, [this] {
        WatchScreen();
        ScreenChanged();
    });
    WatchScreen();
}

void WindowLayout::WatchScreen() {
    QObject::disconnect(screenWatch_);
    screenWatch_ = QObject::connect(window_.screen(), &QScreen::availableGeometryChanged,
                                    &tmrFitting_, [this] {
                                        ScreenChanged();
                                        if (game_.blnFitWindow)
                                            CenterOnScreen(window_);
                                    });
}

void WindowLayout::ScreenChanged() {
    elements_.picGrid->RenewPointer();
    ApplyZoom();
    if (game_.blnFitWindow) {
        // Not to the middle: the player may be moving it.
        sizeFitted_ = GetFittedSize();
        window_.resize(sizeFitted_);
    }
    Form_Resize();
}

void WindowLayout::StateChanged() {
    if (blnRestoredBefore_ || !window_.isVisible() || (window_.windowState() & statesToLeave) != 0)
        return;
    blnRestoredBefore_ = true;
    // The window system may give state, size and place one after the other.
    QTimer::singleShot(intRestoringMilliseconds, &window_, [this] {
        // Window systems take the place of a window for that of its frame, or for its own.
        const bool blnMoved =
            window_.pos() != positionAtStart_ && window_.geometry().topLeft() != positionAtStart_;
        if (blnMoved || game_.blnFitWindow)
            return;
        window_.resize(window_.size().boundedTo(GetLargestSize()));
        CenterOnScreen(window_);
    });
}

LayoutInput WindowLayout::GetLayoutInput() const {
    const Settings& settings = game_.settings;
    const int intStatusBar = settings.blnStatusBar ? window_.statusBar()->height() : 0;
    const QSize sizeClient = elements_.client->size();
    return {.dblWidth = sizeClient.width() * intTwipsPerPixel + dblFrameWidth,
            .dblHeight = (sizeClient.height() + intStatusBar) * intTwipsPerPixel + dblFrameHeight,
            .blnToolbarVisible = settings.blnToolbar,
            .blnStatusBarVisible = settings.blnStatusBar,
            .blnStatisticsChecked = settings.blnStatistics,
            .blnSelectorChecked = settings.blnNumberSelector,
            .intZoom = intZoom_};
}

QSize WindowLayout::GetLargestSize() const {
    const QSize sizeFrame = window_.frameGeometry().size() - window_.size();
    const QSize sizeFree = window_.screen()->availableGeometry().size() - sizeFrame;
    // A window is told of its state before it is told of its size.
    return window_.isMaximized() || window_.isFullScreen() ? window_.size().expandedTo(sizeFree)
                                                           : sizeFree;
}

std::int16_t WindowLayout::GetLargestZoomHeld() const {
    LayoutInput input = GetLayoutInput();
    const QSize size = GetLargestSize() - QSize(0, window_.menuBar()->height());
    input.dblWidth = size.width() * intTwipsPerPixel + dblFrameWidth;
    input.dblHeight = size.height() * intTwipsPerPixel + dblFrameHeight;
    return GetLargestZoom(input);
}

void WindowLayout::ApplyZoom() {
    const std::int16_t intLargest = GetLargestZoomHeld();
    const std::int16_t intZoom = GetShownZoom(game_, intLargest);
    elements_.sldZoom->Mirror(intZoom, intLargest);
    if (intZoom == intZoom_)
        return;
    intZoom_ = intZoom;
    const double dblZoom = static_cast<double>(intZoom) / intPlainZoom;
    elements_.picGrid->SetZoom(dblZoom);
    elements_.picButtons->SetZoom(dblZoom);
    elements_.picStatistics->SetZoom(dblZoom);
}

void WindowLayout::PlaceInBorder(QWidget& pane, const LayoutRect& rect) {
    PlaceElement(pane, rect);
    pane.move(pane.pos() - scroll_.GetOffset());
}

void WindowLayout::Form_Resize() {
    ApplyZoom();
    const Layout places = ComputeLayout(GetLayoutInput());
    PlaceElement(*elements_.tbrMain, places.tbrMain);
    PlaceElement(*elements_.picBorder, places.picBorder);
    PlaceElement(*elements_.picMenuShadow, places.picMenuShadow);
    scroll_.SetRanges(places.across, places.down);
    PlaceInBorder(*elements_.picGrid, places.picGrid);
    PlaceInBorder(*elements_.picButtons, places.picButtons);
    PlaceInBorder(*elements_.picStatistics, places.picStatistics);
    const QSize sizeCard = elements_.startCard->sizeHint();
    elements_.startCard->setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, sizeCard,
                                                         elements_.picBorder->rect()));
    if (std::exchange(blnFitWaits_, false))
        QTimer::singleShot(0, &window_, [this] { TakeFittedSize(); });
    if (game_.blnFitWindow && !IsOwnResize()) {
        game_.blnFitWindow = false;
        fnUpdate_();
    }
}

bool WindowLayout::IsOwnResize() const {
    return blnViewChange_ || tmrFitting_.isActive() || window_.size() == sizeFitted_;
}

void WindowLayout::ShowToolbar(bool blnShow) {
    game_.settings.blnToolbar = blnShow;
    Form_Resize();
}

void WindowLayout::ShowStatusBar(bool blnShow) {
    game_.settings.blnStatusBar = blnShow;
    window_.statusBar()->setVisible(blnShow);
    window_.layout()->activate();
    Form_Resize();
}

void WindowLayout::ShowStatistics(bool blnShow) {
    game_.settings.blnStatistics = blnShow;
    Form_Resize();
}

void WindowLayout::ShowNumberSelector(bool blnShow) {
    ShowNumberRow(game_, blnShow);
    Form_Resize();
}

void WindowLayout::ToggleToolbar() {
    ShowToolbar(!game_.settings.blnToolbar);
}

void WindowLayout::ToggleStatusBar() {
    ShowStatusBar(!game_.settings.blnStatusBar);
}

template <typename Change>
void WindowLayout::ChangeView(Change fnChange) {
    blnViewChange_ = true;
    fnChange();
    if (game_.blnFitWindow)
        FitWindowToGrid();
    blnViewChange_ = false;
    fnUpdate_();
}

void WindowLayout::mnuToolbar_Click() {
    ChangeView([this] { ToggleToolbar(); });
}

void WindowLayout::mnuStatusBar_Click() {
    ChangeView([this] { ToggleStatusBar(); });
}

void WindowLayout::mnuStatistics_Click() {
    ChangeView([this] { ShowStatistics(!game_.settings.blnStatistics); });
}

void WindowLayout::mnuNumberSelector_Click() {
    ChangeView([this] { ShowNumberSelector(!game_.settings.blnNumberSelector); });
}

void WindowLayout::Zoom(const std::function<void(Game&, std::int16_t)>& fnZoom) {
    ChangeView([&] {
        fnZoom(game_, GetLargestZoomHeld());
        Form_Resize();
    });
}

void WindowLayout::mnuNormal_Click() {
    WindowNormal();
    fnUpdate_();
}

void WindowLayout::mnuFitWindow_Click() {
    ChangeView([this] { game_.blnFitWindow = true; });
}

void WindowLayout::WindowNormal() {
    elements_.picBorder->setUpdatesEnabled(false);
    tmrFitting_.stop();
    blnFitWaits_ = false;
    game_.blnFitWindow = false;
    window_.showMaximized();
    elements_.picBorder->setUpdatesEnabled(true);
}

void WindowLayout::tmrFitting_Timer() {
    if (!game_.blnFitWindow)
        return;
    // Its frame may have come late, and then less of the screen is left for it.
    if (GetFittedSize() != sizeFitted_)
        return FitWindowToGrid();
    // What the window system made of the size asked for is the fitted size from now on.
    sizeFitted_ = window_.size();
    CenterOnScreen(window_);
}

QSize WindowLayout::GetFittedSize() const {
    const LayoutInput input = GetLayoutInput();
    const QSize size =
        ToPixelSize(GetFitWidth(input) - dblFrameWidth, GetFitHeight(input) - dblFrameHeight) +
        QSize(0, window_.menuBar()->height());
    return size.boundedTo(GetLargestSize());
}

void WindowLayout::FitWindowToGrid() {
    elements_.picBorder->setUpdatesEnabled(false);
    tmrFitting_.start(intFittingMilliseconds);
    const bool blnLeaving = (window_.windowState() & statesToLeave) != 0;
    if (blnLeaving)
        window_.showNormal();
    ApplyZoom();
    sizeFitted_ = GetFittedSize();
    // Wayland cuts off a program whose window is resized before it is told that it has left its
    // state, which comes with a size.
    blnFitWaits_ = blnLeaving && QGuiApplication::platformName() == QLatin1String("wayland");
    if (!blnFitWaits_)
        TakeFittedSize();
    elements_.picBorder->setUpdatesEnabled(true);
}

void WindowLayout::TakeFittedSize() {
    if (!game_.blnFitWindow)
        return;
    window_.resize(sizeFitted_);
    CenterOnScreen(window_);
}

} // namespace cellora
