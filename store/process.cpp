#include "store/process.h"

#ifndef _WIN32
#include <csignal>
#endif

namespace cellora {

void IgnoreFileSizeSignal() {
#ifndef _WIN32
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

} // namespace cellora
