#include "fuzz/fuzzing.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>

namespace cellora {

void Require(bool blnHolds, const char* strProperty) {
    if (blnHolds)
        return;
    std::cerr << "This does not hold: " << strProperty << '\n';
    std::abort();
}

} // namespace cellora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lngSize) {
    cellora::TryInput({reinterpret_cast<const char*>(data), lngSize});
    return 0;
}
