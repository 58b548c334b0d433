#pragma once

#include <QString>

namespace cellora {

/// The code for a window of normal size, in front.
inline constexpr int intShowNormal = 1;

/// Asks the desktop to open an address with the program made for it. True when it took the request.
/// How the window is shown is for the desktop to decide where it knows no show codes.
bool OpenURL(const QString& strAddress, int intShowCode);

} // namespace cellora
