#include "ui/main/frmMain.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QSessionManager>
#include <QStatusBar>
#include <QToolBar>

#include "core/modCellora.h"
#include "rules/clock.h"
#include "rules/cursor.h"
#include "rules/entry.h"
#include "rules/game_file.h"
#include "rules/notes.h"
#include "rules/recovery.h"
#include "rules/selector.h"
#include "rules/start_up.h"
#include "rules/view.h"
#include "rules/zoom.h"
#include "ui/board/board_accessible.h"
#include "ui/board/board_view.h"
#include "ui/desktop/echo.h"
#include "ui/desktop/keys.h"
#include "ui/desktop/look.h"
#include "ui/desktop/pictures.h"
#include "ui/desktop/qt_desktop.h"
#include "ui/desktop/twips.h"
#include "ui/desktop/version_info.h"
#include "ui/main/cell_popup.h"
#include "ui/main/commands.h"
#include "ui/main/context_menu.h"
#include "ui/main/input_lock.h"
#include "ui/main/layout_pass.h"
#include "ui/main/number_selector.h"
#include "ui/main/print.h"
#include "ui/main/start_card.h"
#include "ui/main/statistics_pane.h"
#include "ui/main/window_layout.h"
#include "ui/main/zoom_slider.h"

namespace cellora {

namespace {

constexpr int intSliderMargin = 8; ///< from the window's edge

} // namespace

frmMain::frmMain(Game& game, QtDesktop& desktop, Recovery& recovery)
    : game_(game), desktop_(desktop), recovery_(recovery) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(GetProductName());
    SetProgramIcon(*this);
    LoadMainWindow(game_);
    commandBars_ = std::make_unique<CommandBars>(*this);
    MakeClient();
    MakePopups();
    ConnectDesktop();
    announcer_ = std::make_unique<BoardAnnouncer>(*picGrid_);
    setFocus(); // else the first button of the card would take the keyboard by itself
    Update();
}

frmMain::~frmMain() {
    desktop_.Detach();
    // The window loses the keyboard when this part of it is gone already.
    disconnect(qApp, nullptr, this, nullptr);
    // The view goes before the scene it shows.
    delete picGrid_;
}

void frmMain::MakeClient() {
    client_ = new QWidget(this);
    client_->setObjectName(QStringLiteral("client"));
    SetBackColor(*client_, lngColorWhite);
    setCentralWidget(client_);
    auto* const picMenuShadow = new QWidget(client_);
    picMenuShadow->setObjectName(QStringLiteral("picMenuShadow"));
    SetBackColor(*picMenuShadow, lngColorButtonShadow);
    QToolBar* const tbrMain = commandBars_->MakeToolbar(client_);
    MakeBorder();
    MakeStatusBar();
    MakeZoomKeys();
    const WindowLayout::Elements elements{client_,        picMenuShadow, tbrMain,
                                          picBorder_,     picGrid_,      picButtons_,
                                          picStatistics_, startCard_,    sldZoom_};
    windowLayout_ = std::make_unique<WindowLayout>(*this, game_, elements, [this] { Update(); });
    client_->installEventFilter(this); // its resizing is the layout's
}

void frmMain::MakeStatusBar() {
    auto* const sbrMain = new QStatusBar(this);
    sbrMain->setObjectName(QStringLiteral("sbrMain"));
    sbrMain->setFixedHeight(ToPixels(dblStatusBarHeight));
    // Drawing the window behind it would take the keyboard away from the slider.
    sbrMain->setAutoFillBackground(true);
    sldZoom_ =
        new ZoomSlider({.fnZoomTo =
                            [this](int intPercent) {
                                windowLayout_->Zoom([&](Game& game, std::int16_t intLargest) {
                                    ZoomTo(game, intPercent, intLargest);
                                });
                            },
                        .fnZoomIn = [this] { windowLayout_->Zoom(ZoomIn); },
                        .fnZoomOut = [this] { windowLayout_->Zoom(ZoomOut); }},
                       sbrMain);
    sbrMain->addPermanentWidget(sldZoom_);
    sbrMain->setContentsMargins(0, 0, intSliderMargin, 0);
    setStatusBar(sbrMain);
}

void frmMain::MakeZoomKeys() {
    struct ZoomKeys {
        const char* strName;
        const char* strKeys;
        void (*fnZoom)(Game& game, std::int16_t intLargest);
    };
    constexpr ZoomKeys aKeys[] = {{"zoomIn", "Ctrl++; Ctrl+=", ZoomIn},
                                  {"zoomOut", "Ctrl+-", ZoomOut},
                                  {"zoomReset", "Ctrl+0", ZoomReset}};
    for (const ZoomKeys& row : aKeys) {
        auto* const action = new QAction(this);
        action->setObjectName(QLatin1String(row.strName));
        action->setShortcuts(QKeySequence::listFromString(QLatin1String(row.strKeys)));
        connect(action, &QAction::triggered, this,
                [this, fnZoom = row.fnZoom] { windowLayout_->Zoom(fnZoom); });
        addAction(action);
    }
}

