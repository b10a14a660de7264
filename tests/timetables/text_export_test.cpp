#include "timetables/text_export.h"

#include "base/text.h"
#include "engine/moment_text.h"
#include "engine/ruled_year.h"
#include "engine/solar_event.h"
#include "engine/year_table.h"
#include "store/around_options.h"
#include "support/other_formats.h"
#include "timetables/sample_timetable.h"
#include "timetables/timetable.h"
#include "windows/f_message.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

constexpr const char* kHeader =
    "City: Cairo - Egypt\r\n"
    "Latitude: 30 degrees, 3 minutes North\r\n"
    "Longitude: 31 degrees, 15 minutes East\r\n"
    "Time Zone: GMT +2.00\r\n"
    "Qibla: 136 degrees, 8 minutes East of North (first method) \r\n"
    "------------------------------------------------------------------------------\r\n"
    "          Fajr       Shurooq      Zuhr         Asr       Maghrib      Isha    \r\n"
    " Day      Fajr       Shurooq      Thuhr        Asr       Maghrib      Ishaa   \r\n"
    "------------------------------------------------------------------------------\r\n";

constexpr const char* kJanuaryTitle =
    "------------------------------------------------------------------------------\r\n"
    "                        Prayer times of January 2026.                         \r\n"
    "\r\n";

constexpr const char* kFirstSixDays =
    "   1    05:00 AM    06:30 AM    12:00 PM    03:15 PM    06:00 PM    07:30 PM  \r\n"
    "   2    05:00 AM    06:30 AM    12:00 PM    03:15 PM    06:00 PM    07:30 PM  \r\n"
    "   3    05:00 AM    06:30 AM    12:00 PM    03:15 PM    06:00 PM    07:30 PM  \r\n"
    "   4    05:00 AM    06:30 AM    12:00 PM    03:15 PM    06:00 PM    07:30 PM  \r\n"
    "   5    05:00 AM    06:30 AM    12:00 PM    03:15 PM    06:00 PM    07:30 PM  \r\n"
    "\r\n"
    "   6    05:00 AM    06:30 AM    12:00 PM    03:15 PM    06:00 PM    07:30 PM  \r\n";

constexpr const char* kLastDaysOfJanuary =
    "  29    05:00 AM    06:30 AM    12:00 PM    03:15 PM    06:00 PM    07:30 PM  \r\n"
    "  30    05:00 AM    06:30 AM    12:00 PM    03:15 PM    06:00 PM    07:30 PM  \r\n"
    "  31    05:00 AM    06:30 AM    12:00 PM    03:15 PM    06:00 PM    07:30 PM  \r\n"
    "-------------------------------------------------------------------------------\r\n"
    "\r\n";

class TextPagesTest : public TimetableTest {
protected:
    std::string Written() {
        const auto file = platform.files.OpenForWriting("/year.txt");
        WriteTextPages(*file, [] { return false; });
        file->Commit();
        return StringOf(platform.files.Contents("/year.txt"));
    }

    std::vector<std::string> Pages() { return Split(Written(), '\f'); }

    static std::vector<std::string> Lines(const std::string& page) { return Split(page, '\n'); }

    /// Lines with a day's number.
    static std::vector<std::string> Rows(const std::string& page) {
        std::vector<std::string> rows;
        for (const std::string& line : Lines(page)) {
            if (line.find("AM") != std::string::npos) {
                rows.push_back(line);
            }
        }
        return rows;
    }

    static std::vector<std::string> Starred(const std::string& page) {
        std::vector<std::string> days;
        for (const std::string& row : Rows(page)) {
            if (row.starts_with("*")) {
                days.push_back(std::string(Trim(row.substr(1, 5))));
            }
        }
        return days;
    }

    static std::size_t Notes(const std::string& page) {
        std::size_t notes = 0;
        for (const std::string& line : Lines(page)) {
            notes += line.starts_with("* Note : ") ? 1U : 0U;
        }
        return notes;
    }
};

TEST_F(TextPagesTest, JanuaryIsAsWrittenByHand) {
    const std::string january = Pages().at(0);
    EXPECT_THAT(january, StartsWith(std::string(kJanuaryTitle) + kHeader + kFirstSixDays));
    EXPECT_THAT(january, EndsWith(kLastDaysOfJanuary));
}

