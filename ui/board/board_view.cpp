#include "ui/board/board_view.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include "rules/view.h"
#include "ui/board/board_scene.h"
#include "ui/desktop/echo.h"
#include "ui/desktop/keys.h"
#include "ui/desktop/pictures.h"
#include "ui/desktop/twips.h"

namespace cellora {

BoardView::BoardView(BoardScene& scene, QWidget* parent)
    : QGraphicsView(&scene, parent), scene_(scene) {
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
    viewport()->setMouseTracking(true);
    SetZoom(1.0);
}

void BoardView::Mirror(const View& view) {
    scene_.Mirror(view.grid, view.picGrid.lngBackColor);
    if (isEnabled() != view.picGrid.blnEnabled)
        setEnabled(view.picGrid.blnEnabled);
    SetPointer(view.grid.intPointer);
    if (isVisibleTo(parentWidget()) != view.picGrid.blnVisible)
        setVisible(view.picGrid.blnVisible);
}

void BoardView::SetZoom(double dblZoom) {
    const double dblScale = dblZoom / intTwipsPerPixel;
    setTransform(QTransform::fromScale(dblScale, dblScale));
    scene_.HintCell(0); // until the pointer moves over the cells' new places
}

const GridView& BoardView::grid() const {
    return scene_.grid();
}

void BoardView::SetPointer(int intPointer) {
    if (intPointer == intPointer_)
        return;
    intPointer_ = intPointer;
    RenewPointer();
}

void BoardView::RenewPointer() {
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
    constexpr Qt::MouseButtons buttons = Qt::LeftButton | Qt::RightButton | Qt::MiddleButton;
    const int intCell = GetCellAt(event->position().toPoint());
    if (!buttons.testFlag(event->button()) || intCell == 0)
        return;
    const MouseEcho echo(*event); // the last digit of a game opens a window
    // The toolkit numbers these three as the rules do.
    emit cellReleased(intCell, static_cast<MouseButton>(event->button()),
                      event->globalPosition().toPoint());
}

void BoardView::mouseMoveEvent(QMouseEvent* event) {
    scene_.HintCell(GetCellAt(event->position().toPoint()));
}

void BoardView::leaveEvent(QEvent* event) {
    scene_.HintCell(0);
    QGraphicsView::leaveEvent(event);
}

void BoardView::keyPressEvent(QKeyEvent* event) {
    if (IsPopupKey(*event))
        RequestPopup();
    else
        emit keyPressed(*event);
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
    focus.setChild(grid().intCursorCell - 1);
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
    emit popupRequested(mapToGlobal(GetCellRect(grid().intCursorCell).center()));
}

void BoardView::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

} // namespace cellora
