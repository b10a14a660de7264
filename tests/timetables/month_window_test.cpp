#include "timetables/month_window.h"

#include <map>

#include "base/unbroken.h"
#include "engine/current_year.h"
#include "engine/day_driver.h"
#include "engine/ruled_year.h"
#include "engine/year_table.h"
#include "lang/language_pack.h"
#include "store/around_options.h"
#include "support/program_test.h"
#include "timetables/document_tools.h"
#include "timetables/times_window.h"
#include "windows/frm_month.h"
#include "windows/frm_times.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

/// The running program with its month window open on November 2026.
class MonthWindowTest : public ProgramTest {
protected:
    MonthWindowTest() {
        StartAgain();
        ShowTimesWindow();
        frmTimes->cmdMonth.UserClick();
    }

    /// Takes daylight saving from one day of the year to another into the table and the window.
    void OpenWithDaylight(std::int16_t start, std::int16_t end) {
        Settings.DstEnabled = 1;
        Settings.DstStart = start;
        Settings.DstEnd = end;
        ActiveSettings = Settings;
        RefreshAll();
        frmMonth->Unload();
        ShowMonthWindow();
    }

    static std::vector<std::string> DaysWhere(bool Grid::Row::*flag) {
        std::vector<std::string> days;
        for (const Grid::Row& row : frmMonth->grdMonth.rows) {
            if (row.*flag) {
                days.push_back(row.cells.at(0));
            }
        }
        return days;
    }
};

TEST_F(MonthWindowTest, OpensModallyOnThePresentMonthFromTheDayBrowser) {
    EXPECT_TRUE(frmMonth->IsModal());
    EXPECT_EQ(frmMonth->Owner(), &*frmTimes);
    EXPECT_THAT(frmMonth->lblMonth.Caption(), StartsWith("November 2026 - "));
    EXPECT_THAT(frmMonth->lblMonth.Caption(), EndsWith(ActiveCityText));
    EXPECT_TRUE(frmMonth->grdMonth.HasFocus()) << "the page keys work at once";
}

TEST_F(MonthWindowTest, TableHasBothDatesAndTheSixTimesOfEachDay) {
    const Grid& grid = frmMonth->grdMonth;
    EXPECT_THAT(grid.heads, ElementsAre("Day", "Hijri date", "Fajr", "Shurooq", "Zuhr", "Asr",
                                        "Maghrib", "Isha"));
    ASSERT_THAT(grid.rows, SizeIs(30));
    const auto& cells = grid.rows[20].cells;
    ASSERT_THAT(cells, SizeIs(8));
    EXPECT_EQ(cells[0], "21 Saturday");
    EXPECT_EQ(cells[1], "10 Jamad Thani 1448");
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        EXPECT_EQ(cells[2 + prayer], platform.formats.MediumTime(Times[prayer][324] / 24.0));
    }
}

TEST_F(MonthWindowTest, FridaysAreSetOffAndTodayIsTheCurrentRow) {
    EXPECT_THAT(DaysWhere(&Grid::Row::setOff),
                ElementsAre("6 Friday", "13 Friday", "20 Friday", "27 Friday"));
    EXPECT_THAT(DaysWhere(&Grid::Row::current), ElementsAre("21 Saturday"));
    frmMonth->cmdPrev.UserClick();
    EXPECT_THAT(DaysWhere(&Grid::Row::current), IsEmpty());
}

TEST_F(MonthWindowTest, ButtonsWheelAndKeysGoFromMonthToMonthInsideTheYear) {
    frmMonth->cmdPrev.UserClick();
    EXPECT_THAT(frmMonth->lblMonth.Caption(), StartsWith("October 2026"));
    frmMonth->grdMonth.UserPage(1);
    frmMonth->cmdNext.UserClick();
    EXPECT_THAT(frmMonth->lblMonth.Caption(), StartsWith("December 2026"));
    EXPECT_FALSE(frmMonth->cmdNext.Enabled());
    frmMonth->grdMonth.UserPage(1);
    EXPECT_THAT(frmMonth->lblMonth.Caption(), StartsWith("December 2026"));
    frmMonth->grdMonth.UserPage(-20);
    EXPECT_THAT(frmMonth->lblMonth.Caption(), StartsWith("January 2026"));
    EXPECT_FALSE(frmMonth->cmdPrev.Enabled());
    frmMonth->cmdToday.UserClick();
    EXPECT_THAT(frmMonth->lblMonth.Caption(), StartsWith("November 2026"));
}

TEST_F(MonthWindowTest, ChangeOfDaylightSavingIsMarkedAndTold) {
    EXPECT_FALSE(frmMonth->lblNote.Visible());
    OpenWithDaylight(305, 325);
    EXPECT_EQ(frmMonth->grdMonth.rows.at(0).cells.at(0), "1 Sunday *");
    EXPECT_EQ(frmMonth->grdMonth.rows.at(20).cells.at(0), "21 Saturday *");
    EXPECT_EQ(frmMonth->lblNote.Caption(),
              "* Sunday, 1 November 2026: Daylight saving begins on this day; * Saturday, 21 "
              "November 2026: Daylight saving ends with this day");
    EXPECT_TRUE(frmMonth->lblNote.Visible());
    frmMonth->cmdNext.UserClick();
    EXPECT_FALSE(frmMonth->lblNote.Visible());
}

