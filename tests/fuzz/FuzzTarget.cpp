// The entry point of a libFuzzer program. WARDLOCK_FUZZ_BODY names the body to run.

#include "FuzzBodies.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    WARDLOCK_FUZZ_BODY(data, size);
    return 0;
}
