#include <QLayout>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

#include "play/selector.h"
#include "ui/board_view.h"
#include "ui/frmMain.h"
#include "ui/number_selector.h"
#include "ui/placing.h"
#include "ui/statistics_pane.h"
#include "ui/twips.h"

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

void frmMain::ShowAtStart() {
    resize(ToPixels(dblDesignWidth), ToPixels(dblDesignHeight) + menuBar()->sizeHint().height());
    CenterOnScreen(*this);
    showMaximized();
}

LayoutInput frmMain::GetLayoutInput() const {
    const int intStatusBar = game_.blnStatusBarVisible ? statusBar()->height() : 0;
    return {.dblWidth = client_->width() * intTwipsPerPixel + dblFrameWidth,
            .dblHeight = (client_->height() + intStatusBar) * intTwipsPerPixel + dblFrameHeight,
            .blnToolbarVisible = game_.tbrMain.blnVisible,
            .blnStatusBarVisible = game_.blnStatusBarVisible,
            .blnStatisticsChecked = game_.mnuStatistics.blnChecked,
            .blnSelectorChecked = game_.mnuNumberSelector.blnChecked};
}

void frmMain::Form_Resize() {
    const Layout places = ComputeLayout(GetLayoutInput());
    PlaceElement(*tbrMain_, places.tbrMain);
    PlaceElement(*picBorder_, places.picBorder);
    PlaceElement(*picMenuShadow_, places.picMenuShadow);
    PlaceElement(*picGrid_, places.picGrid);
    PlaceElement(*picButtons_, places.picButtons);
    PlaceElement(*picStatistics_, places.picStatistics);
    if (!IsOwnResize()) {
        TickWindowMode(false);
        MirrorMenus();
    }
}

bool frmMain::IsOwnResize() const {
    const bool blnFitted =
        game_.mnuFitWindow.blnChecked && (tmrFitting_.isActive() || size() == sizeFitted_);
    return blnViewChange_ || blnFitted;
}

void frmMain::TickWindowMode(bool blnFit) {
    game_.mnuNormal.blnChecked = !blnFit;
    game_.mnuFitWindow.blnChecked = blnFit;
}

void frmMain::ShowToolbar(bool blnShow) {
    game_.tbrMain.blnVisible = blnShow;
    game_.mnuToolbar.blnChecked = blnShow;
    Form_Resize();
}

void frmMain::ShowStatusBar(bool blnShow) {
    game_.blnStatusBarVisible = blnShow;
    game_.mnuStatusBar.blnChecked = blnShow;
    statusBar()->setVisible(blnShow);
    layout()->activate();
    Form_Resize();
}

void frmMain::ShowStatistics(bool blnShow) {
    game_.picStatistics.blnVisible = blnShow;
    game_.mnuStatistics.blnChecked = blnShow;
    Form_Resize();
}

void frmMain::ShowNumberSelector(bool blnShow) {
    ShowNumberRow(game_, blnShow);
    Form_Resize();
}

void frmMain::ToggleToolbar() {
    ShowToolbar(!game_.mnuToolbar.blnChecked);
}

void frmMain::ToggleStatusBar() {
    ShowStatusBar(!game_.mnuStatusBar.blnChecked);
}

template <typename Change>
void frmMain::ChangeView(Change fnChange) {
    blnViewChange_ = true;
    fnChange();
    if (game_.mnuFitWindow.blnChecked)
        FitWindowToGrid();
    blnViewChange_ = false;
    Mirror();
}

void frmMain::mnuToolbar_Click() {
    ChangeView([this] { ToggleToolbar(); });
}

void frmMain::mnuStatusBar_Click() {
    ChangeView([this] { ToggleStatusBar(); });
}

void frmMain::mnuStatistics_Click() {
    ChangeView([this] { ShowStatistics(!game_.mnuStatistics.blnChecked); });
}

void frmMain::mnuNumberSelector_Click() {
    ChangeView([this] { ShowNumberSelector(!game_.mnuNumberSelector.blnChecked); });
}

void frmMain::mnuNormal_Click() {
    WindowNormal();
    Mirror();
}

void frmMain::mnuFitWindow_Click() {
    ChangeView([this] { TickWindowMode(true); });
}

void frmMain::WindowNormal() {
    picBorder_->setUpdatesEnabled(false);
    tmrFitting_.stop();
    TickWindowMode(false);
    showMaximized();
    picBorder_->setUpdatesEnabled(true);
}

void frmMain::tmrFitting_Timer() {
    if (!game_.mnuFitWindow.blnChecked)
        return;
    // What the window system made of the size asked for is the fitted size from now on.
    sizeFitted_ = size();
    CenterOnScreen(*this);
}

void frmMain::FitWindowToGrid() {
    picBorder_->setUpdatesEnabled(false);
    TickWindowMode(true);
    tmrFitting_.start(intFittingMilliseconds);
    if ((windowState() & (Qt::WindowMaximized | Qt::WindowMinimized | Qt::WindowFullScreen)) != 0)
        showNormal();
    const LayoutInput input = GetLayoutInput();
    sizeFitted_ =
        ToPixelSize(GetFitWidth(input) - dblFrameWidth, GetFitHeight(input) - dblFrameHeight) +
        QSize(0, menuBar()->height());
    resize(sizeFitted_);
    CenterOnScreen(*this);
    picBorder_->setUpdatesEnabled(true);
}

} // namespace cellora