void frmMain::MakeBorder() {
    picBorder_ = new QWidget(client_);
    picBorder_->setObjectName(QStringLiteral("picBorder"));
    picBorder_->installEventFilter(this);
    picStatistics_ = new StatisticsPane(picBorder_);
    picButtons_ = new NumberSelector(picBorder_);
    connect(picButtons_, &NumberSelector::numberReleased, this,
            [this](int intNumber, bool blnRightButton, QPoint position) {
                popupPosition_ = position;
                Do([&](Game& game) { picButton_MouseUp(game, intNumber, blnRightButton); });
            });
    connect(qApp, &QApplication::focusChanged, this, &frmMain::RevealNumber);
    MakeGrid();
    startCard_ = new StartCard({findChild<QAction*>(QStringLiteral("mnuNew")),
                                findChild<QAction*>(QStringLiteral("mnuOpen"))},
                               picBorder_);
}

void frmMain::MakeGrid() {
    picGrid_ = new BoardView(scene_, picBorder_);
    picGrid_->hide();
    connect(picGrid_, &BoardView::cellReleased, this,
            [this](int intCell, MouseButton button, QPoint position) {
                popupPosition_ = position;
                Do([&](Game& game) { CellClick(game, intCell, button); });
                FocusGrid();
            });
    connect(picGrid_, &BoardView::keyPressed, this, &frmMain::picGrid_KeyDown);
    connect(picGrid_, &BoardView::popupRequested, this, [this](QPoint position) {
        popupPosition_ = position;
        Do([](Game& game) { CellClick(game, game.intCursorCell, MouseButton::Right); });
    });
    connect(picGrid_, &BoardView::cursorRequested, this, [this](int intCell) {
        Do([&](Game& game) { MoveCursor(game, intCell); });
        FocusGrid();
    });
}

void frmMain::MakePopups() {
    mnuRightClick_ = new CellPopup(this);
    connect(mnuRightClick_, &CellPopup::digitChosen, this,
            [this](int intDigit) { Do([&](Game& game) { mnuC_Click(game, intDigit); }); });
    connect(mnuRightClick_, &CellPopup::removeAllChosen, this, [this] { Do(mnuRemoveAll_Click); });
    mnuButton_ = new ContextMenu(this);
    mnuButton_->setObjectName(QStringLiteral("mnuButton"));
    mnuButton_->setAccessibleName(QStringLiteral("Number"));
    mnuHighlight_ = mnuButton_->addAction(QStringLiteral("Highlight"), this,
                                          [this] { Do(mnuHighlight_Click); });
    mnuHighlight_->setCheckable(true);
}

void frmMain::ConnectDesktop() {
    desktop_.Attach(game_, this, [this] { Update(); });
    connect(&desktop_, &QtDesktop::tick, this, &frmMain::OnTick);
    connect(&desktop_, &QtDesktop::popupWanted, this, &frmMain::OpenPopup);
    // The desktop waits for the answer.
    connect(qApp, &QGuiApplication::commitDataRequest, this, &frmMain::EndSession,
            Qt::DirectConnection);
}

void frmMain::OnTick(Timer timer) {
    switch (timer) {
    case Timer::tmr:
        Do(tmr_Timer);
        return recovery_.CountTick(game_);
    case Timer::tmrCellWait:
        return Do(tmrCellWait_Timer);
    case Timer::tmrCell:
        return Do(tmrCell_Timer);
    case Timer::tmrRecovery:
        return recovery_.tmrRecovery_Timer(game_);
    }
}

void frmMain::OpenPopup(PopupMenu menu) {
    const View view = MakeView(game_);
    if (menu == PopupMenu::mnuRightClick) {
        mnuRightClick_->Build(view.mnuRightClick);
        mnuRightClick_->Open(popupPosition_);
        return;
    }
    mnuHighlight_->setEnabled(view.mnuHighlight.blnEnabled);
    mnuHighlight_->setChecked(view.mnuHighlight.blnChecked);
    mnuButton_->Open(popupPosition_);
}

void frmMain::Do(const std::function<void(Game&)>& fnCommand) {
    fnCommand(game_);
    Update();
}

void frmMain::Update() {
    Mirror();
    recovery_.Observe(game_);
}

