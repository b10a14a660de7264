#include "athan/athan_watch.h"

#include "athan/arrivals.h"
#include "athan/athan_alert.h"
#include "athan/prayer_day.h"
#include "athan/sound.h"
#include "platform/platform.h"

namespace horavex {
namespace {

using AthanWatchTest = PrayerDay;

TEST_F(AthanWatchTest, MutedWindowClosesBehindItsMinutes) {
    SaveOption(option::kSilentMinutes, 10);
    SetAthanType(1);
    RunFrom(Arrival(kAsr), 595);
    EXPECT_EQ(athanActive, kTrue);
    Run(15);
    EXPECT_EQ(athanActive, kFalse);
    EXPECT_LT(frmAzan->Top(), 0.0) << "above the screen, as when the user stops it";
}

TEST_F(AthanWatchTest, WithoutTheOptionItWaitsForTheUser) {
    SetAthanType(1);
    RunFrom(Arrival(kAsr), 8000);
    EXPECT_EQ(athanActive, kTrue);
}

TEST_F(AthanWatchTest, WhereNobodySeesItMutedWindowClosesWithoutTheOptionToo) {
    EndSilentAthansAfter(1);
    SetAthanType(1);
    RunFrom(Arrival(kAsr), 55);
    EXPECT_EQ(athanActive, kTrue);
    Run(15);
    EXPECT_EQ(athanActive, kFalse);
}

TEST_F(AthanWatchTest, OptionGoesBeforeTheMinutesOfOneThatNobodySees) {
    EndSilentAthansAfter(1);
    SaveOption(option::kSilentMinutes, 10);
    SetAthanType(1);
    RunFrom(Arrival(kAsr), 595);
    EXPECT_EQ(athanActive, kTrue);
}

TEST_F(AthanWatchTest, AthanThatIsHeardStaysHoweverLongItIs) {
    SaveOption(option::kSilentMinutes, 1);
    AddSound(SoundPath("athan"), 300);
    RunFrom(Arrival(kAsr), 200);
    EXPECT_EQ(athanActive, kTrue);
    EXPECT_TRUE(IsPlaying());
}

TEST_F(AthanWatchTest, OneSilencedFromElsewhereCountsItsMinutesFromThere) {
    SaveOption(option::kSilentMinutes, 1);
    AddSound(SoundPath("athan"), 300);
    RunFrom(Arrival(kAsr), 100);
    StopSound();
    Run(55);
    EXPECT_EQ(athanActive, kTrue);
    Run(10);
    EXPECT_EQ(athanActive, kFalse);
}

TEST_F(AthanWatchTest, PausedOneAndOneWithoutADeviceAreSilent) {
    SaveOption(option::kSilentMinutes, 1);
    AddSound(SoundPath("athan"), 300);
    RunFrom(Arrival(kAsr), 10);
    PauseSound();
    Run(65);
    EXPECT_EQ(athanActive, kFalse);
    platform.audioPlayer.hasDevice = false;
    RunFrom(Arrival(kMaghrib), 70);
    EXPECT_EQ(athanActive, kFalse);
}

TEST_F(AthanWatchTest, OtherPlayersPauseForTheSoundAndGoOnBehindIt) {
    SaveOption(option::kPausePlayers, 1);
    RunFrom(Arrival(kAsr), 5);
    EXPECT_EQ(platform.mediaPlayers.pauses, 1);
    EXPECT_EQ(platform.mediaPlayers.goingsOn, 0);
    Run(40);
    EXPECT_EQ(platform.mediaPlayers.goingsOn, 1);
}

TEST_F(AthanWatchTest, TheyGoOnWhenItIsStopped) {
    SaveOption(option::kPausePlayers, 1);
    SaveOption(option::kAthanOnce, 1);
    RunFrom(Arrival(kAsr), 5);
    PressStop();
    Run(2);
    EXPECT_EQ(platform.mediaPlayers.goingsOn, 1);
}

TEST_F(AthanWatchTest, TheyGoOnWhenTheProgramEnds) {
    SaveOption(option::kPausePlayers, 1);
    RunFrom(Arrival(kAsr), 5);
    EXPECT_THROW(frmMain->mnuExit.UserClick(), ProcessEnded);
    EXPECT_EQ(platform.mediaPlayers.goingsOn, 1);
}

TEST_F(AthanWatchTest, ForASilentAthanNobodyPauses) {
    SaveOption(option::kPausePlayers, 1);
    SetAthanType(1);
    RunThrough(kAsr);
    EXPECT_EQ(platform.mediaPlayers.pauses, 0);
    SetAthanType(kSoundAthan);
    SaveOption(option::kAthanSounds[kMaghrib], AthanSound::kNone);
    PressStop();
    RunThrough(kMaghrib);
    EXPECT_EQ(platform.mediaPlayers.pauses, 0);
}

TEST_F(AthanWatchTest, WhereNoDeviceIsTheyGoOnAtOnce) {
    SaveOption(option::kPausePlayers, 1);
    platform.audioPlayer.hasDevice = false;
    RunFrom(Arrival(kAsr), 5);
    EXPECT_EQ(platform.mediaPlayers.pauses, platform.mediaPlayers.goingsOn);
}

TEST_F(AthanWatchTest, SilenceIsCountedAnewForEachAthan) {
    SaveOption(option::kSilentMinutes, 30);
    SetAthanType(1);
    RunFrom(Arrival(kMaghrib), 3);
    Run(29 * 60);
    ReceivePrayer(kIsha, Ports().clock.Now(), sub04F9);
    Run(20 * 60);
    EXPECT_EQ(athanActive, kTrue);
    Run(11 * 60);
    EXPECT_EQ(athanActive, kFalse);
}

TEST_F(AthanWatchTest, OthersPauseAgainWithAnAthanThatIsHeardAgain) {
    SaveOption(option::kPausePlayers, 1);
    AddSound(SoundPath("athan"), 300);
    RunFrom(Arrival(kAsr), 12);
    PauseSound();
    Run(3);
    EXPECT_EQ(platform.mediaPlayers.goingsOn, 1);
    PauseSound();
    Run(3);
    EXPECT_EQ(platform.mediaPlayers.pauses, 2);
    EXPECT_EQ(platform.mediaPlayers.goingsOn, 1);
}

}  // namespace
}  // namespace horavex
