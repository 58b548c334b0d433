#pragma once

#include <memory>

#include <QWidget>

namespace cellora {

class BoardScene;
struct Game;

/// A few cells as the board shows them, in the player's colours, for the pages of the Instructions.
class BoardPicture final : public QWidget {
    Q_OBJECT

public:
    enum class Part {
        Region,    ///< nine cells with clues, digits of the player's, notes and the cursor
        Notes,     ///< a cell with notes
        WrongCell, ///< a cell that is marked wrong, with the cursor
    };

    /// Of the game only the settings are used, and now. At a zoom of 1 the cells have the size that
    /// the board has.
    BoardPicture(Game& game, Part part, double dblZoom);
    ~BoardPicture() override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::unique_ptr<BoardScene> scene_;
    QRectF rectCells_; ///< in the scene
    double dblScale_;
};

/// A button of the number row, for the same pages.
class ButtonPicture final : public QWidget {
    Q_OBJECT

public:
    enum class Look { Selected, Complete };

    /// The number is 1 to 9.
    ButtonPicture(int intNumber, Look look);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int intNumber_;
    Look look_;
};

} // namespace cellora
