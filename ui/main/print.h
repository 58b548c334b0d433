#pragma once

#include <QRectF>

class QGraphicsScene;
class QPainter;
class QPrinter;
class QWidget;

/// Printing the grid as it looks on screen. The scene's unit is the twip.
namespace cellora {

class Desktop;

/// The "Print..." command: asks for printer, copies and orientation over `parent`, then prints.
/// Without a printer, and when printing fails, the player is told.
void PrintGame(Desktop& desktop, QGraphicsScene& scene, QWidget* parent);

/// Prints the grid in the middle of the whole sheet, one document per copy. False when the printer
/// failed; copies sent before stay sent.
bool PrintCopies(QPrinter& printer, QGraphicsScene& scene, int intCopies);

/// Draws the grid at its true size in the middle of `page`, which is measured in dots of
/// 1/resolution inch.
void RenderGrid(QPainter& painter, QGraphicsScene& scene, QRectF rectPage, int intResolution);

} // namespace cellora