TEST_F(TextPagesTest, MonthsAreTwelvePagesWithAFormFeedBeforeAllButTheFirst) {
    const std::string written = Written();
    EXPECT_EQ(written.find('\f'), written.find("\r\n\r\n\f") + 4) << "behind January's last line";
    const auto pages = Split(written, '\f');
    ASSERT_THAT(pages, SizeIs(12));
    for (const std::string& page : pages) {
        EXPECT_THAT(page, StartsWith(std::string(78, '-') + "\r\n"));
        EXPECT_THAT(page, HasSubstr(kHeader));
        EXPECT_THAT(page, EndsWith("\r\n" + std::string(79, '-') + "\r\n\r\n"));
    }
    EXPECT_THAT(pages.at(11), HasSubstr(" Prayer times of December 2026. "));
}

TEST_F(TextPagesTest, LinesEndInCarriageReturnAndLineFeed) {
    for (const std::string& line : Lines(Written())) {
        EXPECT_TRUE(line.empty() || line.ends_with('\r')) << line;
    }
}

TEST_F(TextPagesTest, CommonYearHasARowForEachDay) {
    std::vector<std::size_t> days;
    for (const std::string& page : Pages()) {
        days.push_back(Rows(page).size());
    }
    EXPECT_THAT(days, ElementsAre(31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31));
}

TEST_F(TextPagesTest, LeapYearHasTheTwentyNinthOfFebruary) {
    TakeYear(2028);
    const auto pages = Pages();
    EXPECT_THAT(Rows(pages.at(1)), SizeIs(29));
    EXPECT_THAT(Rows(Written()), SizeIs(366));
}

TEST_F(TextPagesTest, RowsAreThoseOfTheTable) {
    Times[kFajr][31] = 4.5;
    Times[kIsha][364] = 20.0 + 1.0 / 60.0;
    const auto pages = Pages();
    EXPECT_THAT(Rows(pages.at(1)).at(0), StartsWith("   1    04:30 AM "));
    EXPECT_THAT(Rows(pages.at(11)).at(30), EndsWith("    08:01 PM  \r"));
}

TEST_F(TextPagesTest, MarksAreExplainedBelowTheirMonthWithinThePage) {
    Oslo();
    const auto pages = Pages();
    EXPECT_THAT(pages.at(5),
                HasSubstr("\u2020\r\n+1: on the next day\r\nTimes marked \u2020 follow "
                          "the high latitude rule \"middle of the night\" instead "
                          "of\r\nthe sun.\r\n-----"));
    EXPECT_THAT(pages.at(0), Not(HasSubstr("Times marked")));
}

TEST_F(TextPagesTest, MarksOfTimesThatThePagesDoNotHaveAreNotExplained) {
    RuledYear.inputs = PresentInputs();
    SaveOption(option::kAroundTheDay, 1);
    EXPECT_TRUE(HasMarks(TakeTimetable().days.front().around.at(kLastThird).value()));
    EXPECT_THAT(Written(), Not(HasSubstr("+1: on the next day")));
}

TEST_F(TextPagesTest, ZoneOfItsOwnMarksItsChangesAndIsNamed) {
    Daylight(10, 20);
    LordHowe();
    const auto pages = Pages();
    EXPECT_THAT(Starred(pages.at(0)), IsEmpty());
    EXPECT_THAT(Starred(pages.at(3)), ElementsAre("4"));
    EXPECT_THAT(Starred(pages.at(9)), ElementsAre("4"));
    EXPECT_THAT(pages.at(3), HasSubstr("Time Zone: GMT +10.50, Australia/Lord_Howe\r\n"));
}

TEST_F(TextPagesTest, RulesOfTheYearCountInTheRows) {
    RuledYear.inputs = PresentInputs();
    RuledYear.rules.moments.ishaInterval = 95;
    RuledYear.rules.moments.offsets[kFajr] = -2;
    EXPECT_THAT(Written(), HasSubstr("   1    04:58 AM    06:30 AM    12:00 PM    03:15 PM    "
                                     "06:00 PM    07:35 PM  \r\n"));
}

TEST_F(TextPagesTest, EmptyLineFollowsEveryFifthDayBelowThirty) {
    std::vector<std::string> before;
    std::string last;
    for (const std::string& line : Lines(Pages().at(0).substr(std::string(kJanuaryTitle).size()))) {
        if (line == "\r" && last.find("AM") != std::string::npos) {
            before.emplace_back(Trim(last.substr(1, 5)));
        }
        last = line;
    }
    EXPECT_THAT(before, ElementsAre("5", "10", "15", "20", "25"));
}

