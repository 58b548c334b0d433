#pragma once

class QSize;
class QWidget;

namespace cellora {

/// The size of a window that, with its frame, takes all that the desktop's panels leave of its
/// screen.
QSize GetLargestSize(const QWidget& window);

/// Moves a window with its frame to the middle of its screen, clear of the desktop's panels where
/// it fits. Of a window that is too large the upper left corner stays on the screen.
void CenterOnScreen(QWidget& window);

} // namespace cellora
