#pragma once

#include <string_view>

/// What the fuzz targets share. A target is one reader of files: `TryInput` gives it the bytes of a
/// file and requires of it what its header promises.
namespace cellora {

/// Defined by each target. What it leaves on the disk it takes away before the next input.
void TryInput(std::string_view bytes);

/// Ends the program where the property does not hold; the input is then kept as a finding.
void Require(bool blnHolds, const char* strProperty);

} // namespace cellora
