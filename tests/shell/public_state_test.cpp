#include "shell/public_state.h"

#include <gmock/gmock.h>

#include "athan/prayer_day.h"
#include "athan/quiet.h"
#include "engine/solar_event.h"
#include "store/options.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct PublicStateTest : PrayerDay {
    const ToldState& State() const { return platform.broadcast.state; }
    std::vector<std::string>& Signals() { return platform.broadcast.signals; }

    void ShowAt(int hour, int minute) {
        SetClock(2026, 11, 21, hour, minute, 0);
        PassSecond();
    }
};

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

TEST_F(PublicStateTest, AthanIsAskedFor) {
    platform.broadcast.onAthanNow();
    EXPECT_EQ(athanActive, kTrue);
    PassSecond();
    EXPECT_TRUE(State().athanPlaying);
}

}  // namespace
}  // namespace horavex
