#include "athan/signals.h"

#include "athan/prayer_day.h"

namespace horavex {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

struct SignalsTest : PrayerDay {
    std::string Line() {
        std::string line;
        platform.face.onShowDay = [&](const DayView& day) { line = day.iqama; };
        PassSecond();
        return line;
    }
};

TEST_F(SignalsTest, ReminderComesItsMinutesBeforeThePrayerAndOnce) {
    SaveOption(option::kReminders[kAsr], 15);
    RunFrom(Arrival(kAsr) - Minutes(15) - Seconds(3), 2);
    EXPECT_THAT(platform.notices.shown, IsEmpty());
    Run(20);
    ASSERT_EQ(NoticeCount(), 1);
    EXPECT_THAT(LastNotice().title, StartsWith("Asr "));
    EXPECT_EQ(LastNotice().text, "in 15 min");
    EXPECT_TRUE(LastNotice().quiet);
    EXPECT_EQ(Sounded("tone"), 0);
}

TEST_F(SignalsTest, SunriseHasAReminderAndNoIqama) {
    SaveOption(option::kReminders[kShurooq], 5);
    SaveOption(option::kIqamas[kShurooq], 5);
    RunFrom(Arrival(kShurooq) - Minutes(5), 3);
    EXPECT_EQ(NoticeCount(), 1);
    RunFrom(Arrival(kShurooq) + Minutes(5), 3);
    EXPECT_EQ(NoticeCount(), 1);
}

TEST_F(SignalsTest, IqamaComesItsMinutesAfterThePrayer) {
    SaveOption(option::kIqamas[kAsr], 20);
    RunFrom(Arrival(kAsr) + Minutes(20) - Seconds(2), 12);
    ASSERT_EQ(NoticeCount(), 1);
    EXPECT_EQ(LastNotice().title, "Iqama of Asr");
}

TEST_F(SignalsTest, OtherProgramsHearOfBoth) {
    SaveOption(option::kReminders[kAsr], 15);
    RunFrom(Arrival(kAsr) - Minutes(15), 3);
    EXPECT_THAT(platform.broadcast.signals, Contains("ReminderDue reminder Asr 15"));
    SaveOption(option::kIqamas[kAsr], 20);
    RunFrom(Arrival(kAsr) + Minutes(20), 3);
    EXPECT_THAT(platform.broadcast.signals, Contains("ReminderDue iqama Asr 20"));
}

TEST_F(SignalsTest, ToneSoundsAloneOrWithTheNotice) {
    SaveOption(option::kReminders[kAsr], 15);
    SaveOption(option::kReminderSignal, Signal::kTone);
    RunFrom(Arrival(kAsr) - Minutes(15), 5);
    EXPECT_EQ(Sounded("tone"), 1);
    EXPECT_THAT(platform.notices.shown, IsEmpty());
    SaveOption(option::kIqamas[kAsr], 15);
    SaveOption(option::kIqamaSignal, Signal::kBoth);
    RunFrom(Arrival(kAsr) + Minutes(15), 5);
    EXPECT_EQ(Sounded("tone"), 2);
    EXPECT_EQ(NoticeCount(), 1);
}

TEST_F(SignalsTest, NothingAtAllCanBeChosen) {
    SaveOption(option::kReminders[kAsr], 15);
    SaveOption(option::kReminderSignal, Signal::kNone);
    RunFrom(Arrival(kAsr) - Minutes(15), 5);
    EXPECT_EQ(Sounded("tone"), 0);
    EXPECT_THAT(platform.notices.shown, IsEmpty());
}

TEST_F(SignalsTest, ToneNeverCutsIntoAnAthanAndTheNoticeStandsInForIt) {
    SaveOption(option::kIqamas[kAsr], 1);
    SaveOption(option::kIqamaSignal, Signal::kTone);
    AddSound(SoundPath("athan"), 300);
    RunFrom(Arrival(kAsr), 75);
    EXPECT_EQ(Sounded("tone"), 0);
    EXPECT_TRUE(IsPlaying());
    EXPECT_EQ(NoticeCount(), 1);
}

TEST_F(SignalsTest, EndOfTheToneTouchesNoAthan) {
    SaveOption(option::kIqamas[kAsr], 5);
    SaveOption(option::kIqamaSignal, Signal::kTone);
    SetAthanType(1);
    RunFrom(Arrival(kAsr), 330);
    EXPECT_EQ(athanActive, kTrue) << "the muted window waits for its user";
}

TEST_F(SignalsTest, ReminderBeforeMidnightIsThatOfTheNextDaysFajr) {
    ActiveSettings.FajrAngle = 18.0;
    platform.clock.Set(ShownDay.date + 1.0);
    PassSecond();
    const Date fajr = Arrival(kFajr);
    const int minutes = 60;
    SaveOption(option::kReminders[kFajr], minutes);
    RunFrom(fajr - Minutes(minutes), 3);
    EXPECT_EQ(NoticeCount(), 1);
}

TEST_F(SignalsTest, FaceCountsDownToTheIqamaWhileItIsAhead) {
    SaveOption(option::kIqamas[kAsr], 20);
    platform.clock.Set(Arrival(kAsr) - Seconds(1));
    EXPECT_EQ(Line(), "");
    platform.clock.Set(Arrival(kAsr) + Minutes(10));
    EXPECT_THAT(Line(), HasSubstr("Iqama of Asr in 10:00"));
    platform.clock.Set(Arrival(kAsr) + Minutes(20) + Seconds(1));
    EXPECT_EQ(Line(), "");
}

TEST_F(SignalsTest, WithNoOptionNothingIsToldAndTheFaceHasNoLine) {
    for (const Prayer prayer : {kFajr, kShurooq, kZuhr, kAsr, kMaghrib, kIsha}) {
        RunFrom(Arrival(prayer) - Minutes(1), 130);
        PressStop();
    }
    EXPECT_THAT(platform.notices.shown, IsEmpty());
    EXPECT_EQ(Sounded("tone"), 0);
    EXPECT_EQ(Line(), "");
}

TEST_F(SignalsTest, ToneThatCannotBeHeardIsANoticeAndTheNextOneIsTriedAgain) {
    SaveOption(option::kReminders[kAsr], 15);
    SaveOption(option::kReminderSignal, Signal::kTone);
    SaveOption(option::kIqamas[kAsr], 15);
    SaveOption(option::kIqamaSignal, Signal::kTone);
    platform.audioPlayer.hasDevice = false;
    RunFrom(Arrival(kAsr) - Minutes(15), 3);
    EXPECT_EQ(NoticeCount(), 1);
    EXPECT_FALSE(IsPlaying());
    platform.audioPlayer.hasDevice = true;
    RunFrom(Arrival(kAsr) + Minutes(15), 3);
    EXPECT_EQ(Sounded("tone"), 2);
    EXPECT_EQ(NoticeCount(), 1);
}

TEST_F(SignalsTest, DesktopWithoutNotificationsGetsTheTone) {
    platform.notices.hasService = false;
    SaveOption(option::kReminders[kAsr], 15);
    RunFrom(Arrival(kAsr) - Minutes(15), 3);
    EXPECT_EQ(Sounded("tone"), 1);
}

TEST_F(SignalsTest, LastDayOfACommonYearHasNoReminderOfADayThatTheTableLacks) {
    for (const WholeOption& reminder : option::kReminders) {
        SaveOption(reminder, 15);
    }
    RunFrom(DateSerial(2026, 12, 31) + TimeSerial(23, 0, 0), 3);
    platform.notices.shown.clear();
    RunFrom(DateSerial(2026, 12, 31) + TimeSerial(23, 44, 58), 15);
    EXPECT_THAT(platform.notices.shown, IsEmpty());
}

}  // namespace
}  // namespace horavex
