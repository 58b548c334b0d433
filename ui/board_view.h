#pragma once

#include <cstdint>

#include <QGraphicsView>

#include "core/modCellora.h"
#include "play/entry.h"

namespace cellora {

class BoardScene;

/// `picGrid`: shows the board and reports what the player does on it. To assistive technology it is
/// a table of 9 by 9 cells.
class BoardView final : public QGraphicsView {
    Q_OBJECT

public:
    /// Scene and game outlive the view.
    BoardView(const Game& game, BoardScene& scene, QWidget* parent);

    /// Shows and enables the view as the game says, with its pointer.
    void Mirror();

    const Game& game() const { return game_; }

    /// The cell's place in the view's pixels.
    QRect GetCellRect(int intCell) const;

    /// The cell 1 to 81 at a place in the view's pixels, 0 where none takes clicks.
    int GetCellAt(QPoint position) const;

    /// Asks for the cell popup at the cursor cell; a hidden or locked board asks for nothing.
    void RequestPopup();

signals:
    void cellReleased(int intCell, MouseButton button, QPoint globalPosition);
    void keyPressed(std::int16_t intKeyCode);
    void popupRequested(QPoint globalPosition);

    /// The cursor is wanted on a cell and nothing else; keyboard and mouse have their own signals.
    void cursorRequested(int intCell);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void MirrorPointer();
    void AnnounceFocus();

    const Game& game_;
    BoardScene& scene_;
    int intPointer_ = 0;
};

} // namespace cellora
