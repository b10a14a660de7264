#include "athan/quiet.h"

#include "athan/prayer_day.h"
#include "base/stamp.h"
#include "shell/tray_icon.h"

namespace horavex {
namespace {

using testing::HasSubstr;
using testing::Not;

struct QuietTest : PrayerDay {
    static void SetHours(int from, int to) {
        AthanChoices choices;
        choices.quietHours = {.on = true, .from = from * 60, .to = to * 60};
        SaveAthanChoices(choices);
    }

    bool IsQuietAt(int hour, int minute, int second = 0) {
        SetClock(2026, 11, 21, hour, minute, second);
        return IsQuiet();
    }
};

TEST_F(QuietTest, WithNoOptionItIsNever) {
    EXPECT_FALSE(IsQuiet());
    EXPECT_EQ(QuietText(), "");
    PassSecond();
    EXPECT_FALSE(platform.tray.isQuiet);
}

TEST_F(QuietTest, HoursOfTheDayBeginAndEndAtTheirMinute) {
    SetHours(13, 14);
    EXPECT_FALSE(IsQuietAt(12, 59, 59));
    EXPECT_TRUE(IsQuietAt(13, 0));
    EXPECT_TRUE(IsQuietAt(13, 59, 59));
    EXPECT_FALSE(IsQuietAt(14, 0));
}

TEST_F(QuietTest, HoursMayGoOverMidnight) {
    SetHours(22, 6);
    EXPECT_TRUE(IsQuietAt(23, 0));
    EXPECT_TRUE(IsQuietAt(3, 0));
    EXPECT_FALSE(IsQuietAt(12, 0));
    SetHours(5, 5);
    EXPECT_FALSE(IsQuietAt(5, 0)) << "no hours at all";
}

TEST_F(QuietTest, UntilTheNextPrayerItIsQuietAndThePrayerIsHeard) {
    const Date asr = Arrival(kAsr);
    SaveOption(option::kReminders[kAsr], 10);
    SaveOption(option::kReminderSignal, Signal::kTone);
    RunFrom(asr - Minutes(30), 1);
    frmMain->mnuPopQuietNext.UserClick();
    EXPECT_TRUE(platform.tray.isQuiet);
    EXPECT_TRUE(frmMain->mnuPopQuietNext.Checked());
    EXPECT_THAT(TrayTip(), HasSubstr("\nQuiet until "));
    RunFrom(asr - Minutes(10), 3);
    EXPECT_EQ(Sounded("tone"), 0);
    EXPECT_EQ(NoticeCount(), 1) << "the reminder comes as a notification";
    RunThrough(kAsr);
    EXPECT_EQ(Sounded("athan"), 1);
    EXPECT_FALSE(platform.tray.isQuiet);
    EXPECT_FALSE(frmMain->mnuPopQuietNext.Checked());
    EXPECT_THAT(TrayTip(), Not(HasSubstr("Quiet")));
}

TEST_F(QuietTest, TodayPrayersComeAsSilentNoticesAndTomorrowsAreHeard) {
    RunFrom(Arrival(kZuhr) + Minutes(5), 1);
    frmMain->mnuPopQuietToday.UserClick();
    for (const Prayer prayer : {kAsr, kMaghrib, kIsha}) {
        RunThrough(prayer);
    }
    EXPECT_EQ(NoticeCount(), 3);
    EXPECT_TRUE(LastNotice().quiet);
    EXPECT_EQ(Sounded("athan"), 0);
    RunFrom(ShownDay.date + 1.0, 2);
    RunThrough(kFajr);
    EXPECT_EQ(Sounded("fagr_athan"), 1);
}

TEST_F(QuietTest, ChoosingItAgainTakesItBack) {
    RunFrom(Arrival(kZuhr) + Minutes(5), 1);
    frmMain->mnuPopQuietToday.UserClick();
    EXPECT_TRUE(IsQuiet());
    EXPECT_TRUE(frmMain->mnuPopQuietToday.Checked());
    frmMain->mnuPopQuietToday.UserClick();
    EXPECT_FALSE(IsQuiet());
    EXPECT_FALSE(frmMain->mnuPopQuietToday.Checked());
    EXPECT_EQ(ReadOption(option::kQuietUntil), "");
}

TEST_F(QuietTest, ChoosingItSilencesWhatSounds) {
    RunFrom(Arrival(kAsr), 4);
    ASSERT_TRUE(IsPlaying());
    frmMain->mnuPopQuietNext.UserClick();
    EXPECT_FALSE(IsPlaying());
    EXPECT_EQ(athanActive, kFalse);
    Run(9);
    EXPECT_EQ(Sounded("athan"), 1) << "its ten seconds are not over, but it is quiet";
}

TEST_F(QuietTest, ChoosingItSilencesATone) {
    AddSound(SoundPath("tone"), 10);
    SaveOption(option::kReminders[kAsr], 10);
    SaveOption(option::kReminderSignal, Signal::kTone);
    RunFrom(Arrival(kAsr) - Minutes(10), 3);
    ASSERT_TRUE(IsPlaying());
    frmMain->mnuPopQuietNext.UserClick();
    EXPECT_FALSE(IsPlaying());
}

TEST_F(QuietTest, HoursAreSwitchedFromTheMenu) {
    frmMain->mnuPopQuietHours.UserClick();
    EXPECT_TRUE(frmMain->mnuPopQuietHours.Checked());
    EXPECT_TRUE(IsQuietAt(23, 0));
    frmMain->mnuPopQuietHours.UserClick();
    EXPECT_FALSE(frmMain->mnuPopQuietHours.Checked());
    EXPECT_FALSE(IsQuietAt(23, 0));
}

TEST_F(QuietTest, StoredTextThatIsNoMomentCountsAsNone) {
    SaveOption(option::kQuietUntil, "tomorrow");
    EXPECT_FALSE(IsQuiet());
}

TEST_F(QuietTest, LaterOfTwoEndsCounts) {
    SetHours(10, 20);
    SetClock(2026, 11, 21, 12, 0, 0);
    SaveOption(option::kQuietUntil, "2026-11-21 15:00:00");
    EXPECT_EQ(StampOf(*QuietEnd(platform.clock.Now())), "2026-11-21 20:00:00");
    SaveOption(option::kQuietUntil, "2026-11-21 23:00:00");
    EXPECT_EQ(StampOf(*QuietEnd(platform.clock.Now())), "2026-11-21 23:00:00");
}

TEST_F(QuietTest, SwitchingTheHoursOnInsideThemSilencesWhatSounds) {
    AthanChoices choices;
    choices.quietHours = {.on = false, .from = 0, .to = 1439};
    SaveAthanChoices(choices);
    RunFrom(Arrival(kAsr), 4);
    ASSERT_TRUE(IsPlaying());
    frmMain->mnuPopQuietHours.UserClick();
    EXPECT_FALSE(IsPlaying());
}

TEST_F(QuietTest, TodayHoldsTodaysIshaBehindMidnightToo) {
    RunFrom(Arrival(kMaghrib) + Minutes(5), 1);
    ShownDay.moments[kIsha] = {24.3, MomentBy::kRule, 1, 0.0};
    ChooseQuietToday();
    EXPECT_EQ(ReadOption(option::kQuietUntil),
              StampOf(ShownDay.date + 1.0 + (0.3 * 3600.0 + 10.0) / kSecondsPerDay));
}

}  // namespace
}  // namespace horavex
