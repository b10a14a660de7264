#include "timetables/times_window.h"

#include "engine/current_year.h"
#include "engine/day_driver.h"
#include "engine/ruled_year.h"
#include "engine/year_table.h"
#include "shell/tick.h"
#include "store/around_options.h"
#include "support/other_formats.h"
#include "support/program_test.h"
#include "windows/frm_times.h"

namespace horavex {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

/// The running program with its day browser open on the afternoon of 21 November 2026.
class TimesWindowTest : public ProgramTest {
protected:
    TimesWindowTest() {
        StartAgain();
        SetClock(2026, 11, 21, 15, 4, 5);
        ShowTimesWindow();
    }

    static std::vector<std::string> ShownTimes() {
        std::vector<std::string> times;
        for (int prayer = 0; prayer < 6; ++prayer) {
            times.push_back(frmTimes->lblTime(prayer).Caption());
        }
        return times;
    }

    std::vector<std::string> TimesOn(std::size_t row) const {
        std::vector<std::string> times;
        for (const double hours : TimesOfRow(row)) {
            times.push_back(platform.formats.MediumTime(hours / 24.0));
        }
        return times;
    }

    void ShowThe(int month, int day) {
        SetClock(2026, month, day, 12, 0, 0);
        frmTimes->cmdToday.UserClick();
    }

    /// A click of the menu entry of a language.
    static void Speak(const std::string& language) {
        for (int i = 0; frmMain->mnuL.Contains(i); ++i) {
            if (frmMain->mnuL(i).Caption() == language) {
                frmMain->mnuL(i).UserClick();
            }
        }
    }

