#include "ui/main/window_layout.h"

#include <utility>

#include <QGuiApplication>
#include <QLayout>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>

#include "core/modCellora.h"
#include "rules/selector.h"
#include "ui/desktop/placing.h"
#include "ui/desktop/twips.h"
#include "ui/main/layout_pass.h"

namespace cellora {

namespace {

constexpr double dblDesignWidth = 8640;
constexpr double dblDesignHeight = 7980;

/// How long the window system may take to report the sizes of a window that was just fitted.
constexpr int intFittingMilliseconds = 1000;

/// A size below zero, as in a very small window, leaves the element as it is.
void PlaceElement(QWidget& widget, const LayoutRect& rect) {
    if (rect.dblWidth >= 0 && rect.dblHeight >= 0)
        widget.setGeometry(ToPixelRect(rect.dblLeft, rect.dblTop, rect.dblWidth, rect.dblHeight));
}

} // namespace

WindowLayout::WindowLayout(QMainWindow& window, Game& game, const Elements& elements,
                           std::function<void()> fnUpdate)
    : window_(window), game_(game), elements_(elements), fnUpdate_(std::move(fnUpdate)) {
    tmrFitting_.setSingleShot(true);
    QObject::connect(&tmrFitting_, &QTimer::timeout, &window_, [this] { tmrFitting_Timer(); });
}

void WindowLayout::ShowAtStart() {
    window_.resize(ToPixels(dblDesignWidth),
                   ToPixels(dblDesignHeight) + window_.menuBar()->sizeHint().height());
    CenterOnScreen(window_);
    window_.showMaximized();
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
            .blnSelectorChecked = settings.blnNumberSelector};
}

void WindowLayout::Form_Resize() {
    const Layout places = ComputeLayout(GetLayoutInput());
    PlaceElement(*elements_.tbrMain, places.tbrMain);
    PlaceElement(*elements_.picBorder, places.picBorder);
    PlaceElement(*elements_.picMenuShadow, places.picMenuShadow);
    PlaceElement(*elements_.picGrid, places.picGrid);
    PlaceElement(*elements_.picButtons, places.picButtons);
    PlaceElement(*elements_.picStatistics, places.picStatistics);
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
    // What the window system made of the size asked for is the fitted size from now on.
    sizeFitted_ = window_.size();
    CenterOnScreen(window_);
}

void WindowLayout::FitWindowToGrid() {
    elements_.picBorder->setUpdatesEnabled(false);
    tmrFitting_.start(intFittingMilliseconds);
    constexpr auto statesToLeave = Qt::WindowMaximized | Qt::WindowMinimized | Qt::WindowFullScreen;
    const bool blnLeaving = (window_.windowState() & statesToLeave) != 0;
    if (blnLeaving)
        window_.showNormal();
    const LayoutInput input = GetLayoutInput();
    sizeFitted_ =
        ToPixelSize(GetFitWidth(input) - dblFrameWidth, GetFitHeight(input) - dblFrameHeight) +
        QSize(0, window_.menuBar()->height());
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
