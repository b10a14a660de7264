#include "shell/tick.h"

#include <algorithm>
#include <tuple>

#include "athan/athan_state.h"
#include "engine/current_year.h"
#include "engine/day_driver.h"
#include "store/options.h"
#include "support/program_test.h"
#include "windows/frm_azan.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::string NameOf(Alert alert) {
    return alert == Alert::kDailyAlarm ? "Alarm" : kPrayerKeys.at(static_cast<std::size_t>(alert));
}

/// Ticks whose three ways out are written down: "refresh", "day" and what the alert is for.
struct TickTest : testing::Test {
    TickTest() {
        CurrentYear = 2026;
        TodayDate = DateSerial(2026, 11, 21);
        ActiveSettings.AlarmTime = 78;
        const double times[] = {5.0, 6.5, 12.0, 15.0, 18.0, 19.5};
        for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
            TodayTimes[prayer] = times[prayer] / 24.0;
        }
    }

    void TickAt(int hour, int minute, int second) {
        platform.clock.Set(DateSerial(2026, 11, 21) + TimeSerial(hour, minute, second));
        Tick();
    }

    void Tick() {
        calls.clear();
        RunTick({[this] { calls.push_back("refresh"); }, [this] { calls.push_back("day"); },
                 [this](Alert alert) { calls.push_back(NameOf(alert)); }});
    }

    TestPlatform platform;
    std::vector<std::string> calls;
};

TEST_F(TickTest, OrdinaryTickShowsTheDayOnce) {
    TickAt(10, 0, 0);
    EXPECT_THAT(calls, ElementsAre("day"));
}

TEST_F(TickTest, PrayerArrivesAtItsSecond) {
    TickAt(11, 59, 59);
    EXPECT_THAT(calls, ElementsAre("day"));
    TickAt(12, 0, 0);
    EXPECT_THAT(calls, ElementsAre("Zuhr", "day"));
}

TEST_F(TickTest, WindowIsTenSeconds) {
    TickAt(12, 0, 9);
    EXPECT_THAT(calls, ElementsAre("Zuhr", "day"));
    TickAt(12, 0, 10);
    EXPECT_THAT(calls, ElementsAre("day"));
}

TEST_F(TickTest, YesterdaysIshaArrivesBehindMidnight) {
    TodayTimes[kIsha] = 24.3 / 24.0;  // today's own comes tomorrow
    ShownDay.late = {{kMaghrib, {0.1, MomentBy::kSun}}, {kIsha, {0.25, MomentBy::kRule}}};
    TickAt(0, 15, 0);
    EXPECT_THAT(calls, ElementsAre("Isha", "day"));
    TickAt(0, 18, 0);
    EXPECT_THAT(calls, ElementsAre("day"));
}

TEST_F(TickTest, TomorrowsFajrArrivesBeforeMidnight) {
    TodayTimes[kFajr] = -0.25 / 24.0;  // today's own came yesterday
    ShownDay.early = {{kFajr, {23.75, MomentBy::kRule}}};
    TickAt(23, 45, 0);
    EXPECT_THAT(calls, ElementsAre("Fajr", "day"));
    TickAt(0, 15, 0);
    EXPECT_THAT(calls, ElementsAre("day"));
}

TEST_F(TickTest, OptionSwitchesTheAlarmOff) {
    SaveOption(option::kAlarm, 0);
    TickAt(6, 30, 0);
    EXPECT_THAT(calls, testing::Not(testing::Contains("Alarm")));
    SaveOption(option::kAlarm, 1);
    TickAt(6, 30, 0);
    EXPECT_THAT(calls, testing::Contains("Alarm"));
}

TEST_F(TickTest, ActiveAthanHoldsTheNextOneBack) {
    athanActive = -1;
    TickAt(12, 0, 3);
    EXPECT_THAT(calls, ElementsAre("day"));
}

