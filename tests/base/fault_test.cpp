#include "base/fault.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace horavex {
namespace {

using testing::ThrowsMessage;

TEST(FileFault, SaysWhichFileAndWhy) {
    const FileFault fault("Dat/AI.DAT", "no such file");
    EXPECT_STREQ(fault.what(), "Dat/AI.DAT: no such file");
    EXPECT_EQ(fault.Path(), "Dat/AI.DAT");
}

template <typename Kind>
class KindOfFault : public testing::Test {};

using Kinds = testing::Types<OverflowFault, DivisionByZeroFault, SquareRootFault, TypeMismatchFault,
                             BoundsFault>;
TYPED_TEST_SUITE(KindOfFault, Kinds);

TYPED_TEST(KindOfFault, IsCaughtAsAFaultWithItsText) {
    EXPECT_THAT([] { throw TypeParam("why"); }, ThrowsMessage<Fault>("why"));
}

}  // namespace
}  // namespace horavex
