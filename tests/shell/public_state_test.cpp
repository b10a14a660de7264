#include "shell/public_state.h"

#include <gmock/gmock.h>

#include "athan/prayer_day.h"
#include "athan/quiet.h"
#include "engine/ruled_year.h"
#include "engine/solar_event.h"
#include "shell/face_shape.h"
#include "store/options.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct PublicStateTest : PrayerDay {
    const ToldState& State() const { return platform.broadcast.state; }
    std::vector<std::string>& Signals() { return platform.broadcast.signals; }

    void ShowAt(int hour, int minute) {
        SetClock(2026, 11, 21, hour, minute, 0);
        PassSecond();
    }
};

/// Times of day that tests put where they want them: nothing works them out anew.
struct PlacedTimes : PublicStateTest {
    PlacedTimes() { Signals().clear(); }

    void Ticks(int count) {
        for (int tick = 0; tick < count; ++tick) {
            RunTick({[] {}, [] {}, [](Alert) {}});
            platform.clock.Advance(1.0);
        }
    }

    /// The record's daylight hour holds for the last time on a day.
    static void EndDaylightOn(Date day) {
        ActiveSettings.DstEnabled = 1;
        ActiveSettings.DstStart = 1;
        ActiveSettings.DstEnd =
            static_cast<std::int16_t>(day - DateSerial(CivilFromDate(day).year, 1, 1) + 1.0);
    }
};

TEST_F(PublicStateTest, IsToldFromTheStartOn) {
    EXPECT_EQ(State().place, ActiveCityText);
    EXPECT_EQ(State().moments.size(), 6U);
}

TEST(PublicStateBeforeADay, IsNotTold) {
    TestPlatform platform;
    PublishState();
    EXPECT_EQ(platform.broadcast.state, ToldState());
}

TEST_F(PublicStateTest, TellsPlaceZoneAndTheSixMomentsOfTheDay) {
    ShowAt(12, 0);
    EXPECT_EQ(State().place, ActiveCityText);
    EXPECT_EQ(State().zone, "UTC+03:00");
    ASSERT_EQ(State().moments.size(), 6U);
    EXPECT_EQ(State().moments[0].prayer, "Fajr");
    EXPECT_EQ(State().moments[0].local.substr(0, 11), "2026-11-21T");
    EXPECT_EQ(State().moments[0].local.substr(19), "+03:00");
    EXPECT_EQ(State().moments[5].by, "sun");
    EXPECT_EQ(State().hijriDate, "1448-06-10");
    EXPECT_EQ(State().quietUntil, "");
}

TEST_F(PublicStateTest, NextPrayerGoesOverToTomorrow) {
    ShowAt(23, 0);
    EXPECT_EQ(State().nextPrayer, "Fajr");
    EXPECT_EQ(State().nextTime.substr(0, 11), "2026-11-22T");
    ShowAt(1, 0);
    EXPECT_EQ(State().nextTime, State().moments[0].local);
}

TEST_F(PublicStateTest, MomentThatDoesNotComeHasNoTime) {
    ShowAt(12, 0);
    ShownDay.moments[kIsha].hours = NoEvent;
    EXPECT_EQ(PublicState().moments[kIsha].local, "");
}

TEST_F(PublicStateTest, PrayerIsToldOnceInItsTenSecondsWhetherItSoundsOrNot) {
    Signals().clear();
    SaveOption(option::kAthans[kAsr], 0);
    RunThrough(kAsr);
    ASSERT_EQ(Signals().size(), 1U);
    EXPECT_EQ(Signals()[0], "PrayerArrived Asr " + State().moments[kAsr].local);
    RunThrough(kMaghrib);
    EXPECT_EQ(Signals().back().substr(0, 21), "PrayerArrived Maghrib");
}

TEST_F(PlacedTimes, MomentOfAZoneHasTheOffsetOfItsOwnInstant) {
    RuledYear.rules.zoneName = "Africa/Cairo";
    RuledYear.rules.moments.zone = {{0.0, 3.0, true}};
    ShownDay.moments[kFajr] = {1.5, MomentBy::kSun, 0, 3.0};
    ShownDay.moments[kShurooq] = {1.5, MomentBy::kSun, 0, 2.0};  // an hour later
    EXPECT_EQ(PublicState().moments[kFajr].local, "2026-11-21T01:30:00+03:00");
    EXPECT_EQ(PublicState().moments[kShurooq].local, "2026-11-21T01:30:00+02:00");
}

