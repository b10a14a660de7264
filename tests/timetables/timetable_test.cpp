#include "timetables/timetable.h"

#include "engine/solar_event.h"
#include "timetables/sample_timetable.h"
#include "timetables/timetable_words.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class TimetableModelTest : public TimetableTest {
protected:
    /// Days of the year, 1-based, with a change of that kind.
    static std::vector<int> DaysThat(DaylightChange change) {
        std::vector<int> days;
        const Timetable table = TakeTimetable();
        for (std::size_t row = 0; row < table.days.size(); ++row) {
            if (table.days[row].change == change) {
                days.push_back(static_cast<int>(row) + 1);
            }
        }
        return days;
    }
};

TEST_F(TimetableModelTest, HasPlaceAndMethodOfTheAcceptedSettings) {
    const Timetable table = TakeTimetable();
    EXPECT_EQ(table.year, 2026);
    EXPECT_EQ(table.place, "Cairo - Egypt");
    EXPECT_EQ(table.latitude, 30.05);
    EXPECT_EQ(table.longitude, 31.25);
    EXPECT_EQ(table.timeZone, 2.0);
    EXPECT_EQ(table.fajrAngle, 19.5);
    EXPECT_EQ(table.ishaAngle, 17.5);
    EXPECT_EQ(table.asrRatio, 1.0);
    EXPECT_EQ(table.qiblaDegrees, 136.14);
}

TEST_F(TimetableModelTest, QiblaToTheWestIsCountedOnClockwise) {
    QiblaDegrees = -90.0;
    EXPECT_EQ(TakeTimetable().qiblaDegrees, 270.0);
}

TEST_F(TimetableModelTest, HasADayForEachOfTheYear) {
    EXPECT_THAT(TakeTimetable().days, SizeIs(365));
    TakeYear(2028);
    const Timetable leap = TakeTimetable();
    EXPECT_THAT(leap.days, SizeIs(366));
    EXPECT_THAT(DaysOfMonth(leap, 2), SizeIs(29));
    EXPECT_EQ(DaysOfMonth(leap, 2).back().date, DateSerial(2028, 2, 29));
}

TEST_F(TimetableModelTest, DaysHaveTheHijriDateOfTheFace) {
    EXPECT_EQ(TakeTimetable().days.at(324).hijri, (HijriDate{1448, 6, 10}));
}

TEST_F(TimetableModelTest, TimeThatDoesNotExistIsNone) {
    Times[kIsha][4] = NoEvent;
    const Timetable table = TakeTimetable();
    EXPECT_FALSE(table.days.at(4).moments[kIsha]);
    EXPECT_EQ(table.days.at(4).moments[kMaghrib]->hours, 18.0);
}

TEST_F(TimetableModelTest, DaylightSavingIsMarkedAtItsFirstAndItsLastDay) {
    Daylight(121, 273);
    EXPECT_THAT(DaysThat(DaylightChange::kBegins), ElementsAre(121));
    EXPECT_THAT(DaysThat(DaylightChange::kEnds), ElementsAre(273));
    const Timetable table = TakeTimetable();
    EXPECT_FALSE(table.days.at(119).daylight);
    EXPECT_TRUE(table.days.at(120).daylight);
    EXPECT_TRUE(table.days.at(272).daylight);
    EXPECT_FALSE(table.days.at(273).daylight);
}

TEST_F(TimetableModelTest, SouthernSummerWrapsRoundTheTurnOfTheYearWithoutAChangeThere) {
    Daylight(274, 91);
    EXPECT_THAT(DaysThat(DaylightChange::kBegins), ElementsAre(274));
    EXPECT_THAT(DaysThat(DaylightChange::kEnds), ElementsAre(91));
    EXPECT_TRUE(TakeTimetable().days.front().daylight);
    EXPECT_TRUE(TakeTimetable().days.back().daylight);
}

TEST_F(TimetableModelTest, SingleDayOfDaylightSavingOnlyBegins) {
    Daylight(121, 121);
    EXPECT_THAT(DaysThat(DaylightChange::kBegins), ElementsAre(121));
    EXPECT_THAT(DaysThat(DaylightChange::kEnds), IsEmpty());
}

TEST_F(TimetableModelTest, FollowsTheAcceptedDaylightSavingAndNotTheOneBeingEdited) {
    Settings.DstEnabled = 1;
    Settings.DstStart = 1;
    Settings.DstEnd = 300;
    EXPECT_FALSE(TakeTimetable().days.at(100).daylight);
}

