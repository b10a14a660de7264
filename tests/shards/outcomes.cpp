// Tests with every outcome, to show which of them a shard lets pass.
#include <gtest/gtest.h>

#include <cstdlib>

namespace horavex {
namespace {

TEST(Outcome, Passes) {}

TEST(Outcome, Fails) {
    FAIL();
}

TEST(Outcome, Skips) {
    GTEST_SKIP();
}

TEST(Outcome, DISABLED_IsDisabled) {}

TEST(Outcome, EndsTheProcess) {
    std::exit(0);
}

}  // namespace
}  // namespace horavex
