#pragma once

#include <optional>
#include <string>

namespace cellora {

/// The print service's own description of what failed last, for the document handed to it just
/// now. Nothing when it took the job, and where the toolkit itself tells of failures; empty where
/// the service gives no text.
std::optional<std::string> GetPrintServiceError();

} // namespace cellora
