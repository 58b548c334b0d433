#include "ui/frmCDG.h"

#include <QColorDialog>
#include <QPrintDialog>

#include "ui/placing.h"

namespace cellora {

namespace {

bool ShowCentered(QDialog& cdg) {
    cdg.adjustSize();
    CenterOnScreen(cdg);
    return cdg.exec() == QDialog::Accepted;
}

} // namespace

std::optional<QColor> frmCDG::ShowColor() {
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
