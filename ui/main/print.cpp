#include "ui/main/print.h"

#include <QFileInfo>
#include <QGraphicsScene>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

#include "core/desktop.h"
#include "ui/desktop/print_service.h"
#include "ui/desktop/text.h"
#include "ui/dialogs/frmCDG.h"

namespace cellora {

namespace {

constexpr double dblTwipsPerInch = 1440;

bool PrintDocument(QPrinter& printer, QGraphicsScene& scene) {
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    const int intResolution = printer.resolution();
    RenderGrid(painter, scene, printer.pageLayout().fullRectPixels(intResolution), intResolution);
    return painter.end() && printer.printerState() != QPrinter::Error && !GetPrintServiceError();
}

void ShowPrinterError(Desktop& desktop, const std::string& strText) {
    desktop.ShowMessageBox({.strTitle = "Printer Error!",
                            .strText = strText,
                            .icon = MessageIcon::None,
                            .buttons = MessageButtons::Ok});
}

std::string DescribeFailure() {
    const std::string strText = GetPrintServiceError().value_or(std::string());
    return !strText.empty() ? strText
                            : "The grid could not be printed. Please check that the printer is "
                              "connected, switched on and ready.";
}

void PrintChosen(Desktop& desktop, QPrinter& printer, QGraphicsScene& scene) {
    desktop.SetMousePointer(MousePointer::Hourglass);
    const int intCopies = printer.copyCount();
    printer.setCopyCount(1);
    if (!PrintCopies(printer, scene, intCopies))
        ShowPrinterError(desktop, DescribeFailure());
}

} // namespace

void PrintGame(Desktop& desktop, QGraphicsScene& scene, const std::string& strGameFile,
               QWidget* parent) {
    if (QPrinterInfo::availablePrinterNames().isEmpty()) {
        ShowPrinterError(desktop, "No printer is installed. Please add one in the settings of your "
                                  "computer and try again.");
    } else {
        QPrinter printer(QPrinter::HighResolution);
        printer.setDocName(strGameFile.empty() ? QStringLiteral("Cellora")
                                               : QFileInfo(ToQString(strGameFile)).fileName());
        if (frmCDG(parent).ShowPrinter(printer))
            PrintChosen(desktop, printer, scene);
    }
    desktop.SetMousePointer(MousePointer::Default);
}

bool PrintCopies(QPrinter& printer, QGraphicsScene& scene, int intCopies) {
    printer.setFullPage(true);
    for (int intCopy = 0; intCopy < intCopies; ++intCopy) {
        if (!PrintDocument(printer, scene))
            return false;
    }
    return true;
}

void RenderGrid(QPainter& painter, QGraphicsScene& scene, QRectF page, int resolution) {
    QRectF target(QPointF(), scene.sceneRect().size() * resolution / dblTwipsPerInch);
    target.moveCenter(page.center());
    scene.render(&painter, target, scene.sceneRect());
}

} // namespace cellora
