#include "ui/board_view.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include "ui/board_scene.h"
#include "ui/keys.h"
#include "ui/pictures.h"
#include "ui/twips.h"

namespace cellora {

namespace {

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