// The settings' record cannot hold either zone.
TEST_F(TimetableModelTest, DaylightSavingIsThatOfTheZoneThatCounts) {
    LordHowe();
    EXPECT_THAT(DaysThat(DaylightChange::kEnds), ElementsAre(94));
    EXPECT_THAT(DaysThat(DaylightChange::kBegins), ElementsAre(277));
    const Timetable table = TakeTimetable();
    EXPECT_TRUE(table.days.front().daylight);
    EXPECT_EQ(table.days.front().offset, 11.0);
    EXPECT_EQ(table.timeZone, 10.5);
    EXPECT_EQ(ZoneFact(table, TakeTimetableWords()), "GMT +10.50, Australia/Lord_Howe");
}

TEST_F(TimetableModelTest, ZoneMayHaveTwoSpansOfDaylightSaving) {
    Casablanca();
    EXPECT_THAT(DaysThat(DaylightChange::kEnds), ElementsAre(45));
    EXPECT_THAT(DaysThat(DaylightChange::kBegins), ElementsAre(81));
    EXPECT_EQ(TakeTimetable().timeZone, 0.0);
}

TEST_F(TimetableModelTest, MomentHasTheOffsetOfItsOwnTime) {
    LordHowe();
    const Timetable table = TakeTimetable();
    const TimetableDay& day = table.days.at(94);  // 5 April
    EXPECT_EQ(OffsetOf(table, day, day.date + TimeSerial(1, 0, 0)), 11.0);
    EXPECT_EQ(OffsetOf(table, day, day.date + TimeSerial(4, 0, 0)), 10.5);
}

TEST_F(TimetableModelTest, NotesTellTheMarksOfTheirDays) {
    const Timetable plain = TakeTimetable();
    EXPECT_THAT(NotesOfDays(plain, DaysOfMonth(plain, 6)), IsEmpty());
    Oslo();
    const Timetable table = TakeTimetable();
    EXPECT_THAT(NotesOfDays(table, DaysOfMonth(table, 6)),
                ElementsAre("+1: on the next day", testing::HasSubstr("\"middle of the night\"")));
}

TEST(MinuteOf, RoundsToTheSecondAndDropsIt) {
    const Date day = DateSerial(2026, 6, 1);
    EXPECT_EQ(MinuteOf(day, 5.5).minute, 330);
    EXPECT_EQ(MinuteOf(day, 5.5 - 0.6 / 3600.0).minute, 329);
    EXPECT_EQ(MinuteOf(day, 5.5 - 0.4 / 3600.0).minute, 330);
    EXPECT_EQ(MinuteOf(day, 5.5).day, day);
}

TEST(MinuteOf, HourBeyondTheDayLiesOnTheNextOne) {
    const Date day = DateSerial(2026, 6, 1);
    EXPECT_EQ(MinuteOf(day, 24.3).day, day + 1.0);
    EXPECT_EQ(MinuteOf(day, 24.3).minute, 18);
    EXPECT_EQ(MinuteOf(day, 24.0 - 0.4 / 3600.0).day, day + 1.0);
    EXPECT_EQ(MinuteOf(day, -0.5).day, day - 1.0);
    EXPECT_EQ(MinuteOf(day, -0.5).minute, 1410);
}

TEST(TimetableTexts, FormsOfTheFileFormats) {
    EXPECT_EQ(IsoDate(CivilDate{2026, 3, 9}), "2026-03-09");
    EXPECT_EQ(IsoDate(HijriDate{1448, 12, 30}), "1448-12-30");
    const Date midsummer = DateSerial(2026, 6, 21);
    EXPECT_EQ(IsoMoment(midsummer, 24.5, -3.5), "2026-06-22T00:30:00-03:30");
    EXPECT_EQ(IsoMoment(midsummer, -0.25, 5.75), "2026-06-20T23:45:00+05:45");
    EXPECT_EQ(IsoTime(0), "00:00");
    EXPECT_EQ(IsoTime(1439), "23:59");
    EXPECT_EQ(PlainNumber(0.1), "0.1");
    EXPECT_EQ(PlainNumber(-3.5), "-3.5");
    EXPECT_EQ(PlainNumber(2.0), "2");
}

}  // namespace
}  // namespace horavex
