#include "ui/main/cell_popup.h"

#include <QKeyEvent>

#include "rules/entry.h"
#include "rules/view.h"
#include "ui/desktop/keys.h"
#include "ui/desktop/text.h"

namespace cellora {

CellPopup::CellPopup(QWidget* parent) : ContextMenu(parent) {
    setObjectName(QStringLiteral("mnuRightClick"));
    setAccessibleName(QStringLiteral("Notes"));
}

void CellPopup::Build(const CellPopupView& popup) {
    clear();
    mnuC_.clear();
    for (int n = 1; n <= 9; ++n) {
        if (popup.mnuA[n].blnVisible)
            AddEntry(popup.mnuA[n].strCaption, n);
    }
    if (popup.mnuAsep)
        addSeparator();
    for (int n = 1; n <= 9; ++n) {
        mnuC_.append(AddEntry(popup.mnuC[n].strCaption, n));
        mnuC_.last()->setVisible(popup.mnuC[n].blnVisible);
    }
    addSeparator();
    QAction* const mnuRemoveAll =
        addAction(QStringLiteral("Remove All"), this, &CellPopup::removeAllChosen);
    mnuRemoveAll->setEnabled(popup.mnuRemoveAllEnabled);
}

QAction* CellPopup::AddEntry(const std::string& strCaption, int intDigit) {
    return addAction(ToQString(strCaption), this, [this, intDigit] { emit digitChosen(intDigit); });
}

void CellPopup::keyPressEvent(QKeyEvent* event) {
    const int intDigit = GetKeyDigit(GetVirtualKey(*event));
    if (intDigit == 0) {
        ContextMenu::keyPressEvent(event);
        return;
    }
    if (mnuC_[intDigit - 1]->isVisible()) {
        close();
        emit digitChosen(intDigit);
    }
}

} // namespace cellora
