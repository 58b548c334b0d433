#include "ui/board_view.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include "ui/board_scene.h"
#include "ui/pictures.h"
#include "ui/twips.h"

namespace cellora {

namespace {

struct KeyCode {
    int intKey;
    std::int16_t intCode;
};

constexpr KeyCode aKeyCodes[] = {
    {Qt::Key_Backspace, intKeyBackspace},
    {Qt::Key_Space, intKeySpace},
    {Qt::Key_Delete, intKeyDelete},
    {Qt::Key_Left, intKeyLeft},
    {Qt::Key_Up, intKeyUp},
    {Qt::Key_Right, intKeyRight},
    {Qt::Key_Down, intKeyDown},
};

std::int16_t GetDigitCode(int intDigit, bool blnKeypad) {
    const int intFirst = blnKeypad ? intKeyKeypad1 : intKeyDigit1;
    return static_cast<std::int16_t>(intFirst + intDigit - 1);
}

/// The digit 1 to 9 printed on a key of the main row, whatever the keyboard's layout and the Shift
/// key make of it; 0 for other keys and where the desktop does not tell.
int GetRowDigit(const QKeyEvent& event) {
    constexpr quint32 lngFirstScanCode = 10; // X11's code of the key "1"
    static const bool blnKnown = QGuiApplication::platformName() == QLatin1String("xcb") ||
                                 QGuiApplication::platformName() == QLatin1String("wayland");
    const quint32 lngCode = event.nativeScanCode();
    if (!blnKnown || lngCode < lngFirstScanCode || lngCode >= lngFirstScanCode + 9)
        return 0;
    return static_cast<int>(lngCode - lngFirstScanCode) + 1;
}

constexpr MouseButton GetButton(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return MouseButton::Left;
    case Qt::RightButton:
        return MouseButton::Right;
    case Qt::MiddleButton:
        return MouseButton::Middle;
    default:
        return MouseButton::None;
    }
}

} // namespace

std::int16_t GetVirtualKey(const QKeyEvent& event) {
    const int intKey = event.key();
    for (const KeyCode& code : aKeyCodes) {
        if (code.intKey == intKey)
            return code.intCode;
    }
    if (intKey >= Qt::Key_1 && intKey <= Qt::Key_9)
        return GetDigitCode(intKey - Qt::Key_0, event.modifiers() & Qt::KeypadModifier);
    if (const int intDigit = GetRowDigit(event); intDigit != 0)
        return GetDigitCode(intDigit, false);
    return 0;
}

bool IsPopupKey(const QKeyEvent& event) {
    return event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier;
}

BoardView::BoardView(const Game& game, BoardScene& scene, QWidget* parent)
    : QGraphicsView(&scene, parent), game_(game), scene_(scene) {
    setObjectName(QStringLiteral("picGrid"));
    setAccessibleName(QStringLiteral("Grid"));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setFocusPolicy(Qt::StrongFocus);
    setViewportUpdateMode(MinimalViewportUpdate);
    setOptimizationFlags(DontSavePainterState | DontAdjustForAntialiasing);
    setInteractive(false);
    scale(1.0 / intTwipsPerPixel, 1.0 / intTwipsPerPixel);
}

void BoardView::Mirror() {
    if (isEnabled() != game_.picGrid.blnEnabled)
        setEnabled(game_.picGrid.blnEnabled);
    MirrorPointer();
    if (isVisibleTo(parentWidget()) != game_.picGrid.blnVisible)
        setVisible(game_.picGrid.blnVisible);
}

void BoardView::MirrorPointer() {
    if (game_.intPointer == intPointer_)
        return;
    intPointer_ = game_.intPointer;
    if (intPointer_ == 0) {
        viewport()->unsetCursor();
        return;
    }
    const QString strName = intPointer_ == intEraser
                                ? QStringLiteral("pointer_eraser")
                                : QStringLiteral("pointer_%1").arg(intPointer_);
    viewport()->setCursor(MakePointer(strName, devicePixelRatioF()));
}

QRect BoardView::GetCellRect(int intCell) const {
    return mapFromScene(BoardScene::GetCellRect(intCell)).boundingRect();
}

int BoardView::GetCellAt(QPoint position) const {
    return scene_.GetCellAt(mapToScene(position));
}

void BoardView::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void BoardView::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
}

void BoardView::mouseReleaseEvent(QMouseEvent* event) {
    const MouseButton button = GetButton(event->button());
    const int intCell = GetCellAt(event->position().toPoint());
    if (button != MouseButton::None && intCell != 0)
        emit cellReleased(intCell, button, event->globalPosition().toPoint());
}

void BoardView::keyPressEvent(QKeyEvent* event) {
    if (IsPopupKey(*event))
        RequestPopup();
    else
        emit keyPressed(GetVirtualKey(*event));
}

void BoardView::focusInEvent(QFocusEvent* event) {
    QGraphicsView::focusInEvent(event);
    // Queued, because the toolkit itself tells of the whole view right after this event.
    QMetaObject::invokeMethod(this, &BoardView::AnnounceFocus, Qt::QueuedConnection);
}

void BoardView::AnnounceFocus() {
    if (!hasFocus())
        return;
    QAccessibleEvent focus(this, QAccessible::Focus);
    focus.setChild(game_.intCursorCell - 1);
    QAccessible::updateAccessibility(&focus);
}

void BoardView::contextMenuEvent(QContextMenuEvent* event) {
    // The right mouse button has its say at its release.
    if (event->reason() != QContextMenuEvent::Mouse)
        RequestPopup();
}

void BoardView::RequestPopup() {
    if (!isVisible() || !isEnabled())
        return;
    emit popupRequested(mapToGlobal(GetCellRect(game_.intCursorCell).center()));
}

void BoardView::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

} // namespace cellora
