#include "base/nearest_int.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace horavex {
namespace {

TEST(NearestInt, RoundsWithTiesToTheEvenNumber) {
    EXPECT_EQ(NearestInt(2.4), 2);
    EXPECT_EQ(NearestInt(2.5), 2);
    EXPECT_EQ(NearestInt(3.5), 4);
    EXPECT_EQ(NearestInt(-0.6), -1);
}

TEST(NearestInt, EndsAtTheEndsOfItsRange) {
    EXPECT_EQ(NearestInt(1e300), std::numeric_limits<int>::max());
    EXPECT_EQ(NearestInt(-9.3e16), std::numeric_limits<int>::min());
    EXPECT_EQ(NearestInt(INFINITY), std::numeric_limits<int>::max());
    EXPECT_EQ(NearestInt(-INFINITY), std::numeric_limits<int>::min());
}

TEST(NearestInt, WhatIsNoNumberIsNothing) {
    EXPECT_EQ(NearestInt(NAN), 0);
}

}  // namespace
}  // namespace horavex
