#include "timetables/html_timetable.h"

#include "engine/ruled_year.h"
#include "engine/solar_event.h"
#include "lang/language_pack.h"
#include "lang/own_digits.h"
#include "store/around_options.h"
#include "timetables/sample_timetable.h"

namespace horavex {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class HtmlTimetableTest : public TimetableTest {
protected:
    std::string Page() const {
        return HtmlTimetable(TakeTimetable(), TakeTimetableWords(), platform.clock.Today());
    }

    static int CountOf(const std::string& text, const std::string& part) {
        int count = 0;
        for (std::size_t at = text.find(part); at != std::string::npos;
             at = text.find(part, at + 1)) {
            ++count;
        }
        return count;
    }
};

TEST_F(HtmlTimetableTest, NeedsNoOtherFileAndNoScript) {
    const std::string page = Page();
    EXPECT_THAT(page, StartsWith("<!DOCTYPE html>\n<html lang=\"en\" dir=\"ltr\">\n"));
    for (const char* outside : {"src=", "url(", "@import", "<link", "<script", "http"}) {
        EXPECT_THAT(page, Not(HasSubstr(outside)));
    }
}

TEST_F(HtmlTimetableTest, HasATableAMonthWithACaptionAndMarkedUpHeads) {
    const std::string page = Page();
    EXPECT_EQ(CountOf(page, "<table>"), 12);
    EXPECT_EQ(CountOf(page, "<caption>"), 12);
    EXPECT_EQ(CountOf(page, "<th scope=\"row\">"), 365);
    EXPECT_EQ(CountOf(page, "<th scope=\"col\">"), 12 * 8);
    EXPECT_EQ(CountOf(page, "<time datetime="), 365 * 6);
}

TEST_F(HtmlTimetableTest, RowTellsTheDayInBothCalendarsAndTheTimesInTheUsersForm) {
    EXPECT_THAT(
        Page(),
        HasSubstr("<tr><th scope=\"row\">1 Thursday</th><td>12  1447</td>"
                  "<td><time datetime=\"2026-01-01T05:00\" dir=\"auto\">05:00 AM</time></td>"));
}

TEST_F(HtmlTimetableTest, ReadersHaveTheDigitsOfTheLanguageAndOtherProgramsPlainOnes) {
    data.Write("lang/Bengali.ini", "[timetables]\nDigits=০১২৩৪৫৬৭৮৯\n");
    currentLanguage = "Bengali";
    ShowOwnDigits(true);
    const std::string page = Page();
    EXPECT_THAT(
        page,
        HasSubstr("<tr><th scope=\"row\">১ Thursday</th><td>১২  ১৪৪৭</td>"
                  "<td><time datetime=\"2026-01-01T05:00\" dir=\"auto\">০৫:০০ AM</time></td>"));
    EXPECT_THAT(page, HasSubstr("<h1>Prayer times ২০২৬</h1>"));
    EXPECT_THAT(page, HasSubstr("<a href=\"#month-1\">"));
}

TEST_F(HtmlTimetableTest, IntervalIsToldInThePlaceOfTheAngleThatDoesNotCount) {
    EXPECT_THAT(Page(), HasSubstr("<dt>Isha angle: </dt>"));
    RuledYear.rules.moments.ishaInterval = 90;
    const std::string page = Page();
    EXPECT_THAT(page, Not(HasSubstr("Isha angle")));
    EXPECT_THAT(page, HasSubstr("<dt>Isha: </dt><dd dir=\"auto\">Maghrib + 90 min</dd>"));
    RuledYear.rules.moments.ishaIntervalRamadan = 120;
    EXPECT_THAT(Page(), testing::ContainsRegex("Maghrib [+] 90 min [(].*: 120 min[)]"));
}

TEST_F(HtmlTimetableTest, MarksStandBesideTheTimesAndAreExplainedBelowTheTables) {
    Oslo();
    const std::string page = Page();
    EXPECT_TRUE(page.find("\"2026-06-22T01:18\" dir=\"auto\">01:18 AM+1\u2020</time>") !=
                std::string::npos);
    EXPECT_EQ(CountOf(page, "<p>+1: on the next day</p>\n<p>Times marked \u2020"), 5);
}

TEST_F(HtmlTimetableTest, TimesAroundTheDayHaveColumns) {
    RuledYear.inputs = PresentInputs();
    SaveOption(option::kAroundTheDay, 1);
    const std::string page = Page();
    EXPECT_EQ(CountOf(page, "<th scope=\"col\">Last third</th></tr>"), 12);
    EXPECT_EQ(CountOf(page, ">01:20 AM+1</time></td></tr>"), 365);
}

TEST_F(HtmlTimetableTest, FridaysAreSetOffAndTodayIsMarked) {
    const std::string page = Page();
    EXPECT_EQ(CountOf(page, " class=\"friday\""), 52);
    EXPECT_EQ(CountOf(page, "aria-current=\"date\""), 1);
    EXPECT_THAT(page, HasSubstr("<tr aria-current=\"date\"><th scope=\"row\">21 Saturday</th>"));
}

TEST_F(HtmlTimetableTest, OtherYearHasNoToday) {
    TakeYear(2027);
    EXPECT_EQ(CountOf(Page(), "aria-current=\"date\""), 0);
}

TEST_F(HtmlTimetableTest, ChangesOfDaylightSavingAreMarkedAndTold) {
    Daylight(121, 273);
    const std::string page = Page();
    EXPECT_THAT(page, HasSubstr("<th scope=\"row\">1 Friday *</th>"));
    EXPECT_THAT(page, HasSubstr("<p>* 1: Daylight saving begins on this day</p>"));
    EXPECT_THAT(page, HasSubstr("<p>* 30: Daylight saving ends with this day</p>"));
    EXPECT_EQ(CountOf(page, " *</th>"), 2);
}

TEST_F(HtmlTimetableTest, HeadTellsPlaceMethodAndQibla) {
    const std::string page = Page();
    EXPECT_THAT(
        page,
        HasSubstr("<h1>Prayer times 2026</h1>\n<p class=\"place\"><bdi>Cairo - Egypt</bdi></p>"));
    EXPECT_THAT(page, HasSubstr("<dt>Latitude: </dt><dd dir=\"auto\">30.05°</dd>"));
    EXPECT_THAT(page, HasSubstr("<dt>Time zone: </dt><dd dir=\"auto\">GMT +2.00</dd>"));
    EXPECT_THAT(page, HasSubstr("<dt>Fajr angle: </dt><dd dir=\"auto\">19.5°</dd>"));
    EXPECT_THAT(page, HasSubstr("<dt>Asr ratio: </dt><dd dir=\"auto\">1:1</dd>"));
    EXPECT_THAT(page, HasSubstr("<dd dir=\"auto\">136.1°</dd>"));
}

TEST_F(HtmlTimetableTest, SpeaksTheLanguageOfThePackInItsDirection) {
    data.Write("lang/Arabic.ini",
               "[timetables]\nCode=ar\nDirection=rtl\nMonth1=يناير\nFajr=الفجر\n");
    currentLanguage = "Arabic";
    const std::string page = Page();
    EXPECT_THAT(page, HasSubstr("<html lang=\"ar\" dir=\"rtl\">"));
    EXPECT_THAT(page, HasSubstr("<caption>يناير 2026</caption>"));
    EXPECT_THAT(page, HasSubstr("<th scope=\"col\">الفجر</th>"));
}

TEST_F(HtmlTimetableTest, NumbersTimesAndMarksAreWrittenAsThePackWritesThem) {
    data.Write("lang/French.ini",
               "[timetables]\nMonth1=janvier\nColon=\"\u00A0: \"\nComma=\" / \"\n"
               "DecimalMark=,\nClock=24\n[adjustments]\nMinutes={minutes} minutes\n");
    currentLanguage = "French";
    RuledYear.rules.moments.ishaInterval = 90;
    const std::string page = Page();
    EXPECT_THAT(page, HasSubstr("<dt>Latitude\u00A0: </dt><dd dir=\"auto\">30,05°</dd>"));
    EXPECT_THAT(page, HasSubstr("GMT +2,00</dd>"));
    EXPECT_THAT(page, HasSubstr("Maghrib + 90 minutes</dd>"));
    EXPECT_THAT(page, HasSubstr("<title>Prayer times 2026 / Cairo - Egypt</title>"));
    EXPECT_THAT(page, HasSubstr(">18:00</time>"));
    EXPECT_THAT(page, Not(HasSubstr(" PM")));
    EXPECT_THAT(page, HasSubstr("<a href=\"#month-1\">Janvier</a>"));
    EXPECT_THAT(page, HasSubstr("<caption>Janvier 2026</caption>"));
}

TEST_F(HtmlTimetableTest, TextsAreEscapedAndATimeThatDoesNotExistIsAnEmptyCell) {
    ActiveCityText = "<Cairo> & \"Giza\"";
    Times[kIsha][0] = NoEvent;
    const std::string page = Page();
    EXPECT_THAT(page, HasSubstr("&lt;Cairo&gt; &amp; &quot;Giza&quot;"));
    EXPECT_EQ(CountOf(page, "<td></td>"), 1);
}

}  // namespace
}  // namespace horavex