    static constexpr std::size_t kTodaysRow = 324;
};

TEST_F(TimesWindowTest, OpensOnToday) {
    EXPECT_EQ(frmTimes->shownDay, DateSerial(2026, 11, 21));
    EXPECT_EQ(ShownTimes(), TimesOn(kTodaysRow));
    EXPECT_EQ(frmTimes->lblDate.Caption(), "Saturday, November 21, 2026");
    EXPECT_EQ(frmTimes->lblCity.Caption(), ActiveCityText);
}

TEST_F(TimesWindowTest, TellsTheHijriDateOfTheDayOnView) {
    EXPECT_EQ(frmTimes->lblShownHijri.Caption(), "10 Jamad Thani 1448");
    frmTimes->cmdNext.UserClick();
    EXPECT_EQ(frmTimes->lblShownHijri.Caption(), "11 Jamad Thani 1448");
}

TEST_F(TimesWindowTest, MarksThePrayerThatComesNextOnTodayAlone) {
    const auto marked = [] {
        std::vector<int> prayers;
        for (int prayer = 0; prayer < 6; ++prayer) {
            if (frmTimes->lblShownNext(prayer).Visible()) {
                prayers.push_back(prayer);
            }
        }
        return prayers;
    };
    frmTimes->cmdToday.UserClick();
    EXPECT_THAT(marked(), ElementsAre(ShownDay.next.prayer));
    frmTimes->cmdNext.UserClick();
    EXPECT_THAT(marked(), IsEmpty());
    ShownDay.next = {kIsha, false, {.hours = 0.25}};  // yesterday's, past midnight
    frmTimes->cmdToday.UserClick();
    EXPECT_THAT(marked(), IsEmpty());
}

TEST_F(TimesWindowTest, RulesOfTheYearCountInIt) {
    const double asr = TodayTimes[kAsr];
    RuledYear.inputs = PresentInputs();
    RuledYear.rules.moments.offsets[kAsr] = 10;
    frmTimes->cmdToday.UserClick();
    EXPECT_NEAR(TodayTimes[kAsr], asr + 10.0 / 1440.0, 1e-9);
    EXPECT_EQ(ShownTimes()[3], platform.formats.MediumTime(TodayTimes[kAsr]));
}

TEST_F(TimesWindowTest, MarksAreToldOnADayThatHasThem) {
    EXPECT_FALSE(frmTimes->lblTimesNote.Visible());
    RuledYear.inputs = PresentInputs();
    RuledYear.rules.moments.highLatitude = HighLatitudeRule::kMiddle;
    RuledYear.rules.moments.ishaInterval = 8 * 60;  // the night's middle stops it
    frmTimes->cmdToday.UserClick();
    EXPECT_THAT(ShownTimes()[5], testing::EndsWith(", next day \u2020"));
    EXPECT_TRUE(frmTimes->lblTimesNote.Visible());
    EXPECT_THAT(frmTimes->lblTimesNote.Caption(), testing::HasSubstr("\"middle of the night\""));
}

TEST_F(TimesWindowTest, TimesAroundTheDayAreToldWhereAnOptionAsksForThem) {
    EXPECT_FALSE(frmTimes->lblTimesAround.Visible());
    SaveOption(option::kAroundTheDay, 1);
    frmTimes->cmdToday.UserClick();
    EXPECT_TRUE(frmTimes->lblTimesAround.Visible());
    EXPECT_THAT(frmTimes->lblTimesAround.Caption(),
                testing::MatchesRegex(
                    "Imsak:\u00a0.*\u00a0AM\u00a0\u00a0 Duha:\u00a0.*\u00a0AM\u00a0\u00a0 "
                    "Middle\u00a0of\u00a0night:\u00a0.*\u00a0PM\u00a0\u00a0 "
                    "Last\u00a0third:\u00a0.*\u00a0AM,\u00a0next\u00a0day"))
        << "a line breaks between two times alone";
}

// A window that is open over New Year still shows a day of the year before.
TEST_F(TimesWindowTest, DayOutsideTheTableHasNoTimesAroundItEither) {
    SaveOption(option::kAroundTheDay, 1);
    frmTimes->shownDay = DateSerial(CurrentYear, 1, 1) - 1.0;
    const std::string former = frmTimes->lblTimesAround.Caption();
    frmTimes->cmdPrev.UserClick();
    EXPECT_EQ(frmTimes->lblTimesAround.Caption(), former);
}

TEST_F(TimesWindowTest, CaptionIsTheDefinitionsUntilAPackReplacesIt) {
    EXPECT_EQ(TimesForm().Caption(), "Paryer Times");
    EXPECT_EQ(frmTimes->Caption(), "Prayer Times");
}

TEST_F(TimesWindowTest, ClockOfTheWindowIsTheTimeOfTheLastFill) {
    EXPECT_EQ(frmTimes->lblCurrTime.Caption(), "03:04 PM");
    platform.clock.Advance(600.0);
    RunTick(DefaultTickActions());
    EXPECT_EQ(frmTimes->lblCurrTime.Caption(), "03:04 PM");
    frmTimes->cmdNext.UserClick();
    EXPECT_EQ(frmTimes->lblCurrTime.Caption(), "03:14 PM");
}

TEST_F(TimesWindowTest, ClockHasTheFormOfTheTimesBelow) {
    EXPECT_TRUE(frmTimes->lblCurrTime.Visible());
    EXPECT_FALSE(frmTimes->lblShownClock.Visible());
    class HoursBy24 : public FixedFormats {
        std::string MediumTime(Date) const override { return "15:04"; }
        std::string TwelveHourTime(Date) const override { return "03:04 PM"; }
    } formats;
    const Platform& former = Ports();
    const Platform ports = WithFormats(former, formats);
    InstallPlatform(&ports);
    frmTimes->cmdToday.UserClick();
    InstallPlatform(&former);
    EXPECT_FALSE(frmTimes->lblCurrTime.Visible());
    EXPECT_TRUE(frmTimes->lblShownClock.Visible());
    EXPECT_EQ(frmTimes->lblShownClock.Caption(), "15:04");
}

TEST_F(TimesWindowTest, ButtonsGoOneDayOnAndBackAndHome) {
    frmTimes->cmdNext.UserClick();
    frmTimes->cmdNext.UserClick();
    EXPECT_EQ(ShownTimes(), TimesOn(kTodaysRow + 2));
    EXPECT_EQ(frmTimes->lblDate.Caption(), "Monday, November 23, 2026");
    frmTimes->cmdPrev.UserClick();
    EXPECT_EQ(ShownTimes(), TimesOn(kTodaysRow + 1));
    frmTimes->cmdToday.UserClick();
    EXPECT_EQ(ShownTimes(), TimesOn(kTodaysRow));
}

TEST_F(TimesWindowTest, LastDayOfTheYearHasNoNext) {
    ShowThe(12, 31);
    frmTimes->cmdNext.UserClick();
    EXPECT_EQ(frmTimes->shownDay, DateSerial(2026, 12, 31));
    EXPECT_EQ(ShownTimes(), TimesOn(364));
    frmTimes->cmdPrev.UserClick();
    EXPECT_EQ(frmTimes->shownDay, DateSerial(2026, 12, 30));
}

TEST_F(TimesWindowTest, FirstDayOfTheYearHasNoPrevious) {
    ShowThe(1, 1);
    frmTimes->cmdPrev.UserClick();
    EXPECT_EQ(frmTimes->shownDay, DateSerial(2026, 1, 1));
    EXPECT_EQ(ShownTimes(), TimesOn(0));
    frmTimes->cmdNext.UserClick();
    EXPECT_EQ(frmTimes->shownDay, DateSerial(2026, 1, 2));
}

TEST_F(TimesWindowTest, EndsOfTheYearHoldInAnyYear) {
    for (const int year : {2025, 2027, 2028}) {
        SetClock(year, 12, 31, 12, 0, 0);
        frmTimes->cmdToday.UserClick();
        frmTimes->cmdNext.UserClick();
        EXPECT_EQ(frmTimes->shownDay, DateSerial(year, 12, 31));
        SetClock(year, 1, 1, 12, 0, 0);
        frmTimes->cmdToday.UserClick();
        frmTimes->cmdPrev.UserClick();
        EXPECT_EQ(frmTimes->shownDay, DateSerial(year, 1, 1));
    }
}

TEST_F(TimesWindowTest, LeapYearReachesItsLastRow) {
    SetClock(2028, 12, 31, 12, 0, 0);
    RunTick(DefaultTickActions());
    frmTimes->cmdToday.UserClick();
    EXPECT_EQ(CurrentYear, 2028);
    EXPECT_EQ(ShownTimes(), TimesOn(365));
}

TEST_F(TimesWindowTest, WritesTheDayOfTheWholeProgram) {
    frmTimes->cmdNext.UserClick();
    EXPECT_EQ(TodayDate, DateSerial(2026, 11, 22));
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        EXPECT_EQ(TodayTimes[prayer], Times[prayer][kTodaysRow + 1] / 24.0);
    }
}

