// Any bytes: what the native reader accepts, the writer writes back so that it reads the same
// again.
#include <cstdlib>

#include "store/native_format.h"

using namespace tessaline;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Estimate estimate;
    std::wstring error;
    if (!ReadNativeEstimate({data, size}, estimate, error)) {
        if (error.empty()) std::abort();
        return 0;
    }
    const SecretBytes written = WriteNativeEstimate(estimate);
    Estimate again;
    if (!ReadNativeEstimate(written, again, error)) std::abort();
    // Compared as bytes: a charge that is not a number differs from itself.
    if (WriteNativeEstimate(again) != written) std::abort();
    return 0;
}
