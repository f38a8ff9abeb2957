// One target as libFuzzer runs it; LX_FUZZ_TARGET names its function.
#include <cstddef>
#include <cstdint>

#include "fuzz/targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    lx::fuzz::LX_FUZZ_TARGET({reinterpret_cast<const char*>(bytes), size});
    return 0;
}
