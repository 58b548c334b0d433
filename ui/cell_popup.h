#pragma once

#include <QMenu>

#include "core/modCellora.h"

namespace cellora {

/// `mnuRightClick`: the menu of a cell's notes, built from the game each time it opens. Its entries
/// can be chosen by their digits on the keyboard.
class CellPopup final : public QMenu {
    Q_OBJECT

public:
    explicit CellPopup(QWidget* parent) : QMenu(parent) {
        setObjectName(QStringLiteral("mnuRightClick"));
    }

    /// Takes captions, visibility and enabling of all entries from the game, which has prepared
    /// them for the cell under the cursor.
    void Build(const Game& game);

signals:
    void quickEntryChosen(int intDigit);
    void numberChosen(int intDigit);
    void removeAllChosen();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void AddQuickEntries(const Game& game);

    Numbered<QAction*, 9> mnuC_;
};

} // namespace cellora
