#pragma once

#include <cstdint>

class QKeyEvent;

namespace cellora {

/// The virtual-key code of a key press; 0 for keys that have no meaning on the grid.
std::int16_t GetVirtualKey(const QKeyEvent& event);

/// Shift+F10, which opens popup menus; the toolkit makes a context-menu event of the Menu key
/// alone.
bool IsPopupKey(const QKeyEvent& event);

} // namespace cellora