TEST_F(PlacedTimes, YesterdaysMomentPastMidnightIsOfYesterdaysClock) {
    ShowAt(0, 15);
    EndDaylightOn(ShownDay.date - 1.0);
    platform.clock.Set(ShownDay.date + Minutes(15));
    ShownDay.late = {{kIsha, {0.25}}};
    ShownDay.next = {kIsha, false, {0.25}, 0.0, true};
    EXPECT_EQ(PublicState().nextTime, "2026-11-21T00:15:00+04:00");
    Ticks(12);
    EXPECT_THAT(Signals(), ElementsAre("PrayerArrived Isha 2026-11-21T00:15:00+04:00"));
}

TEST_F(PlacedTimes, TomorrowsMomentBeforeMidnightIsOfTomorrowsClock) {
    EndDaylightOn(ShownDay.date);
    platform.clock.Set(ShownDay.date + Minutes(1425));
    ShownDay.early = {{kFajr, {23.75}}};
    ShownDay.next = {kFajr, true, {-0.25}, 0.0};
    EXPECT_EQ(PublicState().nextTime, "2026-11-21T23:45:00+03:00");
    Ticks(12);
    EXPECT_THAT(Signals(), ElementsAre("PrayerArrived Fajr 2026-11-21T23:45:00+03:00"));
}

TEST_F(PlacedTimes, PrayersSecondsApartAreEachToldOnce) {
    for (const int once : {0, 1}) {
        Signals().clear();
        SaveOption(option::kAthanOnce, once);
        TodayTimes[kIsha] = TodayTimes[kMaghrib] + Seconds(3);
        platform.clock.Set(Arrival(kMaghrib));
        Ticks(14);
        EXPECT_THAT(Signals(), SizeIs(2)) << once;
        TodayTimes[kMaghrib] -= Minutes(60);  // others than those
    }
}

TEST_F(PlacedTimes, PrayerThatSettingsMoveBySecondsIsNotToldAgain) {
    platform.clock.Set(Arrival(kAsr));
    Ticks(5);
    TodayTimes[kAsr] += Seconds(20);
    Ticks(30);
    EXPECT_THAT(Signals(), SizeIs(1));
}

TEST_F(PublicStateTest, PrayerOfAQuietTimeIsToldOnceToo) {
    platform.clock.Set(Arrival(kAsr) - Minutes(5));
    platform.broadcast.onQuiet(30);
    Signals().clear();
    RunThrough(kAsr);
    EXPECT_THAT(Signals(), SizeIs(1));
}

TEST_F(PublicStateTest, ComingBackFromASleepTellsNothingAgain) {
    Signals().clear();
    platform.clock.Set(Arrival(kAsr) + Seconds(2));
    platform.session.onResume();
    RunFrom(Arrival(kAsr) + Seconds(3), 10);
    platform.session.onResume();
    EXPECT_THAT(Signals(), SizeIs(1));
}

TEST_F(PublicStateTest, SunriseIsNotToldOf) {
    Signals().clear();
    RunThrough(kShurooq);
    EXPECT_THAT(Signals(), IsEmpty());
}

TEST_F(PublicStateTest, AthanPlaysUntilItIsStoppedAndItsEndIsTold) {
    RunFrom(Arrival(kAsr), 12);  // stopped in its ten seconds it would come back
    EXPECT_TRUE(State().athanPlaying);
    Signals().clear();
    platform.broadcast.onStopAthan();
    PassSecond();
    EXPECT_FALSE(State().athanPlaying);
    EXPECT_THAT(Signals(), ElementsAre("AthanStopped"));
    EXPECT_FALSE(IsPlaying());
}

TEST_F(PublicStateTest, StopWithoutAnAthanDoesNothing) {
    const auto before = platform.desktop.calls;
    platform.broadcast.onStopAthan();
    EXPECT_EQ(platform.desktop.calls, before);
}

