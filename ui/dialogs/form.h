#pragma once

#include <QDialog>

#include "ui/desktop/text.h"
#include "ui/desktop/twips.h"

class QLabel;
class QPushButton;

namespace cellora {

class Desktop;
struct Game;

/// A modal side window: fixed size, centred on the screen, measured in twips. It is made afresh for
/// each showing. While it is active the pointer is the arrow. What it changes in the game it
/// announces with `gameChanged`, and the main window mirrors the game then.
class Form : public QDialog {
    Q_OBJECT

public:
    /// `game` outlives the form. Width and height are those of the inner area.
    Form(Game& game, const QString& strTitle, QSize sizeInTwips, QWidget* parent);

signals:
    void gameChanged();

protected:
    Game& game() { return game_; }
    Desktop& desktop();

    /// Puts a child of the form at a place in twips.
    static void Place(QWidget* widget, double dblLeft, double dblTop, double dblWidth,
                      double dblHeight);

    /// A label of plain text at the top of its place in twips. It belongs to the parent.
    static QLabel* AddLabel(QWidget* parent, const QString& strName, const QString& strText,
                            double dblLeft, double dblTop, double dblWidth, double dblHeight = 255,
                            Qt::Alignment alignment = Qt::AlignLeft);

    /// A button at its place in twips, which belongs to the parent. Enter presses it while it has
    /// the keyboard; the form names its default button.
    static QPushButton* AddButton(QWidget* parent, const QString& strName,
                                  const QString& strCaption, double dblLeft, double dblTop,
                                  double dblWidth = 1215, double dblHeight = 375);

    /// Opens the Instructions window over this one.
    void ShowHelp();

    void showEvent(QShowEvent* event) override;

private:
    /// The window becomes active: the pointer goes back to the arrow.
    void changeEvent(QEvent* event) override;

    Game& game_;
};

} // namespace cellora
