#pragma once

#include <string>

#include <QRectF>

class QGraphicsScene;
class QPainter;
class QPrinter;
class QWidget;

/// Printing the grid as it looks on screen. The scene's unit is the twip.
namespace cellora {

class Desktop;

/// The "Print..." command: asks for printer, copies and orientation over `parent`, then prints.
/// The job bears the name of the file `strGameFile`, or the program's while that is empty. Without
/// a printer, and when printing fails, the player is told, in the system's own words if it has any.
void PrintGame(Desktop& desktop, QGraphicsScene& scene, const std::string& strGameFile,
               QWidget* parent);

/// Prints the grid in the middle of the whole sheet, one document per copy. False when the printer
/// or its service failed; copies sent before stay sent.
bool PrintCopies(QPrinter& printer, QGraphicsScene& scene, int intCopies);

/// Draws the grid at its true size in the middle of `page`, which is measured in dots of
/// 1/resolution inch.
void RenderGrid(QPainter& painter, QGraphicsScene& scene, QRectF rectPage, int intResolution);

} // namespace cellora
