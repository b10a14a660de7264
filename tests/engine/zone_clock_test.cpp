#include "engine/zone_clock.h"

#include <gtest/gtest.h>

#include "support/test_platform.h"

namespace horavex {
namespace {

/// An instant or a local time of 2026, to the second.
Date At(int month, int day, int hour, int minute = 0, int second = 0) {
    return DateSerial(2026, month, day) + TimeSerial(hour, minute, second);
}

struct ZoneClockTest : testing::Test {
    ZoneClockTest() {
        record.TimeZone = 2;
        record.DstEnabled = 1;
        record.DstStart = 100;
        record.DstEnd = 200;
    }

    TestPlatform platform;
    SettingsRecord record;
};

TEST_F(ZoneClockTest, WithoutAZoneTheRecordCountsWithItsDaylightDays) {
    const ZoneClock clock("", record);
    EXPECT_DOUBLE_EQ(clock.UniversalOf(At(1, 5, 12)), At(1, 5, 10));
    EXPECT_DOUBLE_EQ(clock.UniversalOf(At(6, 1, 12)), At(6, 1, 9));
    EXPECT_NEAR(clock.LocalOf(At(6, 1, 9)), At(6, 1, 12), 1e-9);
    EXPECT_TRUE(clock.OffsetAt(At(6, 1, 9)).daylight);
}

TEST_F(ZoneClockTest, ANamedZoneCountsInPlaceOfTheRecord) {
    platform.zoneRules.Add("Sky/Zone", {-5 * 3600, false});
    const ZoneClock clock("Sky/Zone", record);
    EXPECT_DOUBLE_EQ(clock.UniversalOf(At(6, 1, 12)), At(6, 1, 17));
    EXPECT_NEAR(clock.LocalOf(At(6, 1, 17)), At(6, 1, 12), 1e-9);
}

TEST_F(ZoneClockTest, MinuteIsTheNearest) {
    const ZoneClock clock("", record);
    EXPECT_NEAR(clock.MinuteOf(At(1, 5, 10, 3, 31)), At(1, 5, 12, 4), 1e-9);
    EXPECT_NEAR(clock.MinuteOf(At(1, 5, 10, 3, 29)), At(1, 5, 12, 3), 1e-9);
}

}  // namespace
}  // namespace horavex
