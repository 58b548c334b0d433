#include "ui/cell_popup.h"

#include <QKeyEvent>

#include "play/entry.h"
#include "ui/keys.h"
#include "ui/text.h"

namespace cellora {

void CellPopup::Build(const Game& game) {
    clear();
    AddQuickEntries(game);
    for (int n = 1; n <= 9; ++n) {
        mnuC_[n] = addAction(ToQString(game.mnuC[n].strCaption), this,
                             [this, n] { emit numberChosen(n); });
        mnuC_[n]->setVisible(game.mnuC[n].blnVisible);
    }
    addSeparator();
    QAction* const mnuRemoveAll =
        addAction(QStringLiteral("Remove All"), this, [this] { emit removeAllChosen(); });
    mnuRemoveAll->setEnabled(game.mnuRemoveAllEnabled);
}

void CellPopup::AddQuickEntries(const Game& game) {
    for (int n = 1; n <= 9; ++n) {
        if (game.mnuA[n].blnVisible)
            addAction(ToQString(game.mnuA[n].strCaption), this,
                      [this, n] { emit quickEntryChosen(n); });
    }
    if (game.mnuAsepVisible)
        addSeparator();
}

void CellPopup::keyPressEvent(QKeyEvent* event) {
    const int intDigit = GetKeyDigit(GetVirtualKey(*event));
    if (intDigit == 0) {
        QMenu::keyPressEvent(event);
        return;
    }
    if (mnuC_[intDigit]->isVisible()) {
        close();
        emit numberChosen(intDigit);
    }
}

} // namespace cellora