TEST_F(TickTest, EveryTickInAWindowCountsTheNextPrayerOn) {
    NextPrayer = 2;
    athanActive = -1;
    TickAt(12, 0, 3);
    TickAt(12, 0, 4);
    TickAt(6, 30, 5);  // sunrise counts too
    EXPECT_EQ(NextPrayer, 5);
    TickAt(9, 0, 0);
    EXPECT_EQ(NextPrayer, 5);
}

TEST_F(TickTest, SunriseHasNoAthan) {
    ActiveSettings.AlarmTime = 0;
    TickAt(6, 30, 0);
    EXPECT_THAT(calls, ElementsAre("day"));
}

TEST_F(TickTest, OfTwoPrayersWithinTheWindowTheEarlierFires) {
    TodayTimes[3] = TodayTimes[2] + 5.0 / 86400.0;
    TickAt(12, 0, 6);
    EXPECT_THAT(calls, ElementsAre("Zuhr", "day"));
}

TEST_F(TickTest, AlarmComesWhateverItsBoxSays) {
    ActiveSettings.AlarmEnabled = 0;
    athanActive = -1;
    TickAt(6, 30, 9);
    EXPECT_THAT(calls, ElementsAre("Alarm", "day"));
    TickAt(6, 30, 10);
    EXPECT_THAT(calls, ElementsAre("day"));
}

TEST_F(TickTest, AlarmTimesReachFromMidnightToFiveBefore) {
    ActiveSettings.AlarmTime = 0;
    TickAt(0, 0, 9);
    EXPECT_THAT(calls, ElementsAre("Alarm", "day"));
    ActiveSettings.AlarmTime = 287;
    TickAt(23, 55, 0);
    EXPECT_THAT(calls, ElementsAre("Alarm", "day"));
}

TEST_F(TickTest, NewDateShowsTheDayBeforeAndAfterTheTests) {
    TodayDate -= 1.0;
    TickAt(10, 0, 0);
    EXPECT_THAT(calls, ElementsAre("day", "day"));
}

TEST_F(TickTest, TimesOfTheNewDayAreInPlaceForItsOwnTests) {
    TodayDate -= 1.0;
    platform.clock.Set(DateSerial(2026, 11, 21) + TimeSerial(4, 0, 5));
    RunTick({[] {}, [] { TodayTimes[0] = 4.0 / 24.0; },
             [this](Alert alert) { calls.push_back(NameOf(alert)); }});
    EXPECT_THAT(calls, ElementsAre("Fajr"));
}

