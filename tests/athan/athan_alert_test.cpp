#include "athan/athan_alert.h"

#include <cmath>

#include "athan/athan_state.h"
#include "athan/player.h"
#include "engine/day_driver.h"
#include "shell/tick.h"
#include "support/program_test.h"
#include "windows/frm_azan.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kOthersSound = "/program/Athan/athan.mp3";
constexpr const char* kFajrSound = "/program/Athan/fagr_athan.mp3";
constexpr const char* kText = "_root.character_textField";

struct AthanTest : ProgramTest {
    AthanTest() {
        platform.audioFile.sounds[kOthersSound] = {Bytes(2000), 100, {1}};  // ten seconds
        platform.audioFile.sounds[kFajrSound] = {Bytes(2000), 100, {1}};
        StartAgain();
        SetAthanType(kSoundAthan);
        ActiveSettings.AlarmTime = 0;
    }

    static void SetAthanType(std::int16_t type) {
        Settings.AthanType = type;
        ActiveSettings.AthanType = type;
    }

    void PressStop() { platform.athanFace.onFSCommand("IDC_FS_Stop", ""); }

    const std::vector<std::string>& Opened() const { return platform.audioFile.opened; }
    std::string Text() { return platform.athanFace.Value(kText); }
};

TEST_F(AthanTest, BringsItsWindowUpAndIsHeardTwoSecondsLater) {
    platform.loop.After(1.5, [&] {
        EXPECT_TRUE(frmAzan->Visible());
        EXPECT_TRUE(frmAzan->Timer1.Running());
        EXPECT_EQ(athanActive, -1);
        EXPECT_THAT(Opened(), IsEmpty());
    });
    const double before = platform.clock.SteadySeconds();
    sub04F9(Alert::kAsr);
    EXPECT_NEAR(platform.clock.SteadySeconds() - before, 2.0, 0.02);
    EXPECT_EQ(Text(), "It is time for the Asr prayer");
    EXPECT_EQ(frmAzan->prayerIndex, Alert::kAsr);
    EXPECT_TRUE(IsPlaying());
}

TEST_F(AthanTest, FajrHasASoundOfItsOwn) {
    sub04F9(Alert::kFajr);
    EXPECT_THAT(Opened(), ElementsAre(kFajrSound));
}

TEST_F(AthanTest, OtherPrayersShareOne) {
    for (const Alert prayer : {Alert::kZuhr, Alert::kAsr, Alert::kMaghrib, Alert::kIsha}) {
        sub04F9(prayer);
    }
    EXPECT_THAT(Opened(), ElementsAre(kOthersSound, kOthersSound, kOthersSound, kOthersSound));
}

TEST_F(AthanTest, AthanNowKeepsTheTextAsItStands) {
    sub04F9(Alert::kIsha);
    sub04F9(Alert::kAthanNow);
    EXPECT_EQ(frmAzan->prayerIndex, Alert::kAthanNow);
    EXPECT_EQ(Text(), "It is time for the Isha prayer");
    EXPECT_THAT(Opened(), ElementsAre(kOthersSound, kOthersSound));
}

TEST_F(AthanTest, MenuEntryAsksForAthanNow) {
    frmMain->mnuThanNow.UserClick();
    EXPECT_TRUE(frmAzan->Visible());
    EXPECT_THAT(Opened(), ElementsAre(kOthersSound));
    EXPECT_THAT(platform.athanFace.variables,
                testing::Not(testing::Contains(testing::Key("_root.character_textField"))));
}

TEST_F(AthanTest, MuteAndBuzzerAreSilentWithTheWindowUpUntilStop) {
    for (const std::int16_t type : std::initializer_list<std::int16_t>{1, 2}) {
        SetAthanType(type);
        sub04F9(Alert::kZuhr);
        EXPECT_TRUE(frmAzan->Visible());
        EXPECT_THAT(Opened(), IsEmpty());
        EXPECT_EQ(athanActive, -1);
        EXPECT_EQ(platform.dialogs.beeps, 0);
        PressStop();
        EXPECT_EQ(athanActive, 0);
    }
}