TEST_F(TimesWindowTest, NextTickRepairsTheDayAndLeavesTheWindow) {
    frmTimes->cmdNext.UserClick();
    RunTick(DefaultTickActions());
    EXPECT_EQ(TodayDate, DateSerial(2026, 11, 21));
    EXPECT_EQ(TodayTimes[kFajr], Times[kFajr][kTodaysRow] / 24.0);
    EXPECT_EQ(ShownTimes(), TimesOn(kTodaysRow + 1));
}

TEST_F(TimesWindowTest, PrayerThatArrivesBeforeTheRepairIsOneOfTheDayOnView) {
    for (int i = 0; i < 10; ++i) {
        frmTimes->cmdNext.UserClick();
    }
    const Date asr = platform.clock.Today() + Times[kAsr][kTodaysRow + 10] / 24.0;
    platform.clock.Set(asr + 2.0 / kSecondsPerDay);
    std::vector<Alert> alerts;
    RunTick({[] {}, [] {}, [&](Alert alert) { alerts.push_back(alert); }});
    EXPECT_THAT(alerts, ElementsAre(Alert::kAsr));
    alerts.clear();
    auto actions = DefaultTickActions();
    actions.alert = [&](Alert alert) { alerts.push_back(alert); };
    RunTick(actions);
    EXPECT_THAT(alerts, IsEmpty()) << "today's Asr is minutes away";
}

TEST_F(TimesWindowTest, DateOutsideTheTableIsShownWithTheTimesAsTheyStood) {
    const auto before = ShownTimes();
    const auto today = TodayTimes;
    for (const Date date : {DateSerial(2025, 12, 31), DateSerial(2027, 1, 2)}) {
        EXPECT_NO_THROW(SetTimes(date));
        EXPECT_EQ(ShownTimes(), before);
        EXPECT_EQ(TodayTimes, today);
        EXPECT_EQ(TodayDate, date);
        EXPECT_EQ(frmTimes->lblDate.Caption(), platform.formats.LongDate(date));
    }
}

TEST_F(TimesWindowTest, WindowLeftOpenOverNewYearsEveLosesItsYear) {
    SetClock(2026, 12, 31, 12, 0, 0);
    RunTick(DefaultTickActions());
    SetClock(2026, 12, 31, 23, 59, 59);
    frmTimes->cmdToday.UserClick();
    platform.clock.Advance(1.0);
    RunTick(DefaultTickActions());
    EXPECT_EQ(CurrentYear, 2027);
    const auto before = ShownTimes();
    frmTimes->cmdPrev.UserClick();
    EXPECT_EQ(frmTimes->lblDate.Caption(), "Wednesday, December 30, 2026");
    EXPECT_EQ(ShownTimes(), before);
}

TEST_F(TimesWindowTest, TimerFillsTheWindowOnceAndStops) {
    EXPECT_EQ(frmTimes->Timer1.Interval(), 500);
    EXPECT_TRUE(frmTimes->Timer1.Running());
    frmTimes->cmdNext.UserClick();
    frmTimes->Timer1.Tick();
    EXPECT_EQ(frmTimes->shownDay, DateSerial(2026, 11, 21));
    EXPECT_FALSE(frmTimes->Timer1.Running());
}

TEST_F(TimesWindowTest, ArabicHidesTheEverydayNamesAndOthersShowThem) {
    for (const auto& [language, shown] :
         std::map<std::string, bool>{{"Arabic", false}, {"French", true}, {"English", true}}) {
        frmTimes->Unload();
        Speak(language);
        ShowTimesWindow();
        for (int prayer = 0; prayer < 6; ++prayer) {
            EXPECT_EQ(frmTimes->lblZoritName(prayer).Visible(), shown) << language;
        }
    }
}

TEST_F(TimesWindowTest, NamesComeFromTheDefinitionWithoutAPackAndElseFromThePack) {
    std::vector<std::string> defined;
    TimesForm form;
    for (int prayer = 0; prayer < 6; ++prayer) {
        defined.push_back(form.lblZoritNameArabic(prayer).Caption());
    }
    EXPECT_THAT(defined, ElementsAre("Fajr", "Shurook", "Zuhr", "Asr", "Maghrib", "Isha"));
    EXPECT_EQ(frmTimes->lblZoritNameArabic(1).Caption(), "Shurooq");
    EXPECT_THAT(ShownTimes(), Each(Not("")));
}

}  // namespace
}  // namespace horavex