TEST_F(TickTest, BrowsedDayIsRepairedBeforeTheTests) {
    TodayDate += 3.0;
    TodayTimes[0] = 4.0 / 24.0;
    platform.clock.Set(DateSerial(2026, 11, 21) + TimeSerial(4, 0, 5));
    RunTick({[] {}, [] { TodayTimes[0] = 5.0 / 24.0; },
             [this](Alert alert) { calls.push_back(NameOf(alert)); }});
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(TickTest, PrayerComesBeforeTheAlarmOfTheSameSecond) {
    ActiveSettings.AlarmTime = 144;
    TickAt(12, 0, 0);
    EXPECT_THAT(calls, ElementsAre("Zuhr", "Alarm", "day"));
}

TEST_F(TickTest, ShurooqDoesNotHideTheAlarm) {
    TickAt(6, 30, 0);
    EXPECT_THAT(calls, ElementsAre("Alarm", "day"));
}

TEST_F(TickTest, NewYearRefreshesInstead) {
    CurrentYear = 2025;
    TodayDate -= 1.0;
    TickAt(10, 0, 0);
    EXPECT_THAT(calls, ElementsAre("refresh", "day"));
}

TEST_F(TickTest, ClockThatJumpsOverTheWindowMissesTheAthan) {
    TickAt(11, 59, 59);
    TickAt(12, 0, 11);
    EXPECT_THAT(calls, ElementsAre("day"));
}

TEST_F(TickTest, ClockSetBackFiresAgain) {
    TickAt(12, 0, 5);
    TickAt(12, 0, 2);
    EXPECT_THAT(calls, ElementsAre("Zuhr", "day"));
}

TEST_F(TickTest, TimeThatDoesNotExistNeverMatches) {
    TodayTimes[2] = 10000000.0 / 24.0;
    for (int minute = 0; minute < 24 * 60; ++minute) {
        platform.clock.Set(DateSerial(2026, 11, 21) + minute / 1440.0);
        Tick();
        EXPECT_THAT(calls, testing::Not(testing::Contains("Zuhr")));
    }
}

struct RunningClockTest : ProgramTest {
    RunningClockTest() { StartAgain(); }

    void AlarmInMoment() {
        ActiveSettings.AlarmTime = 78;
        SetClock(2026, 11, 21, 6, 30, 0);
    }

    /// An alarm less than five minutes ahead of Asr.
    void AlarmBeforeAsr() {
        ActiveSettings.AlarmTime = static_cast<std::int16_t>(TodayTimes[kAsr] * kAlarmStepsPerDay);
        platform.clock.Set(platform.clock.Today() + AlarmMoment(ActiveSettings));
    }

    /// The ticks that come while the next tick waits.
    void TickEverySecond(int seconds) {
        for (int second = 1; second <= seconds; ++second) {
            platform.loop.After(second, [] { frmMain->tmrUpdate.Tick(); });
        }
    }
};

TEST_F(RunningClockTest, TickSendsTheFace) {
    frmMain->tmrUpdate.Tick();
    EXPECT_EQ(platform.face.variables.size(), 11U);
}

TEST_F(RunningClockTest, HiddenFaceIsSentAllTheSame) {
    frmMain->UserClose();
    frmMain->tmrUpdate.Tick();
    EXPECT_EQ(platform.face.variables.size(), 11U);
}

TEST_F(RunningClockTest, IdleTickOpensNoFile) {
    frmMain->tmrUpdate.Tick();
    platform.failingFiles.FailCall(0);
    for (int second = 1; second <= 100; ++second) {
        SetClock(2026, 11, 21, 12, second / 60, second % 60);
        frmMain->tmrUpdate.Tick();
    }
    EXPECT_EQ(platform.failingFiles.Calls(), 0);
}

TEST_F(RunningClockTest, HiddenFaceDoesNotKeepTheAlarmAway) {
    frmMain->UserClose();
    AlarmInMoment();
    frmMain->tmrUpdate.Tick();
    EXPECT_EQ(platform.dialogs.beeps, 20);
}

TEST_F(RunningClockTest, TickInsideACalculationShowsTheDayAndCalculatesNothing) {
    SetClock(2027, 1, 1, 8, 0, 0);
    LastRefreshDate = platform.clock.Today();
    std::string shown;
    platform.loop.AtPump(platform.loop.Pumps() + 10, [&shown] {
        frmMain->tmrUpdate.Tick();
        shown = frmMain->lblDate.Caption();
    });
    RefreshAll();
    EXPECT_EQ(shown, "Friday, January 1, 2027");
    EXPECT_THAT(platform.desktop.calls, ElementsAre("load fMessage", "show fMessage",
                                                    HasSubstr("TraySetTip"), "unload fMessage"));
}

TEST_F(RunningClockTest, AlarmDoesNotNestInItself) {
    AlarmInMoment();
    TickEverySecond(20);
    frmMain->tmrUpdate.Tick();
    const auto& calls = platform.desktop.calls;
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "show fMessage"), 1);
    EXPECT_EQ(platform.dialogs.beeps, 20);
}

TEST_F(RunningClockTest, FaceGoesOnWhileAnAlarmStands) {
    AlarmInMoment();
    TickEverySecond(300);
    platform.loop.After(299.5, [] {
        EXPECT_TRUE(fMessage->Visible());
        EXPECT_EQ(frmMain->lblCurrTime.Caption(), "6:34:59 AM");
    });
    frmMain->tmrUpdate.Tick();
    EXPECT_EQ(platform.face.variables.size(), 301U * 11U);
}

