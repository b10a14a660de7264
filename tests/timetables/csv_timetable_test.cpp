#include "timetables/csv_timetable.h"

#include "base/text.h"
#include "engine/solar_event.h"
#include "timetables/sample_timetable.h"

namespace horavex {
namespace {

using testing::EndsWith;
using testing::SizeIs;
using testing::StartsWith;

using CsvTimetableTest = TimetableTest;

TEST_F(CsvTimetableTest, BeginsWithTheHeadAndTheFirstDay) {
    EXPECT_THAT(CsvTimetable(TakeTimetable()),
                StartsWith("Date,Hijri,Fajr,Shurooq,Zuhr,Asr,Maghrib,Isha,Daylight\r\n"
                           "2026-01-01,1447-07-12,05:00,06:30,12:00,15:15,18:00,19:30,0\r\n"
                           "2026-01-02,"));
}

TEST_F(CsvTimetableTest, ReadsBackToTheSameTable) {
    Daylight(121, 273);
    const Timetable table = TakeTimetable();
    const auto lines = Split(CsvTimetable(table), '\n');
    ASSERT_THAT(lines, SizeIs(1 + 365 + 1));
    EXPECT_EQ(lines.back(), "") << "the last line ends too";
    for (std::size_t row = 0; row < 365; ++row) {
        std::string line = lines[row + 1];
        ASSERT_THAT(line, EndsWith("\r"));
        line.pop_back();
        const auto fields = Split(line, ',');
        ASSERT_THAT(fields, SizeIs(9));
        const TimetableDay& day = table.days[row];
        EXPECT_EQ(fields[0], IsoDate(CivilFromDate(day.date)));
        EXPECT_EQ(fields[1], IsoDate(day.hijri));
        for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
            EXPECT_EQ(
                std::stoi(fields[2 + prayer]) + std::stoi(fields[2 + prayer].substr(3)) / 60.0,
                day.moments[prayer]->hours);
        }
        EXPECT_EQ(fields[8], day.daylight ? "1" : "0");
    }
}

TEST_F(CsvTimetableTest, MarksHaveAColumnInAYearThatHasSome) {
    Oslo();
    const auto lines = Split(CsvTimetable(TakeTimetable()), '\n');
    EXPECT_THAT(lines.at(0), EndsWith(",Daylight,Marks\r"));
    EXPECT_THAT(lines.at(1), EndsWith(",0,\r"));
    EXPECT_THAT(lines.at(172), EndsWith(",0,Fajr:rule Isha:rule Isha:+1\r"));
}

TEST_F(CsvTimetableTest, TimeThatDoesNotExistIsAnEmptyField) {
    Times[kIsha][0] = NoEvent;
    EXPECT_THAT(Split(CsvTimetable(TakeTimetable()), '\n').at(1), EndsWith(",18:00,,0\r"));
}

}  // namespace
}  // namespace horavex
