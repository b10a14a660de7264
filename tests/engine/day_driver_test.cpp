#include "engine/day_driver.h"

#include "base/fault.h"
#include "engine/angle.h"
#include "engine/ruled_year.h"
#include "engine/sample_year.h"
#include "engine/solar_event.h"
#include "engine/wait.h"
#include "store/text_table.h"
#include "support/data_folder.h"
#include "windows/f_message.h"
#include "windows/frm_main.h"
#include "windows/horavex_main_form.h"

namespace horavex {
namespace {

using RecalculateYearTest = EngineTest;

TEST_F(RecalculateYearTest, TakesThePlaceOverWithWestPositive) {
    Cairo();
    Calculate(2001);
    EXPECT_DOUBLE_EQ(LatitudeRad, DegToRad(30.05));
    EXPECT_DOUBLE_EQ(LongitudeWestRad, -DegToRad(31.25));
}

TEST_F(RecalculateYearTest, ComputesTheQiblaOnceAfterASuccess) {
    Cairo();
    Calculate(2001);
    EXPECT_EQ(host.qiblas, 1);
}

TEST_F(RecalculateYearTest, LeavesTheQiblaAfterAFailure) {
    London(18.0, 17.0);
    Calculate(2001);
    EXPECT_EQ(host.qiblas, 0);
}

/// What stands ready when the first day of a run is reported.
struct FirstReportHost : RecordingHost {
    void ReportProgress(double percent) override {
        RecordingHost::ReportProgress(percent);
        if (percents.size() == 1) {
            latitude = LatitudeRad;
            longitudeWest = LongitudeWestRad;
            leapFlag = LeapFlag;
            constants = CurrentYearConstants;
        }
    }

    double latitude = 0.0;
    double longitudeWest = 0.0;
    std::int16_t leapFlag = -1;
    YearConstants constants;
};

TEST_F(RecalculateYearTest, PlaceLeapFlagAndConstantsStandBeforeTheFirstDay) {
    Cairo();
    Calculate(2024);
    const auto leapYear = Times;
    London(12.0, 12.0);
    Calculate(2001);
    FirstReportHost first;
    InstallDayHost(&first);
    Cairo();
    Calculate(2024);
    EXPECT_DOUBLE_EQ(first.latitude, DegToRad(30.05));
    EXPECT_DOUBLE_EQ(first.longitudeWest, -DegToRad(31.25));
    EXPECT_EQ(first.leapFlag, 1);
    EXPECT_EQ(first.constants, YearConstantsOf(2024));
    EXPECT_EQ(Times, leapYear) << "nothing of the run before is used";
}

TEST_F(RecalculateYearTest, RulesAndInputsStandTogetherBeforeTheFirstDay) {
    struct Host : RecordingHost {
        YearRules RulesOf(std::int16_t year) override {
            YearRules rules;
            rules.moments.ishaInterval = year == 2026 ? 90 : 0;
            return rules;
        }
        void ReportProgress(double /*percent*/) override {
            whole = whole && RuledYear.rules.moments.ishaInterval == 90 &&
                    RuledYear.inputs.year == 2026 && RuledYear.inputs.place.timeZone == 2.0;
        }
        bool whole = true;
    } ruled;
    InstallDayHost(&ruled);
    Cairo();
    Calculate(2026);
    EXPECT_TRUE(ruled.whole);
}

TEST_F(RecalculateYearTest, QiblaComesBehindTheWholeTable) {
    struct : RecordingHost {
        void ComputeQibla() override {
            RecordingHost::ComputeQibla();
            daysBefore = percents.size();
            shiftedZuhr = Times[kZuhr][100];
        }
        std::size_t daysBefore = 0;
        double shiftedZuhr = 0.0;
    } last;
    InstallDayHost(&last);
    Cairo();
    Daylight(91, 300);
    Calculate(2001);
    EXPECT_EQ(last.daysBefore, 365U);
    EXPECT_GT(last.shiftedZuhr, 12.5) << "the daylight hour is in";
}

TEST_F(RecalculateYearTest, ReportsEveryDayOfALeapYear) {
    Cairo();
    Calculate(2024);
    EXPECT_EQ(host.percents.size(), 366U);
    EXPECT_EQ(LeapFlag, 1);
}

/// Clock, row of the table and labels of a Saturday in Cairo.
struct DayTest : EngineTest {
    DayTest() {
        Cairo();
        LastRefreshDate = platform.clock.Today();
    }

