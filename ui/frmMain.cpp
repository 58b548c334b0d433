#include "ui/frmMain.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPushButton>
#include <QSessionManager>
#include <QStatusBar>
#include <QToolBar>

#include "flow/aids.h"
#include "flow/clock.h"
#include "flow/game_file.h"
#include "flow/recovery.h"
#include "flow/start_up.h"
#include "play/cursor.h"
#include "play/entry.h"
#include "play/notes.h"
#include "play/selector.h"
#include "ui/board_view.h"
#include "ui/keys.h"
#include "ui/look.h"
#include "ui/number_selector.h"
#include "ui/pictures.h"
#include "ui/qt_desktop.h"
#include "ui/statistics_pane.h"
#include "ui/text.h"
#include "ui/twips.h"

namespace cellora {

template <typename Command>
void frmMain::Do(Command fnCommand) {
    fnCommand(game_);
    Mirror();
}

frmMain::frmMain(Game& game, QtDesktop& desktop, Recovery& recovery)
    : game_(game), desktop_(desktop), recovery_(recovery) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(ToQString(strProductName));
    setWindowIcon(MakeIcon(QStringLiteral("cellora")));
    LoadMainWindow(game_);
    MakeMenus();
    MakeClient();
    MakePopups();
    ConnectTimers();
    desktop_.Attach(game_, this, [this] { Mirror(); });
    announcer_ = std::make_unique<BoardAnnouncer>(*picGrid_);
    // The desktop waits for the answer.
    connect(qApp, &QGuiApplication::commitDataRequest, this, &frmMain::EndSession,
            Qt::DirectConnection);
    tmrFitting_.setSingleShot(true);
    connect(&tmrFitting_, &QTimer::timeout, this, &frmMain::tmrFitting_Timer);
    Mirror();
}

frmMain::~frmMain() {
    desktop_.Detach();
    announcer_.reset();
    // The view goes before the scene it shows.
    delete picGrid_;
}

void frmMain::MakeClient() {
    client_ = new QWidget(this);
    client_->setObjectName(QStringLiteral("client"));
    SetBackColor(*client_, lngColorWhite);
    client_->installEventFilter(this);
    setCentralWidget(client_);
    picMenuShadow_ = new QWidget(client_);
    picMenuShadow_->setObjectName(QStringLiteral("picMenuShadow"));
    SetBackColor(*picMenuShadow_, lngColorButtonShadow);
    MakeToolbar();
    MakeBorder();
    auto* const sbrMain = new QStatusBar(this);
    sbrMain->setObjectName(QStringLiteral("sbrMain"));
    sbrMain->setFixedHeight(ToPixels(dblStatusBarHeight));
    setStatusBar(sbrMain);
}

void frmMain::MakeBorder() {
    picBorder_ = new QWidget(client_);
    picBorder_->setObjectName(QStringLiteral("picBorder"));
    picBorder_->installEventFilter(this);
    picStatistics_ = new StatisticsPane(picBorder_);
    picButtons_ = new NumberSelector(picBorder_);
    picGrid_ = new BoardView(game_, scene_, picBorder_);
    picGrid_->hide();
    connect(picGrid_, &BoardView::cellReleased, this,
            [this](int intCell, MouseButton button, QPoint position) {
                popupPosition_ = position;
                Do([&](Game& game) { CellClick(game, intCell, button); });
                FocusGrid();
            });
    connect(picGrid_, &BoardView::keyPressed, this, [this](std::int16_t intKeyCode) {
        Do([&](Game& game) { DoKeyDown(game, intKeyCode); });
    });
    connect(picGrid_, &BoardView::popupRequested, this, [this](QPoint position) {
        popupPosition_ = position;
        Do([](Game& game) { CellClick(game, game.intCursorCell, MouseButton::Right); });
    });
    connect(picGrid_, &BoardView::cursorRequested, this, [this](int intCell) {
        Do([&](Game& game) { MoveCursor(game, intCell); });
        FocusGrid();
    });
    connect(picButtons_, &NumberSelector::numberReleased, this,
            [this](int intNumber, bool blnRightButton, QPoint position) {
                popupPosition_ = position;
                Do([&](Game& game) { picButton_MouseUp(game, intNumber, blnRightButton); });
            });
}