TEST_F(AthanTest, TypeThatWasNotAcceptedMakesNoSound) {
    Settings.AthanType = kMuteAthan;
    sub04F9(Alert::kZuhr);
    Settings.AthanType = kSoundAthan;
    ActiveSettings.AthanType = kMuteAthan;
    sub04F9(Alert::kZuhr);
    EXPECT_THAT(Opened(), IsEmpty());
}

TEST_F(AthanTest, TypeIsLookedAtWhenTheSoundIsDue) {
    SetAthanType(kMuteAthan);
    platform.loop.After(1.0, [] { SetAthanType(kSoundAthan); });
    sub04F9(Alert::kZuhr);
    EXPECT_THAT(Opened(), ElementsAre(kOthersSound));
}

TEST_F(AthanTest, StopBeforeTheSoundIsDueDoesNotKeepItBack) {
    platform.loop.After(1.0, [&] { PressStop(); });
    sub04F9(Alert::kZuhr);
    EXPECT_TRUE(IsPlaying());
    EXPECT_EQ(athanActive, 0);
}

TEST_F(AthanTest, MissingSoundLeavesTheWindowUp) {
    platform.audioFile.sounds.clear();
    sub04F9(Alert::kZuhr);
    EXPECT_TRUE(frmAzan->Visible());
    EXPECT_EQ(athanActive, -1);
    EXPECT_FALSE(IsPlaying());
}

TEST_F(AthanTest, EndOfTheSoundEndsTheCycle) {
    sub04F9(Alert::kZuhr);
    platform.audioPlayer.PlayToTheEnd();
    EXPECT_EQ(athanActive, 0);
    EXPECT_FALSE(frmAzan->IsLoaded());
}

TEST_F(AthanTest, CalculatedYearSilencesItAndTheWindowStays) {
    sub04F9(Alert::kZuhr);
    RefreshAll();
    EXPECT_FALSE(IsPlaying());
    EXPECT_TRUE(frmAzan->Visible());
    EXPECT_EQ(athanActive, -1);
}

TEST_F(AthanTest, EnablesTheSettingsWindow) {
    HoravexMainForm->SetEnabled(false);
    sub04F9(Alert::kZuhr);
    EXPECT_TRUE(HoravexMainForm->Enabled());
}

/// Ticks around the arrival of Asr.
struct AthanTickTest : AthanTest {
    AthanTickTest() { SetClockAtAsr(); }

    void SetClockAtAsr(int later = 0) {
        platform.clock.Set(platform.clock.Today() +
                           std::ceil(TodayTimes[3] * kSecondsPerDay) / kSecondsPerDay +
                           later / kSecondsPerDay);
    }

    /// A tick of the clock a second after the former one's end.
    void TickAfter(double seconds) {
        platform.clock.Advance(seconds);
        tmrUpdate_Timer();
    }
};

TEST_F(AthanTickTest, ArrivalSoundsOnceWhileItsWindowIsUp) {
    tmrUpdate_Timer();
    for (int tick = 0; tick < 7; ++tick) {
        TickAfter(1.0);
    }
    EXPECT_THAT(Opened(), ElementsAre(kOthersSound));
}

TEST_F(AthanTickTest, StopInTheTenSecondsBringsItBackOnTheNextTickAndLaterNot) {
    tmrUpdate_Timer();
    PressStop();
    TickAfter(1.0);
    EXPECT_EQ(athanActive, -1) << "five seconds behind its time";
    EXPECT_EQ(Opened().size(), 2U);
    PressStop();
    SetClockAtAsr(10);
    tmrUpdate_Timer();
    EXPECT_EQ(athanActive, 0);
    EXPECT_EQ(Opened().size(), 2U);
}

TEST_F(AthanTickTest, SoundThatEndsInTheTenSecondsBringsItBack) {
    tmrUpdate_Timer();
    platform.audioPlayer.PlayToTheEnd();
    TickAfter(1.0);
    EXPECT_EQ(Opened().size(), 2U);
    EXPECT_TRUE(frmAzan->Visible());
}

TEST_F(AthanTickTest, AthanThatIsUpKeepsTheNextPrayerBackAndQueuesNothing) {
    athanActive = -1;
    tmrUpdate_Timer();
    EXPECT_FALSE(frmAzan->IsLoaded());
    SetClockAtAsr(10);
    athanActive = 0;
    tmrUpdate_Timer();
    EXPECT_FALSE(frmAzan->IsLoaded());
}

