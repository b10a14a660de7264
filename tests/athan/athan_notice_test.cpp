#include "athan/athan_notice.h"

#include "athan/prayer_day.h"
#include "lang/language_pack.h"

namespace horavex {
namespace {

using testing::IsEmpty;

struct AthanNoticeTest : PrayerDay {
    void Press(NoticeAction action) {
        platform.notices.onAction(NoticeKind::kAthan, action);
        Run(1);
    }

    bool NoticeStands(NoticeKind kind = NoticeKind::kAthan) const {
        return platform.notices.onView.contains(kind);
    }
};

TEST_F(AthanNoticeTest, StandsInForTheWindowAndSoundsAllTheSame) {
    SaveOption(option::kAthanShown, AthanShown::kNotification);
    RunFrom(Arrival(kAsr), 4);
    EXPECT_FALSE(frmAzan->IsLoaded());
    EXPECT_TRUE(IsPlaying());
    ASSERT_TRUE(NoticeStands());
    EXPECT_FALSE(LastNotice().quiet);
    EXPECT_EQ(LastNotice().text, "It is time for the Asr prayer");
    EXPECT_EQ(LastNotice().stopCaption, "Stop");
    EXPECT_EQ(LastNotice().openCaption, "Open Horavex");
    EXPECT_EQ(NoticeCount(), 1);
}

TEST_F(AthanNoticeTest, GoesWithTheEndOfTheSound) {
    SaveOption(option::kAthanShown, AthanShown::kNotification);
    RunFrom(Arrival(kAsr), 45);
    EXPECT_FALSE(IsPlaying());
    EXPECT_FALSE(NoticeStands());
    EXPECT_EQ(athanActive, kFalse);
    EXPECT_EQ(Sounded("athan"), 1);
}

TEST_F(AthanNoticeTest, ItsButtonStopsTheAthan) {
    SaveOption(option::kAthanShown, AthanShown::kBoth);
    RunFrom(Arrival(kAsr), 4);
    EXPECT_TRUE(frmAzan->Visible());
    Press(NoticeAction::kStop);
    EXPECT_FALSE(IsPlaying());
    EXPECT_EQ(athanActive, kFalse);
    Run(8);
    EXPECT_EQ(Sounded("athan"), 1);
}

TEST_F(AthanNoticeTest, PutAwayAloneItStopsTheAthanAndBesideTheWindowItDoesNot) {
    SaveOption(option::kAthanShown, AthanShown::kNotification);
    RunFrom(Arrival(kAsr), 4);
    Press(NoticeAction::kDismiss);
    EXPECT_FALSE(IsPlaying());
    SaveOption(option::kAthanShown, AthanShown::kBoth);
    RunFrom(Arrival(kMaghrib), 4);
    Press(NoticeAction::kDismiss);
    EXPECT_TRUE(IsPlaying());
}

TEST_F(AthanNoticeTest, ItsOtherButtonBringsTheFaceBackAndLetsTheAthanSound) {
    SaveOption(option::kAthanShown, AthanShown::kNotification);
    RunFrom(Arrival(kAsr), 4);
    frmMain->Hide();
    Press(NoticeAction::kOpen);
    EXPECT_TRUE(frmMain->Visible());
    EXPECT_TRUE(IsPlaying());
}

TEST_F(AthanNoticeTest, MutedItIsThatOfASilentPrayerAndHoldsNothingUp) {
    SaveOption(option::kAthanShown, AthanShown::kNotification);
    SetAthanType(1);
    RunThrough(kAsr);
    EXPECT_EQ(athanActive, kFalse);
    ASSERT_TRUE(NoticeStands(NoticeKind::kPrayer)) << "the user may look later";
    EXPECT_FALSE(NoticeStands());
    EXPECT_TRUE(LastNotice().quiet);
    EXPECT_EQ(LastNotice().stopCaption, "");
    SetAthanType(kSoundAthan);
    RunThrough(kMaghrib);
    EXPECT_EQ(Sounded("athan"), 1);
}

TEST_F(AthanNoticeTest, WithoutADeviceItHoldsNothingUpEither) {
    SaveOption(option::kAthanShown, AthanShown::kNotification);
    platform.audioPlayer.hasDevice = false;
    RunThrough(kAsr);
    EXPECT_EQ(athanActive, kFalse);
    EXPECT_TRUE(LastNotice().quiet);
}

TEST_F(AthanNoticeTest, StandsInOnlyWhileTheUserMustNotBeDisturbed) {
    SaveOption(option::kAthanShown, AthanShown::kNotificationWhileBusy);
    RunThrough(kAsr);
    EXPECT_TRUE(frmAzan->Visible());
    EXPECT_THAT(platform.notices.shown, IsEmpty());
    PressStop();
    platform.session.isBusy = true;
    frmAzan->Unload();
    RunThrough(kMaghrib);
    EXPECT_FALSE(frmAzan->IsLoaded());
    EXPECT_EQ(NoticeCount(), 1);
}

TEST_F(AthanNoticeTest, WithoutAServiceTheWindowComesAsEver) {
    platform.notices.hasService = false;
    SaveOption(option::kAthanShown, AthanShown::kNotification);
    RunThrough(kAsr);
    EXPECT_TRUE(frmAzan->Visible());
    EXPECT_TRUE(IsPlaying());
}

TEST_F(AthanNoticeTest, SpeaksTheLanguageOfThePack) {
    currentLanguage = "German";
    SaveOption(option::kAthanShown, AthanShown::kBoth);
    RunThrough(kAsr);
    EXPECT_EQ(LastNotice().stopCaption, "Stopp");
}

TEST_F(AthanNoticeTest, CountdownIsInMinutesAndSeconds) {
    EXPECT_EQ(IqamaCountdown(kAsr, 572.0), "Iqama of Asr in 9:32");
    EXPECT_EQ(IqamaCountdown(kFajr, 3600.0), "Iqama of Fajr in 60:00");
    EXPECT_EQ(IqamaCountdown(kFajr, 0.4), "Iqama of Fajr in 0:01");
}

TEST_F(AthanNoticeTest, StoppedBeforeItsSoundTheAthanStaysSilent) {
    for (const NoticeAction action : {NoticeAction::kStop, NoticeAction::kDismiss}) {
        SaveOption(option::kAthanShown, AthanShown::kNotification);
        platform.loop.After(1.0, [&] {
            platform.notices.onAction(NoticeKind::kAthan, action);
            tmrUpdate_Timer();
        });
        RunThrough(action == NoticeAction::kStop ? kAsr : kMaghrib);
        EXPECT_EQ(Sounded("athan"), 0);
        EXPECT_EQ(athanActive, kFalse);
    }
}

TEST_F(AthanNoticeTest, IqamaBesideASoundingAthanLeavesItsButtonAlone) {
    SaveOption(option::kAthanShown, AthanShown::kNotification);
    SaveOption(option::kIqamas[kAsr], 1);
    AddSound(SoundPath("athan"), 120);
    RunFrom(Arrival(kAsr), 75);
    EXPECT_TRUE(NoticeStands());
    EXPECT_TRUE(NoticeStands(NoticeKind::kPrayer));
    platform.notices.onAction(NoticeKind::kPrayer, NoticeAction::kDismiss);
    EXPECT_TRUE(IsPlaying());
    Run(90);
    EXPECT_FALSE(NoticeStands());
    EXPECT_TRUE(NoticeStands(NoticeKind::kPrayer)) << "the iqama's own";
}

TEST_F(AthanNoticeTest, TakesThePlaceOfItsReminder) {
    SaveOption(option::kAthanShown, AthanShown::kBoth);
    SaveOption(option::kReminders[kAsr], 1);
    RunFrom(Arrival(kAsr) - Minutes(1), 63);
    EXPECT_TRUE(NoticeStands());
    EXPECT_FALSE(NoticeStands(NoticeKind::kPrayer));
}

TEST_F(AthanNoticeTest, ServiceThatGoesInTheMiddleLeavesTheAthanToTheWindow) {
    SaveOption(option::kAthanShown, AthanShown::kNotification);
    AddSound(SoundPath("athan"), 120);
    RunFrom(Arrival(kAsr), 5);
    platform.notices.hasService = false;
    Run(2);
    EXPECT_TRUE(frmAzan->Visible());
    EXPECT_EQ(platform.athanFace.Value("_root.character_textField"),
              "It is time for the Asr prayer");
    EXPECT_TRUE(IsPlaying());
    PressStop();
    EXPECT_FALSE(IsPlaying());
}

TEST_F(AthanNoticeTest, ShortToneLeavesANoticeToReadBehind) {
    SaveOption(option::kAthanShown, AthanShown::kNotification);
    SaveOption(option::kAthanSounds[kAsr], AthanSound::kTone);
    RunThrough(kAsr);
    EXPECT_EQ(Sounded("tone"), 1);
    EXPECT_EQ(athanActive, kFalse);
    EXPECT_TRUE(NoticeStands(NoticeKind::kPrayer));
}

}  // namespace
}  // namespace horavex
