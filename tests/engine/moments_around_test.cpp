#include "engine/moments_around.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/current_year.h"
#include "engine/ruled_year.h"
#include "engine/year_table.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

struct MomentsAroundTest : testing::Test {
    MomentsAroundTest() {
        CurrentYear = 2026;
        LeapYearFlag();
        for (std::size_t row = 0; row < 365; ++row) {
            for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
                Times[prayer][row] =
                    1.0 + static_cast<double>(prayer) * 4.0 + static_cast<double>(row) / 1000.0;
            }
        }
    }

    static Date Day(int month, int day) { return DateSerial(2026, month, day); }

    TestPlatform platform;
};

TEST_F(MomentsAroundTest, AreThoseOfThreeDaysInOrder) {
    const auto around = MomentsAround(Day(3, 1) + 0.5);
    ASSERT_THAT(around, SizeIs(3 * kPrayerCount));
    EXPECT_NEAR(around[0].at, Day(2, 28) + 1.058 / 24.0, 1e-9);
    EXPECT_NEAR(around[kPrayerCount].at, Day(3, 1) + 1.059 / 24.0, 1e-9);
    EXPECT_NEAR(around[2 * kPrayerCount + kIsha].at, Day(3, 2) + 21.060 / 24.0, 1e-9);
    EXPECT_EQ(around[2 * kPrayerCount + kIsha].prayer, kIsha);
}

TEST_F(MomentsAroundTest, FirstAndLastDayStandInForTheirNeighboursOutsideTheTable) {
    EXPECT_NEAR(MomentsAround(Day(1, 1))[0].at, Day(1, 1) - 1.0 + 1.0 / 24.0, 1e-9);
    EXPECT_NEAR(MomentsAround(Day(12, 31))[2 * kPrayerCount].at, Day(12, 31) + 1.0 + 1.364 / 24.0,
                1e-9);
}

TEST_F(MomentsAroundTest, DayOutsideTheTableHasNone) {
    EXPECT_THAT(MomentsAround(DateSerial(2027, 1, 1)), IsEmpty());
}

TEST_F(MomentsAroundTest, SecondsSinceAMomentPassOverATurnOfTheClock) {
    const DatedMoment fajr = {kFajr, Day(3, 29) + 4.0 / 24.0, {4.0, MomentBy::kSun, 0, 2.0}};
    EXPECT_NEAR(SecondsSince(fajr, Day(3, 29) + 1.5 / 24.0), -2.5 * 3600.0, 1e-6) << "no zone";
    RuledYear.rules.moments.zone = {{Day(1, 1) - 1.0, 1.0}, {Day(3, 29) + 1.0 / 24.0, 2.0}};
    EXPECT_NEAR(SecondsSince(fajr, Day(3, 29) + 1.5 / 24.0), -1.5 * 3600.0, 1e-6);
    EXPECT_NEAR(SecondsSince(fajr, Day(3, 29) + 5.0 / 24.0), 3600.0, 1e-6);
}

}  // namespace
}  // namespace horavex