void frmMain::Mirror() {
    const View view = MakeView(game_);
    const bool blnGridThere = picGrid_->isVisible() && picGrid_->isEnabled();
    const int intCursorBefore = picGrid_->grid().intCursorCell;
    const QWidget* const keyboard = focusWidget();
    picGrid_->Mirror(view);
    startCard_->Mirror(view);
    if (!blnGridThere)
        FocusGrid(); // the window may be active already
    if (!blnGridThere || intCursorBefore != view.grid.intCursorCell)
        RevealCursor();
    picButtons_->Mirror(view);
    if (keyboard != nullptr && !keyboard->isEnabled())
        setFocus(); // else the arrows, as soon as a game has ended, would move the zoom
    picStatistics_->Mirror(view);
    commandBars_->Mirror(view);
    SetBackColor(*picBorder_, view.lngBorderBackColor);
    sldZoom_->setEnabled(view.picGrid.blnVisible);
    statusBar()->setVisible(view.blnStatusBarVisible);
    if (QAccessible::isActive())
        announcer_->Announce();
}

void frmMain::RevealCursor() {
    const QRect rectCell = picGrid_->GetCellRect(picGrid_->grid().intCursorCell);
    windowLayout_->Reveal(rectCell.translated(picGrid_->pos()));
}

void frmMain::RevealNumber(const QWidget*, const QWidget* focus) {
    if (picButtons_->isAncestorOf(focus))
        windowLayout_->Reveal({focus->mapTo(picBorder_, QPoint()), focus->size()});
}

void frmMain::TakeInput(bool blnTakes) {
    inputLock_ = blnTakes ? nullptr : std::make_unique<InputLock>(*this);
}

void frmMain::mnuPrint_Click() {
    PrintGame(desktop_, scene_, game_.strGameFile, this);
    Update();
}

void frmMain::mnuExit_Click() {
    answered_.reset();
    close();
}

void frmMain::mnuTopTen_Click() {
    desktop_.ShowModal(ModalWindow::frmTopTen);
}

void frmMain::mnuContents_Click() {
    constexpr int intControlsTab = 1;
    desktop_.ShowInstructions(intControlsTab);
}

void frmMain::mnuAbout_Click() {
    desktop_.ShowModal(ModalWindow::frmAbout);
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (!TakesInput() || (!IsAnswered(*event) && !AskToLeave())) {
        event->ignore();
        return;
    }
    UnloadMainWindow(game_);
    recovery_.End(game_);
    event->accept();
    QCoreApplication::exit();
}

bool frmMain::AskToLeave() {
    const bool blnLeave = MayClose(game_);
    Update();
    return blnLeave;
}

bool frmMain::IsAnswered(const QCloseEvent& event) const {
    return answered_ && !event.spontaneous() && answered_->cells == TakeGame(game_).cells;
}

void frmMain::EndSession(QSessionManager& manager) {
    answered_.reset();
    if (!TakesInput())
        return;
    if (!manager.allowsInteraction()) {
        game_.blnSaveOwed = true; // what cannot be asked about
    } else if (!AskToLeave()) {
        manager.cancel();
        return;
    }
    // The session may still go on; so does the game then, and the recovery with it.
    answered_ = TakeGame(game_);
    UnloadMainWindow(game_);
    Update();
    recovery_.Wait(); // from here on the program may be ended at any time
}

void frmMain::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        Form_Activate();
    if (event->type() == QEvent::WindowStateChange)
        windowLayout_->StateChanged();
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
        windowLayout_->Form_Resize();
    // A click beside the grid leaves the keyboard with the grid.
    if (watched == picBorder_ && event->type() == QEvent::MouseButtonPress)
        FocusGrid();
    if (watched == picBorder_ && event->type() == QEvent::KeyPress)
        return picBorder_KeyDown(*static_cast<QKeyEvent*>(event));
    if (watched == picBorder_ && event->type() == QEvent::Wheel)
        return picBorder_Wheel(*static_cast<QWheelEvent*>(event));
    return QMainWindow::eventFilter(watched, event);
}

bool frmMain::picBorder_Wheel(QWheelEvent& event) {
    if (!event.modifiers().testFlag(Qt::ControlModifier))
        return windowLayout_->Scroll(event);
    sldZoom_->Wheel(event);
    return true;
}

bool frmMain::picBorder_KeyDown(const QKeyEvent& event) {
    if (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab)
        return false;
    if (IsPopupKey(event)) {
        picGrid_->RequestPopup();
        return true;
    }
    picGrid_KeyDown(event);
    return true;
}

void frmMain::picGrid_KeyDown(const QKeyEvent& event) {
    const KeyEcho echo(event); // the last digit of a game opens a window
    Do([&](Game& game) { DoKeyDown(game, GetVirtualKey(event)); });
}

} // namespace cellora
