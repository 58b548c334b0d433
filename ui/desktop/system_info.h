#pragma once

namespace cellora {

/// Starts the desktop's own tool that describes the computer. False when there is none.
bool StartSystemInfo();

} // namespace cellora
