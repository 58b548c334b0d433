#pragma once

class QWidget;

namespace cellora {

/// Moves a window to the middle of its screen, with its frame where that is known already: from the
/// first showing on. Of a window that is too large its upper left corner stays on the screen, clear
/// of the desktop's panels.
void CenterOnScreen(QWidget& window);

} // namespace cellora