TEST_F(TextPagesTest, ThirtiethRunsIntoTheRule) {
    const std::string april = Pages().at(3);
    EXPECT_THAT(april, HasSubstr("  30    05:00 AM "));
    EXPECT_THAT(april, HasSubstr("07:30 PM  \r\n" + std::string(79, '-') + "\r\n\r\n"));
}

TEST_F(TextPagesTest, DaylightSavingMarksItsTwoDaysAndTellsThemInTheFootnotes) {
    Daylight(121, 273);
    const auto pages = Pages();
    EXPECT_THAT(Starred(pages.at(4)), ElementsAre("1"));
    EXPECT_THAT(Starred(pages.at(8)), ElementsAre("30"));
    EXPECT_THAT(pages.at(4),
                EndsWith(std::string(79, '-') + "\r\n* Note : Start of daylight saving.\r\n\r\n"));
    EXPECT_THAT(pages.at(8),
                EndsWith(std::string(79, '-') + "\r\n* Note : End of daylight saving.\r\n\r\n"));
    for (const std::size_t month : {0U, 3U, 5U, 7U, 9U, 11U}) {
        EXPECT_EQ(Notes(pages.at(month)), 0U) << month;
    }
}

TEST_F(TextPagesTest, StarStandsInThePlaceOfABlank) {
    Daylight(121, 273);
    EXPECT_EQ(Rows(Pages().at(4)).at(0),
              "*  1    05:00 AM    06:30 AM    12:00 PM    03:15 PM    06:00 PM    07:30 PM  \r");
}

TEST_F(TextPagesTest, TwoChangesInOneMonthAreTwoStarsAndTheLaterFootnote) {
    Daylight(122, 140);
    const std::string may = Pages().at(4);
    EXPECT_THAT(Starred(may), ElementsAre("2", "20"));
    EXPECT_EQ(Notes(may), 1U);
    EXPECT_THAT(may, HasSubstr("* Note : End of daylight saving."));
}

TEST_F(TextPagesTest, EndBeforeTheStartIsMarkedAsItComes) {
    Daylight(274, 91);  // south of the equator
    const auto pages = Pages();
    EXPECT_THAT(pages.at(3), HasSubstr("* Note : End of daylight saving."));
    EXPECT_THAT(pages.at(9), HasSubstr("* Note : Start of daylight saving."));
}

TEST_F(TextPagesTest, StartAndEndOnOneDayGiveTheStartAlone) {
    Daylight(122, 122);
    const std::string may = Pages().at(4);
    EXPECT_THAT(Starred(may), ElementsAre("2"));
    EXPECT_THAT(may, HasSubstr("* Note : Start of daylight saving."));
}

TEST_F(TextPagesTest, NoDaylightSavingNoStar) {
    Daylight(121, 273);
    for (const std::int16_t other : std::initializer_list<std::int16_t>{0, -1, 2}) {
        ActiveSettings.DstEnabled = other;
        EXPECT_THAT(Written(), Not(HasSubstr("*")));
    }
}

TEST_F(TextPagesTest, ChangeInTheLastMonthIsStillTold) {
    Daylight(60, 365);
    EXPECT_THAT(Pages().at(11), EndsWith("\r\n* Note : End of daylight saving.\r\n\r\n"));
}

TEST_F(TextPagesTest, SecondQiblaMethodAndAWesternZoneAreTold) {
    ActiveSettings.QiblaMethod = 2;
    ActiveSettings.TimeZone = -3.5;
    EXPECT_THAT(Pages().at(0), HasSubstr("Time Zone: GMT -3.50\r\nQibla: 136 degrees, 8 minutes "
                                         "East of North (second method) \r\n"));
}

TEST_F(TextPagesTest, ZoneHasTheDecimalMarkOfTheUser) {
    class CommaFormats : public FixedFormats {
        char DecimalMark() const override { return ','; }
    } formats;
    const Platform& former = Ports();
    const Platform ports = WithFormats(former, formats);
    InstallPlatform(&ports);
    ActiveSettings.TimeZone = 5.75;
    const std::string january = Pages().at(0);
    InstallPlatform(&former);
    EXPECT_THAT(january, HasSubstr("Time Zone: GMT +5,75\r\n"));
}

