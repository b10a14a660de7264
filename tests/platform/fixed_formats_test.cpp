#include "platform/fixed_formats.h"

namespace horavex {
namespace {

constexpr double kSecond = 1.0 / kSecondsPerDay;

const Date kDay = DateSerial(2026, 11, 21);

TEST(FixedFormats, MediumTimeHasTwoDigitsOfHoursAndNoSeconds) {
    const FixedFormats formats;
    EXPECT_EQ(formats.MediumTime(kDay + TimeSerial(5, 31, 0)), "05:31 AM");
    EXPECT_EQ(formats.MediumTime(kDay + TimeSerial(17, 5, 59)), "05:05 PM");
}

TEST(FixedFormats, MidnightAndNoonAreTwelve) {
    const FixedFormats formats;
    EXPECT_EQ(formats.MediumTime(kDay), "12:00 AM");
    EXPECT_EQ(formats.LongTime(kDay + TimeSerial(0, 59, 59)), "12:59:59 AM");
    EXPECT_EQ(formats.MediumTime(kDay + TimeSerial(12, 0, 0)), "12:00 PM");
    EXPECT_EQ(formats.LongTime(kDay + TimeSerial(11, 59, 59)), "11:59:59 AM");
}

TEST(FixedFormats, TwelveHourTimeIsTheMediumOne) {
    EXPECT_EQ(FixedFormats().TwelveHourTime(kDay + TimeSerial(17, 5, 59)), "05:05 PM");
}

TEST(FixedFormats, MonthAndYearAreInFull) {
    EXPECT_EQ(FixedFormats().MonthAndYear(kDay), "November 2026");
    EXPECT_EQ(FixedFormats().MonthAndYear(DateSerial(2027, 1, 1)), "January 2027");
}

TEST(FixedFormats, LongTimeHasSeconds) {
    EXPECT_EQ(FixedFormats().LongTime(kDay + TimeSerial(5, 31, 0)), "5:31:00 AM");
    EXPECT_EQ(FixedFormats().LongTime(TimeSerial(23, 1, 9)), "11:01:09 PM");
}

TEST(FixedFormats, TimeIsRoundedToAWholeSecondBeforeSecondsAreDropped) {
    const FixedFormats formats;
    EXPECT_EQ(formats.MediumTime(kDay + TimeSerial(5, 30, 59) + 0.6 * kSecond), "05:31 AM");
    EXPECT_EQ(formats.MediumTime(kDay + TimeSerial(5, 30, 59) + 0.4 * kSecond), "05:30 AM");
    EXPECT_EQ(formats.LongTime(kDay + TimeSerial(23, 59, 59) + 0.6 * kSecond), "12:00:00 AM");
}

TEST(FixedFormats, DatesAreSpelledInEnglish) {
    const FixedFormats formats;
    EXPECT_EQ(formats.LongDate(kDay), "Saturday, November 21, 2026");
    EXPECT_EQ(formats.LongDate(DateSerial(2027, 1, 3)), "Sunday, January 3, 2027");
    EXPECT_EQ(formats.ShortDate(kDay), "11/21/2026");
    EXPECT_EQ(formats.ShortDate(DateSerial(2027, 1, 3)), "1/3/2027");
}

TEST(FixedFormats, EveryWeekdayHasItsName) {
    const char* names[] = {"Saturday",  "Sunday",   "Monday", "Tuesday",
                           "Wednesday", "Thursday", "Friday"};
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(FixedFormats().WeekdayName(kDay + i), names[i]);
    }
}

TEST(FixedFormats, EveryMonthHasItsName) {
    const char* names[] = {"January", "February", "March",     "April",   "May",      "June",
                           "July",    "August",   "September", "October", "November", "December"};
    for (int i = 0; i < 12; ++i) {
        EXPECT_THAT(FixedFormats().LongDate(DateSerial(2026, i + 1, 1)),
                    testing::EndsWith(std::string(", ") + names[i] + " 1, 2026"));
    }
}

TEST(FixedFormats, DateIsThatOfTheWholeSecond) {
    const FixedFormats formats;
    const Date lastInstant = kDay + TimeSerial(23, 59, 59) + 0.6 * kSecond;
    EXPECT_EQ(formats.ShortDate(lastInstant), "11/22/2026");
    EXPECT_EQ(formats.LongDate(lastInstant), "Sunday, November 22, 2026");
    EXPECT_EQ(formats.ShortDate(kDay + TimeSerial(23, 59, 59)), "11/21/2026");
    EXPECT_EQ(formats.WeekdayName(kDay + TimeSerial(23, 59, 59)), "Saturday");
}

TEST(FixedFormats, DecimalMarkIsThePoint) {
    EXPECT_EQ(FixedFormats().DecimalMark(), '.');
}

}  // namespace
}  // namespace horavex
