#include "timetables/ics_timetable.h"

#include <set>

#include "base/text.h"
#include "base/utf8.h"
#include "engine/solar_event.h"
#include "timetables/sample_timetable.h"

namespace horavex {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

class IcsTimetableTest : public TimetableTest {
protected:
    static std::string Calendar() {
        return IcsTimetable(TakeTimetable(), TakeTimetableWords(),
                            DateSerial(2026, 11, 21) + TimeSerial(12, 34, 56));
    }

    /// Lines as they stand in the file, without their ends.
    static std::vector<std::string> FoldedLines(const std::string& calendar) {
        std::vector<std::string> lines = Split(calendar, '\n');
        EXPECT_EQ(lines.back(), "");
        lines.pop_back();
        for (std::string& line : lines) {
            EXPECT_TRUE(line.ends_with('\r')) << line;
            line.pop_back();
        }
        return lines;
    }

    static std::vector<std::string> Lines(const std::string& calendar) {
        std::vector<std::string> lines;
        for (const std::string& line : FoldedLines(calendar)) {
            if (line.starts_with(' ')) {
                lines.back() += line.substr(1);
            } else {
                lines.push_back(line);
            }
        }
        return lines;
    }

    static std::vector<std::string> LinesWith(const std::string& beginning) {
        std::vector<std::string> found;
        for (const std::string& line : Lines(Calendar())) {
            if (line.starts_with(beginning)) {
                found.push_back(line);
            }
        }
        return found;
    }