TEST_F(TextPagesTest, PlaceIsToldInTheWordsOfTheAcceptedLanguage) {
    ActiveSettings.Language = 2;
    Settings.Language = 1;
    for (const auto& [entry, text] :
         std::initializer_list<std::pair<TextEntry, const char*>>{{TextEntry::kNorth, "Nord"},
                                                                  {TextEntry::kEast, "Est"},
                                                                  {TextEntry::kDegrees, "degr"},
                                                                  {TextEntry::kMinutes, "min"},
                                                                  {TextEntry::kLatitude, "Lat"},
                                                                  {TextEntry::kLongitude, "Lon"}}) {
        data.WriteText(entry, 2, text);
    }
    const std::string january = Pages().at(0);
    EXPECT_THAT(january, HasSubstr("\r\nLat: 30 degr, 3 min Nord\r\n"));
    EXPECT_THAT(january, HasSubstr("\r\nLon: 31 degr, 15 min Est\r\n"));
}

TEST_F(TextPagesTest, TimeThatDoesNotExistComesOutAsItsFormatGivesIt) {
    Times[kIsha][0] = NoEvent;
    EXPECT_THAT(Rows(Pages().at(0)).at(0), EndsWith("    06:00 PM    04:00 PM  \r"));
}

TEST_F(TextPagesTest, LongNameIsCutToItsCell) {
    data.WriteText(TextEntry::kShurooq, 1, "Rising of the sun");
    EXPECT_THAT(Pages().at(0), HasSubstr("          Fajr     Rising of t    Zuhr    "));
}

TEST_F(TextPagesTest, TextsAreOfTheAcceptedLanguageInUtf8WithoutAMark) {
    ActiveSettings.Language = 4;
    data.WriteText(TextEntry::kCity, 4, "المدينة");
    data.WriteText(TextEntry::kFajr, 4, "الفجر");
    const std::string january = Pages().at(0);
    EXPECT_THAT(january, StartsWith("-"));
    EXPECT_THAT(january, HasSubstr("\r\nالمدينة: Cairo - Egypt\r\n"));
    EXPECT_THAT(january, HasSubstr("\r\n          الفجر    "));
}

TEST_F(TextPagesTest, FaultOfTheFileComesThrough) {
    platform.failingFiles.FailCall(0);
    const auto file = platform.failingFiles.OpenForWriting("/year.txt");
    platform.failingFiles.FailCall(3 + 30);  // behind the texts of the head
    EXPECT_THROW(WriteTextPages(*file, [] { return false; }), FileFault);
}

using MonthEndTest = TimetableTest;

TEST_F(MonthEndTest, TellsTheProgressAndForgetsTheFootnote) {
    fMessage->Load();
    const auto file = platform.files.OpenForWriting("/month.txt");
    DaylightNote flag = "F";
    std::string page = "page";
    sub0529(flag, 3, page, *file);
    file->Commit();
    EXPECT_EQ(flag, " ");
    EXPECT_EQ(StringOf(platform.files.Contents("/month.txt")),
              "page" + std::string(79, '-') + "\r\n* Note : End of daylight saving.\r\n\r\n");
    const auto& bar = std::get<PolygonStep>(fMessage->picProgress.drawing.at(0));
    EXPECT_DOUBLE_EQ(bar.corners.at(1).x, fMessage->picProgress.Width() / 4.0);
    EXPECT_EQ(platform.loop.Pumps(), 2);
}

TEST(CenterText, OddBlankStandsBehind) {
    EXPECT_EQ(CenterText("Asr", 6), " Asr  ");
    EXPECT_EQ(CenterText("Fajr", 6), " Fajr ");
    EXPECT_EQ(CenterText("", 3), "   ");
}

TEST(CenterText, FullCellStaysAndALongerTextIsCut) {
    EXPECT_EQ(CenterText("Maghrib", 7), "Maghrib");
    EXPECT_EQ(CenterText("Maghrib", 4), "Magh");
    EXPECT_EQ(CenterText("Maghrib", 0), "");
}

TEST(CenterText, WidthCountsCharacters) {
    EXPECT_EQ(CenterText("الفجر", 9), "  الفجر  ");
    EXPECT_EQ(CenterText("الفجر", 3), "الف");
    EXPECT_EQ(CenterText("Été", 4), "Été ");
}

}  // namespace
}  // namespace horavex
