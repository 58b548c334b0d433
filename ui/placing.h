#pragma once

class QWidget;

namespace cellora {

/// Moves a window, with its frame, to the middle of its screen.
void CenterOnScreen(QWidget& window);

} // namespace cellora
