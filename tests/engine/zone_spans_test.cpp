#include "engine/zone_spans.h"

#include <gtest/gtest.h>

namespace horavex {
namespace {

/// London of 2026: an hour ahead from 29 March to 25 October, each time at 01:00 in Greenwich.
const std::vector<ZoneSpan> kLondon = {
    {DateSerial(2025, 12, 30), 0.0, false},
    {DateSerial(2026, 3, 29) + TimeSerial(1, 0, 0), 1.0, true},
    {DateSerial(2026, 10, 25) + TimeSerial(1, 0, 0), 0.0, false}};

double HoursAt(Date day, int hour, int minute) {
    return SpanAt(kLondon, day + TimeSerial(hour, minute, 0)).hours;
}

double HoursOfLocal(Date day, int hour, int minute) {
    return SpanOfLocal(kLondon, day + TimeSerial(hour, minute, 0)).hours;
}

TEST(SpanAt, CountsFromItsFirstInstantOnAndTheFirstBeforeIt) {
    const Date spring = DateSerial(2026, 3, 29);
    EXPECT_EQ(HoursAt(spring, 0, 59), 0.0);
    EXPECT_EQ(HoursAt(spring, 1, 0), 1.0);
    EXPECT_EQ(HoursAt(DateSerial(2020, 7, 1), 0, 0), 0.0);
    EXPECT_EQ(HoursAt(DateSerial(2030, 7, 1), 0, 0), 0.0);
}

TEST(SpanOfLocal, TimeThatComesTwiceIsTheEarlierOne) {
    const Date autumn = DateSerial(2026, 10, 25);
    EXPECT_EQ(HoursOfLocal(autumn, 1, 59), 1.0);
    EXPECT_EQ(HoursOfLocal(autumn, 2, 0), 0.0);
}

TEST(SpanOfLocal, TimeThatIsLeftOutCountsOnTheClockBehind) {
    const Date spring = DateSerial(2026, 3, 29);
    EXPECT_EQ(HoursOfLocal(spring, 0, 59), 0.0);
    EXPECT_EQ(HoursOfLocal(spring, 1, 30), 1.0);
    EXPECT_EQ(HoursOfLocal(spring, 2, 0), 1.0);
}

}  // namespace
}  // namespace horavex
