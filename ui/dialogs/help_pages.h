#pragma once

#include <QString>

class QWidget;

/// The pages of the Instructions window. Each call makes a new widget that belongs to the caller.
namespace cellora {

QWidget* MakeInstructionsPage();
QWidget* MakeControlsPage();
QWidget* MakeMenusPage();
QWidget* MakeHistoryPage();

} // namespace cellora
