#include "timetables/year_names.h"

#include "engine/solar_event.h"
#include "timetables/sample_timetable.h"

namespace horavex {
namespace {

using testing::AllOf;
using testing::Each;
using testing::Field;
using testing::SizeIs;

constexpr int kHoursPerLine = 3;
constexpr std::size_t kInMarch = 61;  // the third of March, 0-based

class YearNamesTest : public TimetableTest {
protected:
    static std::vector<YearName> Names() { return PlaceYearNames(TakeTimetable(), kHoursPerLine); }

    static void FillMarch(Prayer prayer, double hours) {
        std::fill(Times[prayer].begin() + 55, Times[prayer].begin() + 100, hours);
    }
};

TEST_F(YearNamesTest, StandInTheMonthWhereTheNarrowestPlaceIsTheWidest) {
    FillMarch(kFajr, 4.0);
    EXPECT_THAT(Names(), AllOf(SizeIs(6), Each(Field(&YearName::row, kInMarch))));
    EXPECT_DOUBLE_EQ(Names()[0].hours, 4.75) << "above the line of 06:00";
}

TEST_F(YearNamesTest, KeepOffTheStepOfDaylightSaving) {
    FillMarch(kFajr, 4.0);
    std::fill(Times[kIsha].begin() + 70, Times[kIsha].end(), 20.75);
    EXPECT_DOUBLE_EQ(Names()[5].hours, 21.75) << "below the later ones of March";
}

TEST_F(YearNamesTest, StandWhereMostOfTheTimesThereAre) {
    Times[kIsha].fill(NoEvent);
    FillMarch(kIsha, 19.5);
    FillMarch(kFajr, 5.5);
    EXPECT_THAT(Names(), AllOf(SizeIs(6), Each(Field(&YearName::row, kInMarch))));
}

TEST_F(YearNamesTest, TimeThatNeverComesHasNone) {
    Times[kIsha].fill(NoEvent);
    EXPECT_THAT(Names(), SizeIs(4)) << "Maghrib ends with Isha";
}

TEST_F(YearNamesTest, TimeBehindMidnightHasNone) {
    Times[kIsha].fill(25.0);
    EXPECT_THAT(Names(), SizeIs(5));
}

}  // namespace
}  // namespace horavex
