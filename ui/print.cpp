#include "ui/print.h"

#include <QGraphicsScene>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

#include "ui/frmCDG.h"
#include "ui/layout_pass.h"

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

void ShowPrinterError(Game& game, const std::string& strText) {
    game.desktop.ShowMessageBox({.strTitle = "Printer Error!",
                                 .strText = strText,
                                 .icon = MessageIcon::None,
                                 .buttons = MessageButtons::Ok});
}

void PrintChosen(Game& game, QPrinter& printer, QGraphicsScene& scene) {
    game.desktop.SetMousePointer(MousePointer::Hourglass);
    const int intCopies = printer.copyCount();
    printer.setCopyCount(1);
    if (!PrintCopies(printer, scene, intCopies))
        ShowPrinterError(game, "The grid could not be printed. Please check that the printer is "
                               "connected, switched on and ready.");
}

} // namespace

void PrintGame(Game& game, QGraphicsScene& scene, QWidget* parent) {
    if (QPrinterInfo::availablePrinterNames().isEmpty()) {
        ShowPrinterError(game, "No printer is installed. Please add one in the settings of your "
                               "computer and try again.");
    } else {
        QPrinter printer(QPrinter::HighResolution);
        if (frmCDG(parent).ShowPrinter(printer))
            PrintChosen(game, printer, scene);
    }
    game.desktop.SetMousePointer(MousePointer::Default);
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
    const double dblSize = dblGridSize * resolution / dblTwipsPerInch;
    QRectF target(0, 0, dblSize, dblSize);
    target.moveCenter(page.center());
    scene.render(&painter, target, QRectF(0, 0, dblGridSize, dblGridSize));
}

} // namespace cellora
