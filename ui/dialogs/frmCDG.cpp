#include "ui/dialogs/frmCDG.h"

#include <QAbstractButton>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QPrintDialog>

#include "ui/desktop/dialog_traces.h"
#include "ui/desktop/placing.h"

namespace cellora {

namespace {

bool ShowCentered(QDialog& cdg) {
    cdg.adjustSize();
    CenterOnScreen(cdg);
    const bool blnAccepted = cdg.exec() == QDialog::Accepted;
    if (QWidget* const owner = cdg.parentWidget())
        owner->activateWindow(); // a window manager may give the keyboard to nobody
    return blnAccepted;
}

/// The toolkit hides the number of copies below a button beside "Print" and "Cancel".
void ShowCopies(const QPrintDialog& cdg) {
    const auto* const box = cdg.findChild<QDialogButtonBox*>();
    if (box == nullptr)
        return; // the system's own dialog
    for (QAbstractButton* const button : box->buttons()) {
        if (box->buttonRole(button) == QDialogButtonBox::ResetRole)
            button->click();
    }
}

} // namespace

std::optional<QColor> frmCDG::ShowColor() {
    const DialogTraces traces;
    QColorDialog cdg(Qt::white, owner_);
    cdg.setWindowTitle(QStringLiteral("Select Color"));
    if (!ShowCentered(cdg))
        return std::nullopt;
    return cdg.selectedColor();
}

bool frmCDG::ShowPrinter(QPrinter& printer) {
    QPrintDialog cdg(&printer, owner_);
    cdg.setOptions(QAbstractPrintDialog::PrintShowPageSize);
    ShowCopies(cdg);
    return ShowCentered(cdg);
}

} // namespace cellora