TEST_F(MonthWindowTest, MarksOfTheTimesAreToldBelowTheTable) {
    frmMonth->Unload();
    RuledYear.inputs = PresentInputs();
    RuledYear.rules.moments.ishaInterval = 8 * 60;
    ShowMonthWindow();
    EXPECT_THAT(frmMonth->grdMonth.rows.at(0).cells.at(7), testing::EndsWith("AM+1"));
    EXPECT_EQ(frmMonth->lblNote.Caption(), "+1: on the next day");
    EXPECT_TRUE(frmMonth->lblNote.Visible());
}

TEST_F(MonthWindowTest, TimesAroundTheDayHaveColumnsWhereAnOptionAsksForThem) {
    EXPECT_EQ(frmMonth->grdMonth.heads.size(), 8U);
    frmMonth->Unload();
    SaveOption(option::kAroundTheDay, 1);
    ShowMonthWindow();
    EXPECT_EQ(frmMonth->grdMonth.heads.size(), 12U);
    EXPECT_EQ(frmMonth->grdMonth.heads.back(), "Last third");
    EXPECT_EQ(frmMonth->grdMonth.figures.size(), 10U) << "all but the two of the date";
    EXPECT_EQ(frmMonth->grdMonth.rows.at(0).cells.size(), 12U);
}

TEST_F(MonthWindowTest, TableStaysAsItWasAtTheOpening) {
    const auto before = frmMonth->grdMonth.rows;
    SetClock(2027, 1, 1, 0, 0, 5);
    RefreshAll();
    EXPECT_EQ(CurrentYear, 2027);
    frmMonth->cmdToday.UserClick();
    EXPECT_THAT(frmMonth->lblMonth.Caption(), StartsWith("January 2026"));
    frmMonth->grdMonth.UserPage(10);
    EXPECT_EQ(frmMonth->grdMonth.rows.at(5), before.at(5));
}

TEST_F(MonthWindowTest, SecondPageIsTheChartWithoutTheMonthsControls) {
    EXPECT_THAT(frmMonth->tabPages.Items(), ElementsAre("Month", "Year"));
    EXPECT_FALSE(frmMonth->picYear.Visible());
    frmMonth->tabPages.UserSelect(1);
    EXPECT_TRUE(frmMonth->picYear.Visible());
    EXPECT_FALSE(frmMonth->picYear.drawing.empty());
    for (const Control* control : std::initializer_list<Control*>{
             &frmMonth->grdMonth, &frmMonth->cmdPrev, &frmMonth->cmdPrint, &frmMonth->lblNote}) {
        EXPECT_FALSE(control->Visible()) << control->Name();
    }
    EXPECT_THAT(frmMonth->lblMonth.Caption(), StartsWith("2026 - "));
    frmMonth->tabPages.UserSelect(0);
    EXPECT_TRUE(frmMonth->grdMonth.Visible());
    EXPECT_FALSE(frmMonth->picYear.Visible());
}

TEST_F(MonthWindowTest, ChartTellsTodayAndThenTheDayUnderThePointer) {
    frmMonth->tabPages.UserSelect(1);
    EXPECT_THAT(
        frmMonth->lblPointer.Caption(),
        StartsWith("Saturday, 21 November 2026, 10 Jamad Thani 1448\u00a0\u00a0 Fajr\u00a0"));
    const Picture& chart = frmMonth->picYear;
    frmMonth->picYear.UserMouseMove({chart.ScaleWidth() - 160.0, chart.ScaleHeight() / 2.0});
    EXPECT_THAT(frmMonth->lblPointer.Caption(), StartsWith("Thursday, 31 December 2026, "));
    EXPECT_THAT(frmMonth->lblPointer.Caption(),
                HasSubstr("\u00a0\u00a0 Isha\u00a0" +
                          Unbroken(platform.formats.MediumTime(Times[kIsha][364] / 24.0))));
    frmMonth->picYear.UserMouseMove({0.0, 0.0});
    EXPECT_THAT(frmMonth->lblPointer.Caption(), StartsWith("Thursday, 31 December 2026, "));
}

TEST_F(MonthWindowTest, DayAndMonthAreWrittenAsTheLanguageWritesThem) {
    const std::map<std::string, std::pair<std::string, std::string>> titles = {
        {"French", {"Novembre 2026 - ", "Samedi 21 novembre 2026, "}},
        {"German", {"November 2026 - ", "Samstag, 21. November 2026, "}},
        {"Indonesian", {"November 2026 - ", "Sabtu, 21 November 2026, "}},
        {"Bengali", {"নভেম্বর 2026 - ", "শনিবার, 21 নভেম্বর 2026, "}},
        {"Spanish", {"Noviembre de 2026 - ", "Sábado, 21 de noviembre de 2026, "}},
        {"Turkish", {"Kasım 2026 - ", "21 Kasım 2026 Cumartesi, "}},
        {"Urdu", {"نومبر 2026 - ", "ہفتہ، 21 نومبر 2026، "}},
        {"Arabic", {"نوفمبر 2026 - ", "السبت 21 نوفمبر 2026، "}}};
    for (const auto& [language, title] : titles) {
        frmMonth->Unload();
        currentLanguage = language;
        ShowMonthWindow();
        EXPECT_THAT(frmMonth->lblMonth.Caption(), StartsWith(title.first));
        EXPECT_THAT(frmMonth->lblPointer.Caption(), StartsWith(title.second));
    }
}

