// Measured values: International Earth Rotation Service.

#include "linux/delta_t.h"

#include <gtest/gtest.h>

namespace horavex {
namespace {

TEST(DeltaT, IsWhatWasMeasured) {
    EXPECT_NEAR(DeltaT(DateSerial(1955, 1, 1)), 31.07, 0.01);
    EXPECT_NEAR(DeltaT(DateSerial(1992, 7, 1)), 58.7, 0.5);
    EXPECT_NEAR(DeltaT(DateSerial(2012, 7, 1)), 66.8, 0.5);
    EXPECT_NEAR(DeltaT(DateSerial(2025, 1, 1)), 69.14, 0.01);
}

TEST(DeltaT, GoesOnFromTheLastMeasuredYearWithoutAJump) {
    const Date last = DateSerial(2025, 1, 1);
    EXPECT_NEAR(DeltaT(last - 1.0), DeltaT(last + 1.0), 0.01);
    EXPECT_NEAR(DeltaT(DateSerial(2050, 1, 1)), 76.5, 0.2);
    EXPECT_NEAR(DeltaT(DateSerial(2100, 1, 1)), 103.4, 0.2);
}

TEST(DeltaT, GoesOnBeforeTheFirstYear) {
    EXPECT_NEAR(DeltaT(DateSerial(1895, 1, 1)), -9.3, 0.1);
}

}  // namespace
}  // namespace horavex