TEST_F(AthanTickTest, TickInTheWaitForTheSoundDoesNotRaiseItAgain) {
    platform.loop.After(1.0, [] { tmrUpdate_Timer(); });
    tmrUpdate_Timer();
    EXPECT_THAT(Opened(), ElementsAre(kOthersSound));
}

TEST_F(AthanTickTest, StopInTheWaitForTheSoundBringsItBackOnTheNextTick) {
    platform.loop.After(1.0, [&] {
        PressStop();
        tmrUpdate_Timer();
        EXPECT_EQ(athanActive, -1);
    });
    tmrUpdate_Timer();
    EXPECT_TRUE(frmAzan->Visible());
    EXPECT_EQ(athanActive, -1);
}

TEST_F(AthanTickTest, AlarmThatFallsDueBeforeTheSoundComesBehindIt) {
    ActiveSettings.AlarmTime = 78;
    platform.clock.Set(platform.clock.Today() + TimeSerial(6, 29, 59));
    platform.loop.After(1.5, [] { tmrUpdate_Timer(); });
    const double before = platform.clock.SteadySeconds();
    sub04F9(Alert::kAthanNow);
    EXPECT_NEAR(platform.clock.SteadySeconds() - before, 2.0, 0.02);
    EXPECT_THAT(Opened(), ElementsAre(kOthersSound));
    bool alarmIsUp = false;
    platform.loop.After(2.0, [&] {
        alarmIsUp = fMessage->Visible();
        fMessage->cmdAlarmClose.UserClick();
    });
    TickAfter(1.0);
    EXPECT_TRUE(alarmIsUp);
}

struct AlarmTest : ProgramTest {
    AlarmTest() {
        StartAgain();
        ActiveSettings.AlarmTime = 78;
    }

    /// How long the alarm stood, in seconds.
    double SoundAlarm() {
        const double before = platform.clock.SteadySeconds();
        sub04F9(Alert::kDailyAlarm);
        return platform.clock.SteadySeconds() - before;
    }
};

TEST_F(AlarmTest, StandsForThreeHundredAndTenSeconds) {
    EXPECT_NEAR(SoundAlarm(), 2 + 20 * 3 + 20 * 12.51, 1e-6) << "rests take 10 ms";
    EXPECT_EQ(platform.dialogs.beeps, 20);
    EXPECT_FALSE(fMessage->IsLoaded());
}

TEST_F(AlarmTest, OneThatNobodyClosesDismissesNothing) {
    SoundAlarm();
    EXPECT_EQ(alarmDismissed, 0);
}

TEST_F(AlarmTest, TellsItsTimeAndOffersClose) {
    platform.loop.After(1.0, [&] {
        EXPECT_EQ(fMessage->lblMessage2.Caption(), "06:30 AM : It is time for your alarm.");
        EXPECT_EQ(fMessage->Caption(), "Horavex Prayer Time Software ");
        EXPECT_TRUE(fMessage->cmdAlarmClose.Visible());
        EXPECT_FALSE(fMessage->CmdCancel.Visible());
        EXPECT_FALSE(fMessage->Shape1.Visible());
        EXPECT_TRUE(fMessage->Visible());
        EXPECT_EQ(platform.dialogs.beeps, 0) << "the first beep comes after two seconds";
    });
    SoundAlarm();
}

TEST_F(AlarmTest, TellsTheAcceptedTimeInTheAcceptedLanguage) {
    Settings.AlarmTime = 144;
    Settings.Language = 2;
    platform.loop.After(1.0, [] {
        EXPECT_EQ(fMessage->lblMessage2.Caption(), "06:30 AM : It is time for your alarm.");
    });
    SoundAlarm();
}

TEST_F(AlarmTest, TakesAWindowThatIsInUseOver) {
    fMessage->Load();
    fMessage->SetCaption("another");
    fMessage->CmdCancel.SetCaption("another");
    fMessage->CmdCancel.SetVisible(true);
    platform.loop.After(1.0, [] {
        EXPECT_EQ(fMessage->Caption(), "Horavex Prayer Time Software ");
        EXPECT_EQ(fMessage->CmdCancel.Caption(), "Cancel");
        EXPECT_FALSE(fMessage->CmdCancel.Visible());
    });
    SoundAlarm();
}

