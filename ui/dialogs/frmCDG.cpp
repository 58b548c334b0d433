#include "ui/dialogs/frmCDG.h"

#include <QColorDialog>
#include <QPrintDialog>

#include "ui/desktop/dialog_traces.h"
#include "ui/desktop/placing.h"

namespace cellora {

namespace {

bool ShowCentered(QDialog& cdg) {
    cdg.adjustSize();
    CenterOnScreen(cdg);
    return cdg.exec() == QDialog::Accepted;
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
    return ShowCentered(cdg);
}

} // namespace cellora
