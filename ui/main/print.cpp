#include "ui/main/print.h"

#include <QGraphicsScene>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

#include "core/desktop.h"
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
    return painter.end() && printer.printerState() != QPrinter::Error;
}

void ShowPrinterError(Desktop& desktop, const std::string& strText) {
    desktop.ShowMessageBox({.strTitle = "Printer Error!",
                            .strText = strText,
                            .icon = MessageIcon::None,
                            .buttons = MessageButtons::Ok});
}

void PrintChosen(Desktop& desktop, QPrinter& printer, QGraphicsScene& scene) {
    desktop.SetMousePointer(MousePointer::Hourglass);
    const int intCopies = printer.copyCount();
    printer.setCopyCount(1);
    if (!PrintCopies(printer, scene, intCopies))
        ShowPrinterError(desktop, "The grid could not be printed. Please check that the printer is "
                                  "connected, switched on and ready.");
}

} // namespace

void PrintGame(Desktop& desktop, QGraphicsScene& scene, QWidget* parent) {
    if (QPrinterInfo::availablePrinterNames().isEmpty()) {
        ShowPrinterError(desktop, "No printer is installed. Please add one in the settings of your "
                                  "computer and try again.");
    } else {
        QPrinter printer(QPrinter::HighResolution);
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