TEST_F(MonthWindowTest, TimesKeepTheirOrderInALineThatRunsFromRightToLeft) {
    frmMonth->Unload();
    currentLanguage = "Arabic";
    ShowMonthWindow();
    EXPECT_THAT(frmMonth->tabPages.Items(), ElementsAre("الشهر", "السنة"));
    const std::string fajr = platform.formats.MediumTime(Times[kFajr][324] / 24.0);
    EXPECT_THAT(frmMonth->lblPointer.Caption(),
                HasSubstr("الفجر\u00a0\u2068" + Unbroken(fajr) + "\u2069\u00a0\u00a0 "));
}

TEST_F(MonthWindowTest, SaveAsNamesWhatIsSavedByPlaceAndYear) {
    frmMonth->cmdSave.UserClick();
    EXPECT_EQ(platform.dialogs.saveRequests.back().request.title, "Prayer times Mecca 2026");
}

TEST_F(MonthWindowTest, SaveAsWritesTheFormatOfTheSuffix) {
    platform.dialogs.savedFile = "/home/year.csv";
    frmMonth->cmdSave.UserClick();
    EXPECT_THAT(StringOf(platform.files.Contents("/home/year.csv")), StartsWith("Date,Hijri,"));
    EXPECT_EQ(platform.dialogs.saveRequests.back().suffix, ".pdf");
    platform.dialogs.savedFile = "/home/year.ics";
    frmMonth->cmdSave.UserClick();
    EXPECT_THAT(StringOf(platform.files.Contents("/home/year.ics")),
                StartsWith("BEGIN:VCALENDAR\r\n"));
}

TEST_F(MonthWindowTest, PdfIsForTheUsersOwnPaperAndTheAnswerToANameWithoutAKnownSuffix) {
    std::vector<std::string> files;
    InstallDocumentTools({.writePdf = [&](const std::string& path, const PrintedYear& year) {
        files.push_back(path);
        EXPECT_EQ(year.paper, PaperSize::kUsual);
    }});
    for (const char* file : {"/home/year.pdf", "/home/year.of.2026"}) {
        platform.dialogs.savedFile = file;
        frmMonth->cmdSave.UserClick();
    }
    EXPECT_THAT(files, ElementsAre("/home/year.pdf", "/home/year.of.2026"));
}

TEST_F(MonthWindowTest, CancelledSaveWritesNothing) {
    const auto before = platform.files.List("/home");
    frmMonth->cmdSave.UserClick();
    frmMonth->tabPages.UserSelect(1);
    frmMonth->cmdSave.UserClick();
    EXPECT_EQ(platform.files.List("/home"), before);
    EXPECT_EQ(platform.dialogs.saveRequests.size(), 2U);
}

TEST_F(MonthWindowTest, ChartIsSavedAsSvgOrPng) {
    std::string png;
    InstallDocumentTools({.writePng = [&](const std::string& path, const Drawing& drawing,
                                          double width, double height) {
        png = path;
        EXPECT_EQ(drawing.size(), frmMonth->picYear.drawing.size());
        EXPECT_EQ(width, frmMonth->picYear.Width());
        EXPECT_EQ(height, frmMonth->picYear.Height());
    }});
    frmMonth->tabPages.UserSelect(1);
    platform.dialogs.savedFile = "/home/year.svg";
    frmMonth->cmdSave.UserClick();
    EXPECT_THAT(StringOf(platform.files.Contents("/home/year.svg")), StartsWith("<svg "));
    platform.dialogs.savedFile = "/home/year.PNG";
    frmMonth->cmdSave.UserClick();
    EXPECT_EQ(png, "/home/year.PNG");
}

TEST_F(MonthWindowTest, PreviewAndPrintTakeTheMonthOnView) {
    std::vector<std::string> calls;
    InstallDocumentTools(
        {.previewMonth =
             [&](const PrintedYear& year, int month) {
                 calls.push_back("preview " + year.words.MonthTitle(year.table.year, month));
                 EXPECT_EQ(year.today, DateSerial(2026, 11, 21));
             },
         .printMonth = [&](const PrintedYear&,
                           int month) { calls.push_back("print " + std::to_string(month)); }});
    frmMonth->cmdPrev.UserClick();
    frmMonth->cmdPreview.UserClick();
    frmMonth->cmdPrint.UserClick();
    EXPECT_THAT(calls, ElementsAre("preview October 2026", "print 10"));
}

TEST_F(MonthWindowTest, CloseUnloads) {
    frmMonth->cmdClose.UserClick();
    EXPECT_FALSE(frmMonth->IsLoaded());
}

}  // namespace
}  // namespace horavex
