#pragma once

#include <initializer_list>

#include <QAbstractButton>
#include <QWidget>

class QAction;

namespace cellora {

struct View;

/// A line of the card: what a command of the menu does, and its shortcut.
class StartButton final : public QAbstractButton {
    Q_OBJECT

public:
    StartButton(QAction& action, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QAction& action_;
};

/// What stands in the border pane until a grid does: the game's mark and how to begin.
class StartCard final : public QWidget {
    Q_OBJECT

public:
    /// The card starts the commands as the menu does.
    StartCard(std::initializer_list<QAction*> commands, QWidget* parent);

    /// Shown while the grid is not, in a colour that reads on the border pane.
    void Mirror(const View& view);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace cellora