TEST_F(AlarmTest, ClosingEndsItAtTheNextPass) {
    platform.loop.After(9.0, [] { fMessage->cmdAlarmClose.UserClick(); });
    EXPECT_NEAR(SoundAlarm(), 11.0, 0.5);
    EXPECT_EQ(platform.dialogs.beeps, 3);
    EXPECT_EQ(alarmDismissed, -1);
}

TEST_F(AlarmTest, ClosingItsWindowDismissesItAsItsButtonDoes) {
    platform.loop.After(9.0, [] { fMessage->UserClose(); });
    EXPECT_NEAR(SoundAlarm(), 11.0, 0.5);
    EXPECT_EQ(platform.dialogs.beeps, 3);
    EXPECT_EQ(alarmDismissed, -1);
}

TEST_F(AlarmTest, CalculatedYearDismissesIt) {
    platform.loop.After(3.0, RefreshAll);
    EXPECT_NEAR(SoundAlarm(), 6.0, 0.5);
    EXPECT_EQ(platform.dialogs.beeps, 1);
    EXPECT_EQ(alarmDismissed, -1);
}

TEST_F(AlarmTest, WindowThatIsLoadedAgainBeforeItsWaitIsOverDoesNotBringItBack) {
    platform.loop.After(3.0, [this] {
        fMessage->cmdAlarmClose.UserClick();
        frmMain->mnuExport.UserClick();  // its dialogue is cancelled and leaves the window loaded
        EXPECT_EQ(alarmDismissed, 0);
    });
    EXPECT_NEAR(SoundAlarm(), 5.0, 0.5);
    EXPECT_EQ(platform.dialogs.beeps, 1);
}

TEST_F(AlarmTest, WindowOfProgressThatGoesDismissesNothing) {
    RefreshAll();
    EXPECT_EQ(alarmDismissed, 0);
}

TEST_F(AlarmTest, IsActiveWhileItStandsAndNoLonger) {
    platform.loop.After(5.0, [] { EXPECT_EQ(alarmActive, -1); });
    SoundAlarm();
    EXPECT_EQ(alarmActive, 0);
}

TEST_F(AlarmTest, NextAlarmForgetsTheDismissal) {
    alarmDismissed = -1;
    SoundAlarm();
    EXPECT_EQ(platform.dialogs.beeps, 20);
}

TEST_F(AlarmTest, EnablesTheSettingsWindow) {
    HoravexMainForm->SetEnabled(false);
    SoundAlarm();
    EXPECT_TRUE(HoravexMainForm->Enabled());
}

TEST_F(AlarmTest, ClosedEarlyItComesBackOnTheNextTickOfItsTenSeconds) {
    SetClock(2026, 11, 21, 6, 30, 0);
    platform.loop.After(3.0, [] { fMessage->cmdAlarmClose.UserClick(); });
    tmrUpdate_Timer();
    EXPECT_EQ(platform.dialogs.beeps, 1);
    platform.loop.After(1.0, [] { EXPECT_TRUE(fMessage->Visible()); });
    platform.loop.After(9.0, [] { fMessage->cmdAlarmClose.UserClick(); });
    tmrUpdate_Timer();
    EXPECT_EQ(platform.dialogs.beeps, 4);
    tmrUpdate_Timer();
    EXPECT_EQ(platform.dialogs.beeps, 4) << "its ten seconds are over";
}

TEST_F(AlarmTest, PlaysNoSoundFileWhateverTheAthanType) {
    for (const std::int16_t type : std::initializer_list<std::int16_t>{1, 2, 3}) {
        Settings.AthanType = type;
        ActiveSettings.AthanType = type;
        SoundAlarm();
    }
    EXPECT_EQ(platform.dialogs.beeps, 60);
    EXPECT_TRUE(platform.audioFile.opened.empty());
}

TEST_F(AlarmTest, SunriseReturnsAtOnce) {
    HoravexMainForm->SetEnabled(false);
    sub04F9(Alert::kShurooq);
    EXPECT_FALSE(HoravexMainForm->Enabled());
}

}  // namespace
}  // namespace horavex
