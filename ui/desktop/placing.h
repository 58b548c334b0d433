#pragma once

class QWidget;

namespace cellora {

/// Moves a window to the middle of its screen, with its frame where that is known already: from the
/// first showing on.
void CenterOnScreen(QWidget& window);

} // namespace cellora
