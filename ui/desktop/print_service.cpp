#include "ui/desktop/print_service.h"

#include <QLibrary>

namespace cellora {

namespace {

#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
constexpr int intFirstFailure = 0x0400; ///< of the service's states; those below took the job

template <class Function>
Function* FindInPrintService(const char* strRoutine) {
    return reinterpret_cast<Function*>(QLibrary::resolve(QStringLiteral("cups"), 2, strRoutine));
}
#endif

} // namespace

std::optional<std::string> GetPrintServiceError() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    // The toolkit hands documents over without a look at what becomes of them.
    auto* const fnState = FindInPrintService<int()>("cupsLastError");
    auto* const fnText = FindInPrintService<const char*()>("cupsLastErrorString");
    if (fnState != nullptr && fnText != nullptr && fnState() >= intFirstFailure) {
        const char* const strText = fnText();
        return strText != nullptr ? strText : "";
    }
#endif
    return std::nullopt;
}

} // namespace cellora
