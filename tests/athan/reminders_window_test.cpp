#include "athan/reminders_window.h"

#include "athan/reminders_test.h"
#include "athan/sound_tools.h"
#include "lang/language_pack.h"
#include "windows/frm_athan.h"

namespace horavex {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

TEST_F(RemindersTest, OpenFromBothMenusAndFromTheAthanSettings) {
    frmMain->mnuPopReminders.UserClick();
    EXPECT_TRUE(form.IsModal());
    EXPECT_EQ(form.Owner(), &*frmMain);
    form.cmdCancel.UserClick();
    EXPECT_FALSE(form.IsLoaded());
    Open();
    EXPECT_EQ(form.Owner(), &*frmMain);
    form.UserClose();
    frmAthan->Show();
    frmAthan->cmdReminders.UserClick();
    EXPECT_EQ(form.Owner(), &*frmAthan);
}

TEST_F(RemindersTest, SpeakTheCurrentLanguage) {
    currentLanguage = "Arabic";
    Open();
    EXPECT_EQ(form.Caption(), "الأذان والتذكير");
    EXPECT_EQ(form.cboSound(kFajr).ListItem(kNoSoundRow), "بلا صوت");
}

TEST_F(RemindersTest, WithNothingStoredShowTheBase) {
    Open();
    for (const int prayer : {kFajr, kZuhr, kAsr, kMaghrib, kIsha}) {
        EXPECT_EQ(form.chkAthan(prayer).Value(), 1);
        EXPECT_EQ(form.cboSound(prayer).Text(), "As in \"Athan Settings\"");
        EXPECT_EQ(form.lblShownVolume(prayer).Caption(), "100%");
        EXPECT_EQ(form.lblShownIqama(prayer).Caption(), "none");
    }
    EXPECT_EQ(form.lblShownReminder(kShurooq).Caption(), "none");
    EXPECT_EQ(form.lblShownFade.Caption(), "at once");
    EXPECT_EQ(form.cboDevice.Text(), "Default device");
    EXPECT_EQ(form.cboShow.Text(), "its window");
    EXPECT_EQ(form.lblShownSilent.Caption(), "never");
    EXPECT_EQ(form.chkAlarm.Value(), 1);
    EXPECT_EQ(form.chkQuiet.Value(), 0);
    EXPECT_FALSE(form.hsQuietFrom.Enabled());
    EXPECT_EQ(form.lblShownQuietFrom.Caption(), "10:00 PM");
    EXPECT_EQ(form.lblShownQuietTo.Caption(), "06:00 AM");
    EXPECT_EQ(Said(), "");
}

TEST_F(RemindersTest, OfSunriseThereIsAReminderAlone) {
    EXPECT_TRUE(form.hsReminder.Contains(kShurooq));
    EXPECT_FALSE(form.chkAthan.Contains(kShurooq));
    EXPECT_FALSE(form.cboSound.Contains(kShurooq));
    EXPECT_FALSE(form.hsVolume.Contains(kShurooq));
    EXPECT_FALSE(form.cmdListen.Contains(kShurooq));
    EXPECT_FALSE(form.hsIqama.Contains(kShurooq));
}

TEST_F(RemindersTest, ShowWhatIsStored) {
    AthanChoices stored;
    stored.prayers[kAsr] = {.athan = false,
                            .sound = AthanSound::kFile,
                            .file = kOwn,
                            .volume = 35,
                            .reminder = 15,
                            .iqama = 20};
    stored.reminderSignal = Signal::kBoth;
    stored.iqamaSignal = Signal::kNone;
    stored.volume = 80;
    stored.fadeSeconds = 12;
    stored.device = "desk";
    stored.shown = AthanShown::kNotification;
    stored.silentMinutes = 10;
    stored.once = stored.pausePlayers = stored.tellMissed = true;
    stored.alarm = false;
    stored.quietHours = {.on = true, .from = 1320, .to = 363};
    SaveAthanChoices(stored);
    Open();
    EXPECT_EQ(form.chkAthan(kAsr).Value(), 0);
    EXPECT_EQ(form.cboSound(kAsr).Text(), "cairo.ogg");
    EXPECT_EQ(form.cboSound(kAsr).ToolTipText(), kOwn);
    EXPECT_EQ(form.lblShownVolume(kAsr).Caption(), "35%");
    EXPECT_EQ(form.lblShownReminder(kAsr).Caption(), "15 min");
    EXPECT_EQ(form.lblShownIqama(kAsr).Caption(), "20 min");
    EXPECT_EQ(form.cboReminderSignal.Text(), "both");
    EXPECT_EQ(form.cboIqamaSignal.Text(), "nothing");
    EXPECT_EQ(form.lblShownAllVolume.Caption(), "80%");
    EXPECT_EQ(form.lblShownFade.Caption(), "after 12 s");
    EXPECT_EQ(form.cboDevice.Text(), "The desk");
    EXPECT_EQ(form.cboShow.Text(), "a notification, no window");
    EXPECT_EQ(form.lblShownSilent.Caption(), "after 10 min");
    EXPECT_EQ(form.chkOnce.Value(), 1);
    EXPECT_EQ(form.chkPausePlayers.Value(), 1);
    EXPECT_EQ(form.chkTellMissed.Value(), 1);
    EXPECT_EQ(form.chkAlarm.Value(), 0);
    EXPECT_EQ(form.chkQuiet.Value(), 1);
    EXPECT_EQ(form.lblShownQuietTo.Caption(), "06:03 AM");
    form.cmdOK.UserClick();
    EXPECT_EQ(ReadAthanChoices(), stored) << "what is not moved stays, a minute between steps too";
}

TEST_F(RemindersTest, EachControlOfAPrayerIsStored) {
    Open();
    form.chkAthan(kZuhr).UserClick();
    form.cboSound(kFajr).UserSelect(5);
    form.cboSound(kIsha).UserSelect(kToneRow);
    form.cboSound(kAsr).UserSelect(kNoSoundRow);
    form.hsVolume(kMaghrib).UserSlide(55);
    form.hsReminder(kShurooq).UserSlide(30);
    form.hsIqama(kIsha).UserSlide(45);
    form.cmdOK.UserClick();
    AthanChoices expected;
    expected.prayers[kZuhr].athan = false;
    expected.prayers[kFajr].sound = AthanSound::kFajrAthan2;
    expected.prayers[kIsha].sound = AthanSound::kTone;
    expected.prayers[kAsr].sound = AthanSound::kNone;
    expected.prayers[kMaghrib].volume = 55;
    expected.prayers[kShurooq].reminder = 30;
    expected.prayers[kIsha].iqama = 45;
    EXPECT_EQ(ReadAthanChoices(), expected);
    EXPECT_FALSE(form.IsLoaded());
}

TEST_F(RemindersTest, EachControlOfAllIsStored) {
    Open();
    form.hsAllVolume.UserSlide(60);
    form.hsFade.UserSlide(30);
    form.cboDevice.UserSelect(1);
    form.cboShow.UserSelect(2);
    form.cboReminderSignal.UserSelect(1);
    form.cboIqamaSignal.UserSelect(2);
    form.hsSilent.UserSlide(10);
    form.chkOnce.UserClick();
    form.chkPausePlayers.UserClick();
    form.chkTellMissed.UserClick();
    form.chkAlarm.UserClick();
    form.chkQuiet.UserClick();
    form.hsQuietFrom.UserSlide(1);
    form.hsQuietTo.UserSlide(287);
    form.cmdOK.UserClick();
    const AthanChoices stored = ReadAthanChoices();
    EXPECT_EQ(stored.volume, 60);
    EXPECT_EQ(stored.fadeSeconds, 30);
    EXPECT_EQ(stored.device, "hall");
    EXPECT_EQ(stored.shown, AthanShown::kNotificationWhileBusy);
    EXPECT_EQ(stored.reminderSignal, Signal::kTone);
    EXPECT_EQ(stored.iqamaSignal, Signal::kBoth);
    EXPECT_EQ(stored.silentMinutes, 10);
    EXPECT_TRUE(stored.once && stored.pausePlayers && stored.tellMissed);
    EXPECT_FALSE(stored.alarm);
    EXPECT_EQ(stored.quietHours, (QuietHours{.on = true, .from = 5, .to = 1435}));
}

TEST_F(RemindersTest, BarsSayTheirValueWhileTheyAreDragged) {
    Open();
    form.hsReminder(kFajr).UserDrag(25);
    EXPECT_EQ(form.lblShownReminder(kFajr).Caption(), "25 min");
    form.chkQuiet.UserClick();
    form.hsQuietFrom.UserDrag(12);
    EXPECT_EQ(form.lblShownQuietFrom.Caption(), "01:00 AM");
}

TEST_F(RemindersTest, NothingIsStoredBeforeOK) {
    Open();
    form.chkAthan(kZuhr).UserClick();
    form.hsAllVolume.UserSlide(60);
    ChooseOwn(kIsha, kOwn);
    form.cmdCancel.UserClick();
    EXPECT_FALSE(form.IsLoaded());
    EXPECT_EQ(ReadAthanChoices(), AthanChoices());
}

TEST_F(RemindersTest, ResetTakesEverythingBackWithOK) {
    AthanChoices stored;
    stored.prayers[kIsha] = {.sound = AthanSound::kFile, .file = kOwn};
    stored.volume = 10;
    stored.device = "gone";
    stored.alarm = false;
    SaveAthanChoices(stored);
    Open();
    form.cmdReset.UserClick();
    EXPECT_EQ(form.cboSound(kIsha).Text(), "As in \"Athan Settings\"");
    EXPECT_EQ(form.lblShownAllVolume.Caption(), "100%");
    EXPECT_EQ(form.cboDevice.Text(), "Default device");
    EXPECT_EQ(form.chkAlarm.Value(), 1);
    EXPECT_EQ(ReadAthanChoices(), stored);
    form.cmdOK.UserClick();
    EXPECT_EQ(ReadAthanChoices(), AthanChoices());
}

TEST_F(RemindersTest, WithoutAnAthanOrASoundThereIsNothingToListenTo) {
    Open();
    form.chkAthan(kZuhr).UserClick();
    EXPECT_FALSE(form.cboSound(kZuhr).Enabled());
    EXPECT_FALSE(form.hsVolume(kZuhr).Enabled());
    EXPECT_FALSE(form.cmdListen(kZuhr).Enabled());
    EXPECT_TRUE(form.hsIqama(kZuhr).Enabled());
    form.cboSound(kAsr).UserSelect(kNoSoundRow);
    EXPECT_TRUE(form.cboSound(kAsr).Enabled());
    EXPECT_FALSE(form.hsVolume(kAsr).Enabled());
    EXPECT_FALSE(form.cmdListen(kAsr).Enabled());
}

TEST_F(RemindersTest, SayThatTheSettingsKeepEveryAthanSilent) {
    Open();
    EXPECT_FALSE(form.lblShownMuted.Visible());
    form.cmdCancel.UserClick();
    ActiveSettings.AthanType = 1;
    Open();
    EXPECT_TRUE(form.lblShownMuted.Visible());
    EXPECT_THAT(form.lblShownMuted.Caption(), HasSubstr("silent"));
}

// A file of the user's.

TEST_F(RemindersTest, OwnFileIsListedByItsName) {
    Open();
    EXPECT_THAT(form.cboSound(kFajr).Items(), SizeIs(9));
    ChooseOwn(kFajr, kOwn);
    EXPECT_EQ(form.cboSound(kFajr).Text(), "cairo.ogg");
    EXPECT_EQ(form.cboSound(kFajr).ToolTipText(), kOwn);
    EXPECT_THAT(form.cboSound(kFajr).Items(), Contains("Own file\u2026"));
    EXPECT_THAT(form.cboSound(kZuhr).Items(), SizeIs(9)) << "the others have their own";
    form.cmdOK.UserClick();
    EXPECT_EQ(ReadPrayerChoices(kFajr).sound, AthanSound::kFile);
    EXPECT_EQ(ReadPrayerChoices(kFajr).file, kOwn);
}

TEST_F(RemindersTest, AnotherOwnFileTakesThePlaceOfTheFormer) {
    Open();
    ChooseOwn(kFajr, kOwn);
    ChooseOwn(kFajr, "/music/fez.ogg");
    EXPECT_EQ(form.cboSound(kFajr).Text(), "fez.ogg");
    EXPECT_THAT(form.cboSound(kFajr).Items(), Not(Contains("cairo.ogg")));
}

TEST_F(RemindersTest, CancelledDialogueKeepsTheFormerSound) {
    Open();
    form.cboSound(kFajr).UserSelect(2);
    ChooseOwn(kFajr, "");
    EXPECT_EQ(form.cboSound(kFajr).Text(), "Oud");
    ChooseOwn(kFajr, kOwn);
    ChooseOwn(kFajr, "");
    EXPECT_EQ(form.cboSound(kFajr).Text(), "cairo.ogg");
}

TEST_F(RemindersTest, FileThatIsLeftIsListedStillAndStoredNoMore) {
    Open();
    ChooseOwn(kFajr, kOwn);
    form.cboSound(kFajr).UserSelect(0);
    OpenAgain();
    EXPECT_EQ(ReadPrayerChoices(kFajr), PrayerChoices());
    ChooseOwn(kFajr, kOwn);
    form.cboSound(kFajr).UserSelect(0);
    form.cboSound(kFajr).UserSelect(kOwnFileRow);
    EXPECT_EQ(form.cboSound(kFajr).Text(), "cairo.ogg");
    form.cmdOK.UserClick();
    EXPECT_EQ(ReadPrayerChoices(kFajr).file, kOwn);
}

TEST_F(RemindersTest, BareSamplesAreRefusedWithAMessage) {
    InstallSoundTools({.kindOf = [](const std::string&) { return SoundKind::kBareSamples; }});
    Open();
    ChooseOwn(kFajr, "/music/samples.raw");
    EXPECT_EQ(form.cboSound(kFajr).Text(), "As in \"Athan Settings\"");
    ASSERT_THAT(platform.dialogs.messages, SizeIs(1));
    EXPECT_THAT(platform.dialogs.messages[0].text, HasSubstr("bare samples"));
    InstallSoundTools({});
}

TEST_F(RemindersTest, FileThatIsNoSoundIsRefused) {
    InstallSoundTools({.kindOf = [](const std::string&) { return SoundKind::kUnknown; }});
    Open();
    ChooseOwn(kFajr, "/music/film.m4a");
    EXPECT_EQ(form.cboSound(kFajr).Text(), "As in \"Athan Settings\"");
    EXPECT_EQ(Said(), "No sound: this file cannot be played");
    InstallSoundTools({});
}

TEST_F(RemindersTest, RowThatAsksForAFileIsTheLast) {
    Open();
    EXPECT_EQ(form.cboSound(kFajr).Items().back(), "Own file\u2026");
    ChooseOwn(kFajr, kOwn);
    EXPECT_EQ(form.cboSound(kFajr).Items().back(), "Own file\u2026");
}

TEST_F(RemindersTest, QuietHoursThatTheIconsMenuHasSwitchedMeanwhileStay) {
    Open();
    frmMain->mnuPopQuietHours.UserClick();
    form.cmdOK.UserClick();
    EXPECT_EQ(ReadOption(option::kQuietHours), 1);
    Open();
    frmMain->mnuPopQuietHours.UserClick();
    form.chkQuiet.UserClick();
    form.chkQuiet.UserClick();
    form.chkQuiet.UserClick();
    form.cmdOK.UserClick();
    EXPECT_EQ(ReadOption(option::kQuietHours), 0) << "the window's own word counts";
}

TEST_F(RemindersTest, StoredFileSoundWithoutAFileSelectsNothing) {
    SaveOption(option::kAthanSounds[kFajr], AthanSound::kFile);
    Open();
    EXPECT_EQ(form.cboSound(kFajr).ListIndex(), -1);
}

TEST_F(RemindersTest, DeviceThatIsGoneIsListedAsSuchAndKept) {
    SaveOption(option::kSoundDevice, "kitchen");
    Open();
    EXPECT_THAT(form.cboDevice.Items(),
                ElementsAre("Default device", "The hall", "The desk", "kitchen (not connected)"));
    EXPECT_EQ(form.cboDevice.ListIndex(), 3);
    form.hsAllVolume.UserSlide(90);
    OpenAgain();
    EXPECT_EQ(ReadAthanChoices().device, "kitchen");
    form.cboDevice.UserSelect(0);
    form.cmdOK.UserClick();
    EXPECT_EQ(ReadAthanChoices().device, "");
}

}  // namespace
}  // namespace horavex
