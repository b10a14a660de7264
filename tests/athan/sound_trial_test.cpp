#include "athan/sound_trial.h"

#include "athan/athan_state.h"
#include "athan/chosen_sound.h"
#include "athan/player.h"
#include "athan/reminders_display.h"
#include "athan/reminders_test.h"
#include "athan/sound.h"
#include "base/int16.h"
#include "lang/language_pack.h"
#include "platform/sound_trouble.h"
#include "shell/tick.h"

namespace horavex {
namespace {

using testing::Each;
using testing::ElementsAre;

using SoundTrialTest = RemindersTest;

TEST_F(SoundTrialTest, ListenPlaysWhatThePrayerWillSoundLike) {
    Open();
    form.cmdListen(kFajr).UserClick();
    form.cmdListen(kIsha).UserClick();
    form.cboSound(kZuhr).UserSelect(4);
    form.cmdListen(kZuhr).UserClick();
    form.cboSound(kAsr).UserSelect(kToneRow);
    form.cmdListen(kAsr).UserClick();
    ChooseOwn(kMaghrib, kOwn);
    form.cmdListen(kMaghrib).UserClick();
    EXPECT_THAT(Opened(), ElementsAre(Path("fagr_athan.mp3"), Path("athan.mp3"),
                                      Path("fagr_athan1.mp3"), Path("tone.mp3"), kOwn));
    EXPECT_TRUE(platform.audioPlayer.IsPlaying());
    EXPECT_EQ(Said(), "");
}

TEST_F(SoundTrialTest, ListenPlaysAtBothVolumesTogetherWithTheRise) {
    PrayerChoices half;
    half.volume = 50;
    EXPECT_EQ(LoudnessOf(half, 80, 12), (Loudness{.percent = 40, .fadeSeconds = 12}));
    platform.audioFile.sounds[Path("athan.mp3")].samples = Bytes(400, 100);
    Open();
    form.hsVolume(kIsha).UserSlide(0);
    form.cmdListen(kIsha).UserClick();
    platform.audioPlayer.PlayToTheEnd();
    EXPECT_THAT(platform.audioPlayer.heard, Each(0));
}

TEST_F(SoundTrialTest, ListenAgainOrStopEndsIt) {
    Open();
    form.cmdListen(kIsha).UserClick();
    form.cmdListen(kIsha).UserClick();
    EXPECT_FALSE(IsPlaying());
    form.cmdListen(kIsha).UserClick();
    EXPECT_TRUE(IsPlaying());
    form.cmdStop.UserClick();
    EXPECT_FALSE(IsPlaying());
}

TEST_F(SoundTrialTest, ListenSaysThatAFileCannotBePlayed) {
    platform.files.WriteWhole("/music/broken.ogg", BytesOf("no sound"));
    Open();
    ChooseOwn(kIsha, "/music/broken.ogg");
    form.cmdListen(kIsha).UserClick();
    EXPECT_EQ(Said(), "No sound: this file cannot be played");
}

TEST_F(SoundTrialTest, OwnFileThatIsGoneGivesWayToTheProgramsSound) {
    Open();
    ChooseOwn(kFajr, "/music/gone.ogg");
    form.cmdListen(kFajr).UserClick();
    EXPECT_THAT(Opened(), ElementsAre(Path("fagr_athan.mp3")));
}

TEST_F(SoundTrialTest, ClosingStopsWhatIsListenedTo) {
    for (CommandButton* button : {&form.cmdOK, &form.cmdCancel}) {
        Open();
        form.cmdListen(kIsha).UserClick();
        button->UserClick();
        EXPECT_FALSE(IsPlaying()) << button->Name();
    }
}

TEST_F(SoundTrialTest, ClosingLeavesAnAthanAlone) {
    Open();
    form.cmdListen(kIsha).UserClick();
    athanActive = kTrue;
    Athan_Sound_Click();
    form.cmdCancel.UserClick();
    EXPECT_TRUE(IsPlaying());
    Open();
    form.cmdCancel.UserClick();
    EXPECT_TRUE(IsPlaying()) << "nothing was tried";
}

// The test of the sound.

TEST_F(SoundTrialTest, TestToneSaysThatItSounds) {
    Open();
    form.cboDevice.UserSelect(2);
    form.cmdTestTone.UserClick();
    EXPECT_THAT(Opened(), ElementsAre(Path("tone.mp3")));
    EXPECT_EQ(platform.audioPlayer.device, "desk") << "though it is not stored yet";
    EXPECT_EQ(Said(), "You should hear a tone now.");
    form.cmdStop.UserClick();
    EXPECT_EQ(Said(), "");
    form.cmdCancel.UserClick();
    EXPECT_EQ(platform.audioPlayer.device, "");
}

TEST_F(SoundTrialTest, TestToneSaysWhyThereIsNoSound) {
    platform.audioPlayer.hasDevice = false;
    Open();
    form.cmdTestTone.UserClick();
    EXPECT_EQ(Said(), "No sound: no device");
    EXPECT_FALSE(IsPlaying());
}

TEST_F(SoundTrialTest, TroubleThatComesLaterIsSaidInPlaceOfTheTone) {
    Open();
    form.cmdTestTone.UserClick();
    platform.audioPlayer.hasDevice = false;
    platform.audioPlayer.onUnreachable();
    EXPECT_EQ(Said(), "No sound: no device");
}

TEST_F(SoundTrialTest, NextTickSaysThatTheToneIsNotHeard) {
    Open();
    form.cmdTestTone.UserClick();
    tmrUpdate_Timer();
    EXPECT_EQ(Said(), "You should hear a tone now.");
    platform.audioPlayer.hasDevice = false;
    tmrUpdate_Timer();
    EXPECT_EQ(Said(), "No sound: no device");
    EXPECT_FALSE(IsPlaying());
}

TEST_F(SoundTrialTest, AthanThatIsNotHeardSaysNothingHere) {
    Open();
    Athan_Sound_Click();
    platform.audioPlayer.hasDevice = false;
    tmrUpdate_Timer();
    EXPECT_EQ(Said(), "");
    EXPECT_TRUE(IsPlaying());
}

TEST_F(SoundTrialTest, ReasonsAreInTheLanguageOfThePack) {
    currentLanguage = "German";
    platform.files.WriteWhole("/program/lang/German.ini",
                              BytesOf("[reminders]\nNoServer=Kein Tonserver\n"));
    Open();
    ShowTrouble(sound_trouble::kNoServer);
    EXPECT_EQ(Said(), "No sound: Kein Tonserver");
    ShowTrouble(sound_trouble::kMutedDevice);
    EXPECT_EQ(Said(), "No sound: the output device is muted");
}

TEST_F(SoundTrialTest, AthanWithoutADeviceSaysNothingHere) {
    Open();
    form.cmdListen(kIsha).UserClick();
    athanActive = kTrue;
    Athan_Sound_Click();
    platform.audioPlayer.hasDevice = false;
    platform.audioPlayer.onUnreachable();
    EXPECT_EQ(Said(), "");
    EXPECT_TRUE(IsPlaying());
}

}  // namespace
}  // namespace horavex
