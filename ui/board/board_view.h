#pragma once

#include <QGraphicsView>

#include "rules/entry.h"

namespace cellora {

class BoardScene;
struct GridView;
struct View;

/// `picGrid`: shows the board and reports what the player does on it. To assistive technology it is
/// a table of 9 by 9 cells.
class BoardView final : public QGraphicsView {
    Q_OBJECT

public:
    /// The scene outlives the view.
    BoardView(BoardScene& scene, QWidget* parent);

    /// Brings the scene up to date, sets the pointer, and shows and enables the grid as the view
    /// says.
    void Mirror(const View& view);

    /// Shows the board larger or smaller than its true size of 1.0. The view's own size is its
    /// owner's.
    void SetZoom(double dblZoom);

    /// Draws the pointer for the screen that the board is on now.
    void RenewPointer();

    /// What was mirrored last.
    const GridView& grid() const;

    /// The place of a cell 1 to 81 in the view's pixels.
    QRect GetCellRect(int intCell) const;

    /// The cell 1 to 81 at a place in the view's pixels, 0 where none takes clicks.
    int GetCellAt(QPoint position) const;

    /// Asks for the cell popup at the cursor cell; a hidden or locked board asks for nothing.
    void RequestPopup();

signals:
    /// A release of a mouse button over a cell 1 to 81; the position is on the screen.
    void cellReleased(int intCell, MouseButton button, QPoint globalPosition);
    /// Any key but those that ask for the popup.
    void keyPressed(const QKeyEvent& event);
    /// By keyboard, with the middle of the cursor cell on the screen.
    void popupRequested(QPoint globalPosition);

    /// The cursor is wanted on a cell and nothing else; keyboard and mouse have their own signals.
    void cursorRequested(int intCell);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void SetPointer(int intPointer);
    void AnnounceFocus();

    BoardScene& scene_;
    int intPointer_ = 0;
};

} // namespace cellora