TEST_F(PublicStateTest, ReminderAndIqamaAreTold) {
    SaveOption(option::kReminders[kAsr], 10);
    SaveOption(option::kIqamas[kAsr], 15);
    const Date asr = Arrival(kAsr);
    Signals().clear();
    RunFrom(asr - Minutes(10), 3);
    RunFrom(asr + Minutes(15), 3);
    EXPECT_THAT(Signals(), ElementsAre("ReminderDue reminder Asr 10", "ReminderDue iqama Asr 15"));
}

TEST_F(PublicStateTest, NewDayIsToldAtMidnightOnce) {
    SetClock(2026, 11, 21, 23, 59, 58);
    PassSecond();
    Signals().clear();
    Run(5);
    EXPECT_THAT(Signals(), ElementsAre("DayChanged 2026-11-22"));
}

TEST_F(PublicStateTest, QuietIsAskedForInMinutesAndTakenBack) {
    SetClock(2026, 11, 21, 12, 0, 0);
    platform.broadcast.onQuiet(90);
    PassSecond();
    EXPECT_EQ(State().quietUntil, "2026-11-21T13:30:00+00:00");
    EXPECT_TRUE(platform.tray.isQuiet);
    platform.broadcast.onQuiet(0);
    PassSecond();
    EXPECT_EQ(State().quietUntil, "");
    EXPECT_FALSE(platform.tray.isQuiet);
}

TEST_F(PublicStateTest, EndOfAQuietBehindAChangeOfTheNightHasTheOffsetOfItsInstant) {
    SetClock(2026, 11, 21, 23, 0, 0);
    platform.clock.SetOffset(DateSerial(2026, 11, 22) + TimeSerial(2, 0, 0), {1.0, true});
    platform.broadcast.onQuiet(120);
    EXPECT_EQ(PublicState().quietUntil, "2026-11-22T01:00:00+00:00");
    platform.broadcast.onQuiet(240);
    EXPECT_EQ(PublicState().quietUntil, "2026-11-22T03:00:00+01:00");
}

TEST_F(PublicStateTest, QuietThatIsAskedForSilencesWhatSounds) {
    RunFrom(Arrival(kAsr), 4);
    ASSERT_TRUE(IsPlaying());
    platform.broadcast.onQuiet(5);
    EXPECT_FALSE(IsPlaying());
}

TEST_F(PublicStateTest, FaceIsHiddenAndShown) {
    platform.broadcast.onHide();
    EXPECT_FALSE(frmMain->Visible());
    platform.broadcast.onShow();
    EXPECT_TRUE(frmMain->Visible());
}

TEST_F(PublicStateTest, FaceIsHiddenAsItsOwnCloseDoesWithoutANotificationArea) {
    platform.tray.hasHost = false;
    platform.broadcast.onHide();
    EXPECT_TRUE(frmMain->Visible());
    EXPECT_EQ(frmMain->State(), WindowState::kMinimized);
    platform.broadcast.onShow();
    EXPECT_EQ(frmMain->State(), WindowState::kNormal);
    EXPECT_EQ(platform.desktop.calls.back(), "Activate frmMain");
}

TEST_F(PublicStateTest, FaceThatFillsTheScreenLeavesItWhenItIsHidden) {
    TurnFaceFullScreen();
    platform.broadcast.onHide();
    EXPECT_FALSE(platform.face.shape.fillsScreen);
    EXPECT_FALSE(frmMain->mnuFullScreen.Checked());
    EXPECT_FALSE(frmMain->Visible());
    platform.broadcast.onShow();
    EXPECT_TRUE(frmMain->Visible());
    EXPECT_FALSE(platform.face.shape.fillsScreen);
}

TEST_F(PublicStateTest, FaceThatFillsTheScreenIsBroughtToTheFrontAsSuch) {
    TurnFaceFullScreen();
    platform.face.shape = {};
    platform.broadcast.onShow();
    EXPECT_TRUE(platform.face.shape.fillsScreen);
}

TEST_F(PublicStateTest, AthanIsAskedFor) {
    platform.broadcast.onAthanNow();
    EXPECT_EQ(athanActive, kTrue);
    PassSecond();
    EXPECT_TRUE(State().athanPlaying);
}

}  // namespace
}  // namespace horavex