TEST_F(RunningClockTest, AthanThatFallsDueDuringAnAlarmComes) {
    AlarmBeforeAsr();
    const double asr = TodayTimes[3];
    TickEverySecond(300);
    platform.loop.After(305.0, [] { EXPECT_TRUE(fMessage->Visible()) << "the alarm goes on"; });
    frmMain->tmrUpdate.Tick();
    ASSERT_EQ(TodayTimes[3], asr);
    EXPECT_TRUE(frmAzan->Visible());
    EXPECT_EQ(frmAzan->prayerIndex, Alert::kAsr);
    EXPECT_EQ(athanActive, -1);
}

TEST_F(RunningClockTest, BoxThatIsOpenInATicksOwnWaitDoesNotStopTheClock) {
    AlarmInMoment();
    platform.loop.After(30.0, [this] {
        for (int second = 1; second <= 5; ++second) {  // the loop of the box
            platform.clock.Advance(1.0);
            frmMain->tmrUpdate.Tick();
        }
        EXPECT_EQ(frmMain->lblCurrTime.Caption(), "6:30:35 AM");
    });
    frmMain->tmrUpdate.Tick();
}

TEST_F(RunningClockTest, WaitAcrossTheEndOfALeapYearReportsNothingAndTheNextTickRecalculates) {
    SetClock(2028, 12, 31, 23, 55, 0);
    LastRefreshDate = platform.clock.Today();
    ActiveSettings.AlarmTime = 287;
    RefreshAll();
    SetClock(2028, 12, 31, 23, 55, 0);
    EXPECT_NO_THROW(frmMain->tmrUpdate.Tick());
    ASSERT_EQ(platform.clock.Today(), DateSerial(2029, 1, 1)) << "the alarm has stood so long";
    EXPECT_EQ(CurrentYear, 2028);
    frmMain->tmrUpdate.Tick();
    EXPECT_EQ(CurrentYear, 2029);
    EXPECT_EQ(TodayTimes[0] * 24.0, TimesOfRow(0)[0]);
    EXPECT_TRUE(platform.dialogs.messages.empty());
}

TEST_F(RunningClockTest, NewYearRecalculatesBehindTheProgressWindow) {
    SetClock(2027, 1, 1, 0, 0, 0);
    frmMain->tmrUpdate.Tick();
    EXPECT_EQ(CurrentYear, 2027);
    EXPECT_THAT(platform.desktop.calls, testing::Contains("show fMessage"));
    EXPECT_FALSE(fMessage->IsLoaded());
}

TEST_F(RunningClockTest, TurnOfTheDayDoesNotRecalculate) {
    SetClock(2026, 11, 22, 0, 0, 0);
    frmMain->tmrUpdate.Tick();
    EXPECT_EQ(TodayDate, DateSerial(2026, 11, 22));
    EXPECT_THAT(platform.desktop.calls, ElementsAre(HasSubstr("TraySetTip")));
}

TEST_F(RunningClockTest, GapOfTwoDaysRunsTheSetAction) {
    SetClock(2026, 11, 23, 8, 0, 0);
    frmMain->tmrUpdate.Tick();
    EXPECT_EQ(LastRefreshDate, DateSerial(2026, 11, 23));
    EXPECT_THAT(platform.desktop.calls, testing::Contains("show fMessage"));
}

TEST_F(RunningClockTest, ClockThatJumpsByHoursOrYearsEitherWayShowsTheDayThatItTells) {
    platform.dialogs.messages.clear();
    for (const auto& [year, month, day] : {std::tuple(2026, 11, 21),
                                           {2026, 11, 22},
                                           {2031, 3, 1},
                                           {2000, 2, 29},
                                           {2026, 11, 20},
                                           {1999, 12, 31},
                                           {2100, 1, 1},
                                           {2026, 11, 21}}) {
        for (const int hour : {20, 3}) {
            SetClock(year, month, day, hour, 0, 0);
            frmMain->tmrUpdate.Tick();
            EXPECT_EQ(CurrentYear, year);
            EXPECT_EQ(TodayDate, DateSerial(year, month, day));
        }
    }
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
}

}  // namespace
}  // namespace horavex