    void At(int month, int day, int hour, int minute, int second) {
        platform.clock.Set(DateSerial(2026, month, day) + TimeSerial(hour, minute, second));
        LastRefreshDate = platform.clock.Today();
    }
};

using RefreshAllTest = DayTest;

TEST_F(RefreshAllTest, StaysUpForThreeSecondsHoweverFast) {
    const double before = platform.clock.SteadySeconds();
    RefreshAll();
    EXPECT_NEAR(platform.clock.SteadySeconds() - before, 3.0, 0.02);
    EXPECT_FALSE(fMessage->IsLoaded());
}

TEST_F(RefreshAllTest, SlowCalculationWaitsNoLonger) {
    platform.loop.AtPump(1, [] {});
    struct SlowHost : RecordingHost {
        explicit SlowHost(ManualClock& c) : clock(c) {}
        void ReportProgress(double) override { clock.Advance(0.1); }
        ManualClock& clock;
    } slow(platform.clock);
    InstallDayHost(&slow);
    const double before = platform.clock.SteadySeconds();
    RefreshAll();
    EXPECT_NEAR(platform.clock.SteadySeconds() - before, 36.5, 0.02);
}

TEST_F(RefreshAllTest, WaitsForWhatIsLeftOfTheThreeSeconds) {
    struct : RecordingHost {
        void ComputeQibla() override { clock->Advance(0.2); }
        ManualClock* clock = nullptr;
    } slow;
    slow.clock = &platform.clock;
    InstallDayHost(&slow);
    const double before = platform.clock.SteadySeconds();
    RefreshAll();
    EXPECT_NEAR(platform.clock.SteadySeconds() - before, 3.0, 0.02);
}

TEST_F(RefreshAllTest, ProgressWindowTellsTheYearInTheAcceptedLanguage) {
    DataFolder(platform.files).WriteTexts(kTextEntries);
    ActiveSettings.Language = 2;
    Settings.Language = 3;
    bool shown = false;
    platform.loop.After(1.0, [&shown] {
        EXPECT_EQ(fMessage->lblMessage1.Caption(),
                  TextItem(TextEntry::kCalculatingYear, 2) + " 2026");
        EXPECT_EQ(fMessage->lblMessage2.Caption(), TextItem(TextEntry::kPleaseWait, 2));
        shown = fMessage->Visible();
    });
    RefreshAll();
    EXPECT_TRUE(shown);
}

TEST_F(RefreshAllTest, CommonYearKeepsTheLastRowOfTheLeapYearBefore) {
    platform.clock.Set(DateSerial(2028, 12, 31) + 0.5);
    LastRefreshDate = platform.clock.Today();
    RefreshAll();
    const PrayerRow leapDay = TimesOfRow(365);
    platform.clock.Set(DateSerial(2029, 12, 31) + TimeSerial(23, 0, 0));
    LastRefreshDate = platform.clock.Today();
    RefreshAll();
    EXPECT_EQ(TimesOfRow(365), leapDay);
    EXPECT_NE(TimesOfRow(364), leapDay);
    EXPECT_EQ(frmMain->lblNextAthan.Caption(),
              " " + platform.formats.LongTime(leapDay[kFajr] / 24.0));
}

TEST_F(RefreshAllTest, TakesTheYearOfNow) {
    RefreshAll();
    EXPECT_EQ(CurrentYear, 2026);
    EXPECT_EQ(TodayDate, DateSerial(2026, 11, 21));
}

TEST_F(RefreshAllTest, EnablesTheSettingsWindowAfterASuccessOnly) {
    HoravexMainForm->SetEnabled(false);
    London(18.0, 17.0);
    RefreshAll();
    EXPECT_EQ(CalcFailed, -1);
    EXPECT_FALSE(HoravexMainForm->Enabled());
    EXPECT_FALSE(fMessage->IsLoaded()) << "the progress window closes all the same";
    Cairo();
    RefreshAll();
    EXPECT_EQ(CalcFailed, 0);
    EXPECT_TRUE(HoravexMainForm->Enabled());
}

TEST_F(RefreshAllTest, FailedCalculationStillShowsTheDay) {
    London(18.0, 17.0);
    RefreshAll();
    EXPECT_EQ(host.faces, 1);
    EXPECT_NE(frmMain->lblTime(0).Caption(), "");
}

using ShowDayTest = DayTest;

TEST_F(ShowDayTest, FillsLabelsAndFractions) {
    RefreshAll();
    EXPECT_EQ(frmMain->lblTime(kZuhr).Caption(), "11:40 AM");
    EXPECT_DOUBLE_EQ(TodayTimes[kZuhr], Times[kZuhr][324] / 24.0);
    EXPECT_EQ(frmMain->lblDate.Caption(), "Saturday, November 21, 2026");
    EXPECT_EQ(frmMain->lblCurrTime.Caption(), "12:00:00 PM");
    EXPECT_THAT(frmMain->lblNextAthan.Caption(), testing::HasSubstr("2:3"));
    EXPECT_EQ(host.faces, 1);
}

TEST_F(ShowDayTest, LabelOfAMomentBehindMidnightTellsItsDay) {
    struct : RecordingHost {
        YearRules RulesOf(std::int16_t /*year*/) override {
            YearRules rules;
            rules.moments.ishaInterval = 8 * 60;
            return rules;
        }
    } ruled;
    InstallDayHost(&ruled);
    RefreshAll();
    EXPECT_THAT(frmMain->lblTime(kIsha).Caption(), testing::EndsWith(" AM, next day"));
}

TEST_F(ShowDayTest, FaceComesLastAndFindsEveryLabelFilled) {
    struct : RecordingHost {
        void SetFlashVariables() override {
            labels = {frmMain->lblTime(kIsha).Caption(), frmMain->lblDate.Caption(),
                      frmMain->lblCurrTime.Caption(), frmMain->lblNextAthan.Caption(),
                      frmMain->lblRemaining.Caption()};
        }
        std::vector<std::string> labels;
    } face;
    InstallDayHost(&face);
    RefreshAll();
    EXPECT_THAT(face.labels, testing::Each(testing::Not("")));
    EXPECT_THAT(face.labels, testing::SizeIs(5));
}

TEST_F(ShowDayTest, MinuteBehindIshaNamesTomorrowsFajr) {
    RefreshAll();
    platform.clock.Set(platform.clock.Today() + TodayTimes[kIsha] + 60.0 / kSecondsPerDay);
    ShowDay();
    EXPECT_EQ(frmMain->lblNextAthan.Caption(),
              " " + platform.formats.LongTime(Times[kFajr][325] / 24.0));
}

TEST_F(ShowDayTest, NextPrayerIsFilledOnlyWhileItIsNotYetSet) {
    NextPrayer = -1;
    RefreshAll();
    EXPECT_EQ(NextPrayer, 3);
    At(11, 21, 23, 0, 0);
    ShowDay();
    EXPECT_EQ(NextPrayer, 3);
}

TEST_F(ShowDayTest, GapOfOneDayRefreshesNothing) {
    RefreshAll();
    platform.clock.Set(DateSerial(2026, 11, 22) + 0.5);
    ShowDay();
    EXPECT_EQ(host.setActions, 0);
    EXPECT_EQ(LastRefreshDate, DateSerial(2026, 11, 21));
    EXPECT_EQ(TodayDate, DateSerial(2026, 11, 22));
}

TEST_F(ShowDayTest, GapOfTwoDaysEitherWayRunsTheSetAction) {
    RefreshAll();
    platform.clock.Set(DateSerial(2026, 11, 23) + 0.5);
    ShowDay();
    EXPECT_EQ(host.setActions, 1);
    EXPECT_EQ(LastRefreshDate, DateSerial(2026, 11, 23));
    platform.clock.Set(DateSerial(2026, 11, 20) + 0.5);
    ShowDay();
    EXPECT_EQ(host.setActions, 2);
}

TEST_F(ShowDayTest, DayOutsideTheTableShowsNothing) {
    RefreshAll();
    frmMain->lblDate.SetCaption("untouched");
    for (const std::int16_t year : {std::int16_t{2020}, std::int16_t{2027}}) {
        CurrentYear = year;
        ShowDay();
        EXPECT_EQ(frmMain->lblDate.Caption(), "untouched");
        EXPECT_EQ(TodayDate, DateSerial(2026, 11, 21));
    }
}

TEST_F(ShowDayTest, TimeThatDoesNotExistShowsTheTimeOfAFarDate) {
    RefreshAll();
    Times[kAsr][324] = NoEvent;
    ShowDay();
    EXPECT_EQ(frmMain->lblTime(kAsr).Caption(), "04:00 PM");  // 10,000,000 hours
}

TEST_F(ShowDayTest, KeepsTheDayThatItShows) {
    CityText = "Cairo - Egypt";
    host.bearing = 136.25;
    RefreshAll();
    ShowDay();
    EXPECT_EQ(ShownDay.now, platform.clock.Now());
    EXPECT_EQ(ShownDay.place, "Cairo - Egypt");
    EXPECT_EQ(ShownDay.qiblaDegrees, 136.25);
    EXPECT_EQ(ShownDay.moments[kZuhr].hours, Times[kZuhr][324]);
}

TEST_F(ShowDayTest, PlaceIsThatOfTheYearWhateverIsPickedSince) {
    CityText = "Cairo - Egypt";
    RefreshAll();
    CityText = "Oslo - Norway";
    ShowDay();
    EXPECT_EQ(ShownDay.place, "Cairo - Egypt");
}

TEST_F(ShowDayTest, PlaceIsTheAcceptedOneAfterAFailure) {
    CityText = "Cairo - Egypt";
    RefreshAll();
    CityText = "London - United Kingdom";
    London(18.0, 17.0);
    RefreshAll();
    EXPECT_EQ(CalcFailed, -1);
    EXPECT_EQ(ShownDay.place, "Cairo - Egypt");
}

struct TakeDayViewTest : EngineTest {
    TakeDayViewTest() { CurrentYear = 2026; }