    /// The lines of the zone between its name and its end.
    static std::vector<std::string> Zone() {
        const auto lines = Lines(Calendar());
        const auto begin = std::find(lines.begin(), lines.end(), "BEGIN:VTIMEZONE");
        const auto end = std::find(lines.begin(), lines.end(), "END:VTIMEZONE");
        return {begin + 2, end};
    }
};

TEST_F(IcsTimetableTest, FirstEventIsTheFirstDaysFajrWithAnAlarm) {
    EXPECT_THAT(Calendar(), HasSubstr("BEGIN:VEVENT\r\n"
                                      "UID:20260101-fajr+3005+3125@horavex.invalid\r\n"
                                      "DTSTAMP:20261121T123456Z\r\n"
                                      "DTSTART;TZID=Horavex/2026/+0200:20260101T050000\r\n"
                                      "SUMMARY:Fajr\r\n"
                                      "LOCATION:Cairo - Egypt\r\n"
                                      "GEO:30.05;31.25\r\n"
                                      "TRANSP:TRANSPARENT\r\n"
                                      "BEGIN:VALARM\r\n"
                                      "ACTION:DISPLAY\r\n"
                                      "TRIGGER:PT0S\r\n"
                                      "DESCRIPTION:Fajr\r\n"
                                      "END:VALARM\r\n"
                                      "END:VEVENT\r\n"));
}

TEST_F(IcsTimetableTest, HasSixEventsADayAndAnAlarmAtAllButSunrise) {
    EXPECT_THAT(LinesWith("BEGIN:VEVENT"), SizeIs(6 * 365));
    EXPECT_THAT(LinesWith("BEGIN:VALARM"), SizeIs(5 * 365));
    const auto ids = LinesWith("UID:");
    EXPECT_EQ(std::set<std::string>(ids.begin(), ids.end()).size(), ids.size());
}

TEST_F(IcsTimetableTest, IdentifiersStayWhenTheTimesChangeAndDifferBetweenPlaces) {
    const auto before = LinesWith("UID:");
    Times[kFajr].fill(4.75);
    ActiveSettings.FajrAngle = 18.0;
    Daylight(121, 273);
    EXPECT_EQ(LinesWith("UID:"), before);
    ActiveLocation.City.Latitude = -3391;
    EXPECT_THAT(LinesWith("UID:").at(0), "UID:20260101-fajr-3391+3125@horavex.invalid");
}

TEST_F(IcsTimetableTest, LongLinesAreFoldedAtSeventyFiveBytesBetweenCharacters) {
    ActiveCityText = "قرية طويلة الاسم جدا في محافظة بعيدة جدا - بلاد الله الواسعة، والعالم كله";
    for (const std::string& line : FoldedLines(Calendar())) {
        EXPECT_LE(line.size(), 75U);
        EXPECT_TRUE(IsUtf8(line)) << line;
    }
    EXPECT_THAT(Lines(Calendar()), Contains("LOCATION:" + ActiveCityText));
}

TEST_F(IcsTimetableTest, LineOfSeventyFiveBytesIsNotFolded) {
    ActiveCityText = std::string(66, 'a');
    EXPECT_THAT(FoldedLines(Calendar()), Contains("LOCATION:" + ActiveCityText));
    ActiveCityText += 'b';
    EXPECT_THAT(FoldedLines(Calendar()), Contains(" b"));
}

TEST_F(IcsTimetableTest, TextsAreEscaped) {
    ActiveCityText = "Cairo, Old; \\ town\nEgypt";
    EXPECT_THAT(Lines(Calendar()), Contains("LOCATION:Cairo\\, Old\\; \\\\ town\\nEgypt"));
}

TEST_F(IcsTimetableTest, ZoneWithoutDaylightSavingIsOneClock) {
    EXPECT_THAT(Zone(), ElementsAre("BEGIN:STANDARD", "DTSTART:20260101T000000",
                                    "TZOFFSETFROM:+0200", "TZOFFSETTO:+0200", "END:STANDARD"));
}

TEST_F(IcsTimetableTest, DaylightSavingChangesTheClockAtTheBeginningOfItsDays) {
    Daylight(121, 273);
    EXPECT_THAT(Zone(), ElementsAre("BEGIN:STANDARD", "DTSTART:20260101T000000",
                                    "TZOFFSETFROM:+0200", "TZOFFSETTO:+0200", "END:STANDARD",  //
                                    "BEGIN:DAYLIGHT", "DTSTART:20260501T000000",
                                    "TZOFFSETFROM:+0200", "TZOFFSETTO:+0300", "END:DAYLIGHT",  //
                                    "BEGIN:STANDARD", "DTSTART:20261001T010000",
                                    "TZOFFSETFROM:+0300", "TZOFFSETTO:+0200", "END:STANDARD"));
}

TEST_F(IcsTimetableTest, OtherClockHasAZoneOfAnotherName) {
    EXPECT_THAT(LinesWith("TZID:"), ElementsAre("TZID:Horavex/2026/+0200"));
    Daylight(121, 273);
    EXPECT_THAT(LinesWith("TZID:"), ElementsAre("TZID:Horavex/2026/+0200/0501/0930"));
    Daylight(274, 91);
    EXPECT_THAT(LinesWith("TZID:"), ElementsAre("TZID:Horavex/2026/+0300/0401/1001"));
}

TEST_F(IcsTimetableTest, SouthernSummerBeginsTheYearWithDaylightSaving) {
    Daylight(274, 91);
    const auto zone = Zone();
    ASSERT_THAT(zone, SizeIs(15));
    EXPECT_EQ(zone[0], "BEGIN:DAYLIGHT");
    EXPECT_EQ(zone[2], "TZOFFSETFROM:+0300");
    EXPECT_EQ(zone[5], "BEGIN:STANDARD");
    EXPECT_EQ(zone[6], "DTSTART:20260402T010000");
    EXPECT_EQ(zone[10], "BEGIN:DAYLIGHT");
    EXPECT_EQ(zone[11], "DTSTART:20261001T000000");
}

TEST_F(IcsTimetableTest, EventsByAZoneOfItsOwnAreToldInUniversalTime) {
    LordHowe();
    const std::string calendar = Calendar();
    EXPECT_THAT(calendar, Not(HasSubstr("VTIMEZONE")));
    EXPECT_THAT(calendar, Not(HasSubstr("TZID")));
    EXPECT_THAT(LinesWith("DTSTART:202601"), Contains("DTSTART:20260101T013000Z"));
    EXPECT_THAT(calendar, HasSubstr("UID:20260701-zuhr+3005+3125@horavex.invalid\r\n"
                                    "DTSTAMP:20261121T123456Z\r\nDTSTART:20260701T013000Z\r\n"));
}

TEST_F(IcsTimetableTest, TimeByARuleIsMarkedAndExplained) {
    Oslo();
    const auto lines = Lines(Calendar());
    EXPECT_THAT(lines, Contains("SUMMARY:Isha \u2020"));
    EXPECT_THAT(lines, Contains(StartsWith("DESCRIPTION:Times marked \u2020")));
    EXPECT_THAT(lines, Contains("SUMMARY:Maghrib"));
}

TEST_F(IcsTimetableTest, ZonesOfPartsOfAnHourAndWestOfGreenwich) {
    ActiveSettings.TimeZone = 5.75;
    EXPECT_THAT(Zone(), Contains("TZOFFSETTO:+0545"));
    ActiveSettings.TimeZone = -3.5;
    EXPECT_THAT(Zone(), Contains("TZOFFSETTO:-0330"));
    ActiveSettings.TimeZone = 0.01;
    EXPECT_THAT(Zone(), Contains("TZOFFSETTO:+000036"));
}

TEST_F(IcsTimetableTest, IshaBehindMidnightLiesOnTheNextDayAndKeepsItsIdentifier) {
    Times[kIsha][151] = 24.3;
    EXPECT_THAT(Calendar(), HasSubstr("UID:20260601-isha+3005+3125@horavex.invalid\r\n"
                                      "DTSTAMP:20261121T123456Z\r\n"
                                      "DTSTART;TZID=Horavex/2026/+0200:20260602T001800\r\n"));
}

TEST_F(IcsTimetableTest, TimeThatDoesNotExistIsNoEvent) {
    Times[kIsha][151] = NoEvent;
    EXPECT_THAT(LinesWith("BEGIN:VEVENT"), SizeIs(6 * 365 - 1));
    EXPECT_THAT(Calendar(), Not(HasSubstr("UID:20260601-isha")));
}

TEST_F(IcsTimetableTest, CalendarIsNamedAndFramed) {
    const auto lines = Lines(Calendar());
    EXPECT_EQ(lines.front(), "BEGIN:VCALENDAR");
    EXPECT_EQ(lines.back(), "END:VCALENDAR");
    EXPECT_THAT(lines, Contains("VERSION:2.0"));
    EXPECT_THAT(lines, Contains("X-WR-CALNAME:Prayer times\\, Cairo - Egypt"));
}

}  // namespace
}  // namespace horavex
