// The entries that libFuzzer calls. Which target is run a variable of the environment tells, which
// its processes hand on to each other.

#include <cstdlib>
#include <iostream>

#include "fuzz/target.h"

namespace {

const horavex::FuzzTarget& Target() {
    static const horavex::FuzzTarget& target = []() -> const horavex::FuzzTarget& {
        const char* name = std::getenv("HORAVEX_FUZZ_TARGET");
        return horavex::FindFuzzTarget(name == nullptr ? "" : name);
    }();
    return target;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Target().run({data, size});
    return 0;
}
