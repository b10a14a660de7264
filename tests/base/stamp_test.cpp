#include "base/stamp.h"

#include <gtest/gtest.h>

namespace horavex {
namespace {

TEST(StampTest, WritesTheNearestSecond) {
    const Date day = DateSerial(2026, 11, 22);
    EXPECT_EQ(StampOf(day + TimeSerial(15, 12, 30)), "2026-11-22 15:12:30");
    EXPECT_EQ(StampOf(day + (86399.6 / kSecondsPerDay)), "2026-11-23 00:00:00");
    EXPECT_EQ(StampOf(DateSerial(987, 1, 2)), "0987-01-02 00:00:00");
}

TEST(StampTest, ReadsWhatItWrites) {
    const Date date = DateSerial(2026, 2, 28) + TimeSerial(23, 59, 59);
    ASSERT_TRUE(DateOfStamp(StampOf(date)).has_value());
    EXPECT_NEAR(*DateOfStamp(StampOf(date)), date, 1e-9);
}

TEST(StampTest, OtherTextsAndDatesThatThereAreNotGiveNothing) {
    for (const char* text :
         {"", "2026-11-22", "2026-11-22T15:12:30", "2026-02-30 00:00:00", "2026-11-22 24:00:00",
          "2026-11-22 15:60:00", "2026-11-22 15:12:60", "2026-11-22 15:12:3x",
          "0000-01-01 00:00:00", "2026-11-22 15:12:30 "}) {
        EXPECT_FALSE(DateOfStamp(text).has_value()) << text;
    }
}

}  // namespace
}  // namespace horavex
