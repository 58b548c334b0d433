#pragma once

#include "core/modCellora.h"

namespace cellora {

/// Starts the desktop's own tool that describes the computer, or says that there is none.
void ShowSystemInfo(Game& game);

} // namespace cellora
