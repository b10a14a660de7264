#include "linux/freed_memory.h"

#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <string>
#include <vector>

namespace horavex {
namespace {

#ifndef __SANITIZE_ADDRESS__  // whose allocator is another

/// Memory of this process that lies in the machine's, in kilobytes.
long Resident() {
    std::ifstream in("/proc/self/status");
    long kilobytes = 0;
    for (std::string word; in >> word;) {
        if (word == "VmRSS:") {
            in >> kilobytes;
        }
    }
    return kilobytes;
}

TEST(FreedMemory, GoesBackToTheSystemFromBelowWhatIsStillInUse) {
    constexpr std::size_t kBlock = 16 << 10;
    std::vector<std::unique_ptr<std::vector<char>>> blocks;
    for (int i = 0; i < 2000; ++i) {
        blocks.push_back(std::make_unique<std::vector<char>>(kBlock, 'x'));
    }
    const auto last = std::move(blocks.back());
    blocks.clear();
    const long before = Resident();
    ReturnFreedMemory();
    EXPECT_LT(Resident(), before - 20'000);
}

#endif

}  // namespace
}  // namespace horavex