    /// The evening of the day of a row, after Isha, with a Fajr of its own and one of the next.
    NextMoment NextAfterIsha(std::size_t row, double nextFajr) {
        for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
            Times[prayer][row] = 5.0 + static_cast<double>(prayer);
        }
        if (row < kYearRows - 1) {
            Times[kFajr][row + 1] = nextFajr;
        }
        const Date day = DateSerial(CurrentYear, 1, 1) + static_cast<double>(row);
        return TakeDayView(day + TimeSerial(20, 0, 0)).value().next;
    }
};

TEST_F(TakeDayViewTest, AfterIshaTheRowMovesToTomorrow) {
    EXPECT_EQ(NextAfterIsha(100, 4.5).moment.hours, 4.5);
}

TEST_F(TakeDayViewTest, DayOutsideTheTableIsNone) {
    EXPECT_FALSE(TakeDayView(DateSerial(2025, 12, 31)));
    EXPECT_TRUE(TakeDayView(DateSerial(2026, 1, 1)));
    EXPECT_FALSE(TakeDayView(DateSerial(2027, 1, 2)));
}

TEST_F(TakeDayViewTest, LastEveningOfACommonYearReadsTheUnwrittenRow) {
    EXPECT_EQ(NextAfterIsha(364, 0.0).moment.hours, 0.0);
}

TEST_F(TakeDayViewTest, LastEveningOfALeapYearShowsItsOwnFajr) {
    CurrentYear = 2028;
    EXPECT_EQ(NextAfterIsha(365, 0.0).moment.hours, 5.0);
}

TEST(WaitSeconds, SpanOfNothingReturnsAtOnce) {
    TestPlatform platform;
    WaitSeconds(0.0);
    WaitSeconds(-1.0);
    EXPECT_EQ(platform.loop.Rests(), 0);
    EXPECT_EQ(platform.loop.Pumps(), 0);
}

TEST(WaitSeconds, DeliversEventsMeanwhile) {
    TestPlatform platform;
    int delivered = 0;
    platform.loop.After(0.5, [&] { ++delivered; });
    platform.loop.After(1.5, [&] { ++delivered; });
    WaitSeconds(1.0 / 86400.0);
    EXPECT_EQ(delivered, 1);
}

}  // namespace
}  // namespace horavex