void frmMain::MakePopups() {
    mnuRightClick_ = new CellPopup(this);
    mnuRightClick_->setAccessibleName(QStringLiteral("Notes"));
    const auto Connect = [this](auto signal, auto fnCommand) {
        connect(mnuRightClick_, signal, this, [this, fnCommand](int intDigit) {
            Do([&](Game& game) { fnCommand(game, intDigit); });
        });
    };
    Connect(&CellPopup::quickEntryChosen, mnuA_Click);
    Connect(&CellPopup::numberChosen, mnuC_Click);
    connect(mnuRightClick_, &CellPopup::removeAllChosen, this, [this] { Do(mnuRemoveAll_Click); });
    mnuButton_ = new QMenu(this);
    mnuButton_->setObjectName(QStringLiteral("mnuButton"));
    mnuButton_->setAccessibleName(QStringLiteral("Number"));
    mnuHighlight_ = mnuButton_->addAction(QStringLiteral("Highlight"), this,
                                          [this] { Do(mnuHighlight_Click); });
    mnuHighlight_->setCheckable(true);
    connect(&desktop_, &QtDesktop::popupWanted, this, &frmMain::OpenPopup);
}

void frmMain::ConnectTimers() {
    connect(&desktop_, &QtDesktop::tick, this, &frmMain::OnTick);
}

void frmMain::OnTick(Timer timer) {
    switch (timer) {
    case Timer::tmr:
        recovery_.CountTick(game_);
        return Do(tmr_Timer);
    case Timer::tmrCellWait:
        return Do(tmrCellWait_Timer);
    case Timer::tmrCell:
        return Do(tmrCell_Timer);
    case Timer::tmrRecovery:
        return recovery_.tmrRecovery_Timer(game_);
    }
}

void frmMain::OpenPopup(PopupMenu menu) {
    if (menu == PopupMenu::mnuRightClick) {
        mnuRightClick_->Build(game_);
        mnuRightClick_->popup(popupPosition_);
        return;
    }
    mnuHighlight_->setEnabled(CanHighlight(game_));
    mnuHighlight_->setChecked(IsHighlighted(game_));
    mnuButton_->popup(popupPosition_);
}

void frmMain::Mirror() {
    scene_.Mirror(game_);
    const bool blnGridThere = picGrid_->isVisible() && picGrid_->isEnabled();
    picGrid_->Mirror();
    if (!blnGridThere)
        FocusGrid(); // the window may be active already
    picButtons_->Mirror(game_);
    picStatistics_->Mirror(game_);
    MirrorMenus();
    MirrorToolbar();
    if (lngBorderColor_ != game_.picBorder.lngBackColor) {
        lngBorderColor_ = game_.picBorder.lngBackColor;
        SetBackColor(*picBorder_, *lngBorderColor_);
    }
    statusBar()->setVisible(game_.blnStatusBarVisible);
    if (QAccessible::isActive())
        announcer_->Announce();
    recovery_.Observe(game_);
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (!isEnabled()) { // under the splash
        event->ignore();
        return;
    }
    if (!Leave()) {
        event->ignore();
        return;
    }
    event->accept();
    QCoreApplication::exit();
}

bool frmMain::Leave() {
    const bool blnLeave = MayClose(game_);
    Mirror();
    if (!blnLeave)
        return false;
    UnloadMainWindow(game_);
    recovery_.Remove();
    return true;
}

void frmMain::EndSession(QSessionManager& manager) {
    if (!isEnabled())
        return;
    if (!manager.allowsInteraction()) {
        // The recovery file keeps what cannot be asked about.
        UnloadMainWindow(game_);
        return;
    }
    if (Leave())
        game_.blnGameChanged = false; // The closing that follows must not ask again.
    else
        manager.cancel();
}

void frmMain::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        Form_Activate();
}

void frmMain::Form_Activate() {
    desktop_.SetMousePointer(MousePointer::Default);
    FocusGrid();
}

void frmMain::FocusGrid() {
    if (picGrid_->isVisible() && picGrid_->isEnabled())
        picGrid_->setFocus(Qt::OtherFocusReason);
}

void frmMain::paintEvent(QPaintEvent* event) {
    QMainWindow::paintEvent(event);
    // Menus take the keyboard here while they are used.
    if (!menuBar()->hasFocus() && QApplication::activePopupWidget() == nullptr)
        FocusGrid();
}

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    if (watched == client_ && event->type() == QEvent::Resize)
        Form_Resize();
    // A click beside the grid leaves the keyboard with the grid.
    if (watched == picBorder_ && event->type() == QEvent::MouseButtonPress)
        FocusGrid();
    if (watched == picBorder_ && event->type() == QEvent::KeyPress)
        return picBorder_KeyDown(*static_cast<QKeyEvent*>(event));
    return QMainWindow::eventFilter(watched, event);
}

bool frmMain::picBorder_KeyDown(const QKeyEvent& event) {
    if (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab)
        return false;
    if (IsPopupKey(event)) {
        picGrid_->RequestPopup();
        return true;
    }
    const std::int16_t intKeyCode = GetVirtualKey(event);
    Do([&](Game& game) { DoKeyDown(game, intKeyCode); });
    return true;
}

} // namespace cellora
