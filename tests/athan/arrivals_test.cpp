#include "athan/arrivals.h"

#include "athan/athan_alert.h"
#include "athan/azan_window.h"
#include "athan/prayer_day.h"
#include "athan/prayer_sound.h"

namespace horavex {
namespace {

using testing::IsEmpty;

using ArrivalsTest = PrayerDay;

TEST_F(ArrivalsTest, WithNoOptionAnAthanThatIsStoppedComesAgainInItsTenSeconds) {
    RunFrom(Arrival(kAsr), 3);
    PressStop();
    Run(3);
    EXPECT_EQ(Sounded("athan"), 2);
    EXPECT_THAT(platform.notices.shown, IsEmpty());
    EXPECT_EQ(platform.mediaPlayers.pauses, 0);
}

TEST_F(ArrivalsTest, OnceItStaysStopped) {
    SaveOption(option::kAthanOnce, 1);
    RunFrom(Arrival(kAsr), 3);
    PressStop();
    Run(9);
    EXPECT_EQ(Sounded("athan"), 1);
}

TEST_F(ArrivalsTest, OnceAPrayerThatTheClockIsSetBackToIsNotCalledAgain) {
    SaveOption(option::kAthanOnce, 1);
    RunThrough(kAsr);
    PressStop();
    RunThrough(kAsr);
    EXPECT_EQ(Sounded("athan"), 1);
}

TEST_F(ArrivalsTest, EachPrayerOfADayIsCalledOnce) {
    SaveOption(option::kAthanOnce, 1);
    for (const Prayer prayer : {kFajr, kShurooq, kZuhr, kAsr, kMaghrib, kIsha}) {
        RunThrough(prayer);
        Run(60);
    }
    EXPECT_EQ(Sounded("athan"), 4);
    EXPECT_EQ(Sounded("fagr_athan"), 1);
}

TEST_F(ArrivalsTest, PrayerWithoutAnAthanIsToldOnceAndSilently) {
    SaveOption(option::kAthans[kAsr], 0);
    RunThrough(kAsr);
    EXPECT_EQ(Sounded("athan"), 0);
    EXPECT_FALSE(frmAzan->IsLoaded());
    ASSERT_EQ(NoticeCount(), 1);
    EXPECT_TRUE(LastNotice().quiet);
    EXPECT_EQ(LastNotice().text, "It is time for the Asr prayer");
    EXPECT_THAT(LastNotice().title, testing::StartsWith("Asr "));
    EXPECT_EQ(LastNotice().stopCaption, "");
    RunThrough(kMaghrib);
    EXPECT_EQ(Sounded("athan"), 1) << "the others have theirs";
}

TEST_F(ArrivalsTest, ChosenSoundSoundsOnceHoweverShortItIs) {
    SaveOption(option::kAthanSounds[kAsr], AthanSound::kTone);
    RunThrough(kAsr);
    EXPECT_EQ(Sounded("tone"), 1);
    EXPECT_EQ(Sounded("athan"), 0);
}

TEST_F(ArrivalsTest, EveryChosenSoundIsTheFileOfItsName) {
    const std::pair<AthanSound, std::string> sounds[] = {{AthanSound::kAthan1, "athan1"},
                                                         {AthanSound::kAthan2, "athan2"},
                                                         {AthanSound::kAthan3, "athan3"},
                                                         {AthanSound::kFajrAthan1, "fagr_athan1"},
                                                         {AthanSound::kFajrAthan2, "fagr_athan2"}};
    for (const auto& [sound, name] : sounds) {
        SaveOption(option::kAthanSounds[kAsr], sound);
        platform.audioFile.opened.clear();
        PlayPrayerSound(Alert::kAsr);
        EXPECT_EQ(Sounded(name), 1) << name;
    }
}

TEST_F(ArrivalsTest, FileOfTheUsersSoundsAndWhereItIsGoneTheProgramsOwn) {
    AddSound("/music/call.ogg", 30);
    SaveOption(option::kAthanSounds[kAsr], AthanSound::kFile);
    SaveOption(option::kAthanFiles[kAsr], "/music/call.ogg");
    PlayPrayerSound(Alert::kAsr);
    EXPECT_EQ(platform.audioFile.opened.back(), "/music/call.ogg");
    platform.files.Delete("/music/call.ogg");
    PlayPrayerSound(Alert::kAsr);
    EXPECT_EQ(platform.audioFile.opened.back(), SoundPath("athan"));
}

TEST_F(ArrivalsTest, PrayerWithNoSoundBringsItsWindowUpAndOnce) {
    SaveOption(option::kAthanSounds[kAsr], AthanSound::kNone);
    RunFrom(Arrival(kAsr), 3);
    EXPECT_TRUE(frmAzan->Visible());
    EXPECT_FALSE(IsPlaying());
    PressStop();
    Run(8);
    EXPECT_EQ(athanActive, kFalse);
}

TEST_F(ArrivalsTest, ChosenDeviceIsAskedForAndTheDefaultOneWithoutAChoice) {
    platform.audioPlayer.device = "former";
    PlayPrayerSound(Alert::kAsr);
    EXPECT_EQ(platform.audioPlayer.device, "");
    SaveOption(option::kSoundDevice, "hall");
    PlayPrayerSound(Alert::kAsr);
    EXPECT_EQ(platform.audioPlayer.device, "hall");
}

TEST_F(ArrivalsTest, AthanNowHasTheProgramsSoundWhateverAPrayerHas) {
    SaveOption(option::kAthanSounds[kAsr], AthanSound::kNone);
    SaveOption(option::kAthanShown, AthanShown::kNotification);
    frmMain->mnuThanNow.UserClick();
    EXPECT_EQ(Sounded("athan"), 1);
    EXPECT_TRUE(frmAzan->Visible());
    EXPECT_THAT(platform.notices.shown, IsEmpty());
}

TEST_F(ArrivalsTest, SilentAthanKeepsTheNextOneAway) {
    SetAthanType(1);
    RunThrough(kAsr);
    SetAthanType(kSoundAthan);
    RunThrough(kMaghrib);
    EXPECT_EQ(Sounded("athan"), 0) << "without the option the window waits for its user";
}

TEST_F(ArrivalsTest, SilentAthanThatEndsByItselfKeepsNoneAway) {
    SaveOption(option::kSilentMinutes, 120);
    SetAthanType(1);
    RunThrough(kAsr);
    SetAthanType(kSoundAthan);
    RunThrough(kMaghrib);
    EXPECT_EQ(Sounded("athan"), 1);
    EXPECT_EQ(platform.athanFace.Value("_root.character_textField"),
              "It is time for the Maghrib prayer");
}

TEST_F(ArrivalsTest, AthanThatStillSoundsIsLeftAloneAndTheNextOneToldSilently) {
    SaveOption(option::kSilentMinutes, 10);
    SaveOption(option::kAthanOnce, 1);
    AddSound(SoundPath("athan"), 100000);
    RunThrough(kAsr);
    RunThrough(kMaghrib);
    EXPECT_EQ(Sounded("athan"), 1);
    ASSERT_EQ(NoticeCount(), 1);
    EXPECT_EQ(LastNotice().text, "It is time for the Maghrib prayer");
}

TEST_F(ArrivalsTest, ToneInThePrayersWayGivesWay) {
    AddSound(SoundPath("tone"), 5);
    SaveOption(option::kAthanOnce, 1);
    platform.clock.Set(Arrival(kAsr) - Seconds(2));
    PlayTone([] { ADD_FAILURE() << "unheard"; });
    ASSERT_TRUE(IsPlaying());
    Run(14);
    EXPECT_EQ(Sounded("athan"), 1);
    EXPECT_EQ(athanActive, kTrue);
    EXPECT_TRUE(frmAzan->Visible()) << "the end of the tone is not that of the athan";
}

TEST_F(ArrivalsTest, WindowOfAShortToneStaysToBeRead) {
    SaveOption(option::kAthanSounds[kAsr], AthanSound::kTone);
    RunThrough(kAsr);
    EXPECT_FALSE(IsPlaying());
    EXPECT_TRUE(frmAzan->Visible());
    RunThrough(kMaghrib);
    EXPECT_EQ(Sounded("athan"), 1) << "and keeps no other away";
}

TEST_F(ArrivalsTest, QuietThatIsChosenBeforeTheSoundKeepsIt) {
    platform.loop.After(1.0, [] { frmMain->mnuPopQuietToday.UserClick(); });
    RunFrom(Arrival(kAsr), 11);
    EXPECT_EQ(Sounded("athan"), 0);
    EXPECT_EQ(athanActive, kFalse);
}

TEST_F(ArrivalsTest, AthanThatAnotherHasReplacedInItsWaitIsNotHeardInItsPlace) {
    SaveOption(option::kAthanOnce, 1);
    platform.loop.After(1.0, [&] {
        StopAthan();
        sub04F9(Alert::kMaghrib);
    });
    ReceivePrayer(kAsr, Arrival(kAsr), sub04F9);
    EXPECT_EQ(Sounded("athan"), 1) << "that of the later one";
    EXPECT_EQ(frmAzan->prayerIndex, Alert::kMaghrib);
}

TEST_F(ArrivalsTest, OfTwoPrayersInTheSameSecondsTheLaterIsToldWhereEachIsCalledOnce) {
    SaveOption(option::kAthanOnce, 1);
    TodayTimes[kIsha] = TodayTimes[kMaghrib] + 2.0 / kSecondsPerDay;
    platform.clock.Set(Arrival(kMaghrib) + Seconds(3));
    RunTick({[] {}, [] {}, sub04F9});
    EXPECT_EQ(Sounded("athan"), 1);
    ASSERT_EQ(NoticeCount(), 1);
    EXPECT_EQ(LastNotice().text, "It is time for the Isha prayer");
}

TEST_F(ArrivalsTest, FileThatCannotBePlayedGivesWayToTheProgramsOwn) {
    platform.files.WriteWhole("/music/call.m4a", Bytes(1));
    SaveOption(option::kAthanSounds[kAsr], AthanSound::kFile);
    SaveOption(option::kAthanFiles[kAsr], "/music/call.m4a");
    PlayPrayerSound(Alert::kAsr);
    EXPECT_TRUE(IsPlaying());
    EXPECT_EQ(platform.audioFile.opened.back(), SoundPath("athan"));
}

}  // namespace
}  // namespace horavex
