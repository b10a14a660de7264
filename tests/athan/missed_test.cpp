#include "athan/missed.h"

#include "athan/prayer_day.h"

namespace horavex {
namespace {

using testing::IsEmpty;

struct MissedTest : PrayerDay {
    /// The computer falls asleep and is back so much later.
    void SleepUntil(Date end) {
        Run(1);
        platform.clock.Set(end);
        platform.session.onResume();
    }

    Date Asr() { return Arrival(kAsr); }
};

TEST_F(MissedTest, PrayerOfASleepIsToldByOneQuietNoticeAndNeverSoundsLate) {
    SaveOption(option::kTellMissed, 1);
    const Date asr = Asr();
    platform.clock.Set(asr - Minutes(5));
    SleepUntil(asr + Minutes(30));
    Run(20);
    ASSERT_EQ(NoticeCount(), 1);
    EXPECT_EQ(platform.notices.shown.front().first, NoticeKind::kMissed);
    EXPECT_THAT(LastNotice().title, testing::StartsWith("Asr "));
    EXPECT_TRUE(LastNotice().quiet);
    EXPECT_EQ(Sounded("athan"), 0);
}

TEST_F(MissedTest, ResumeTicksAtOnce) {
    const Date asr = Asr();
    platform.clock.Set(asr - Minutes(5));
    SleepUntil(asr + Seconds(3));
    EXPECT_EQ(Sounded("athan"), 1) << "before the clock's own tick";
}

TEST_F(MissedTest, ClocksJumpCountsWithoutASignal) {
    SaveOption(option::kTellMissed, 1);
    const Date asr = Asr();
    RunFrom(asr - Minutes(5), 2);
    RunFrom(asr + Minutes(30), 2);
    EXPECT_EQ(NoticeCount(), 1);
}

TEST_F(MissedTest, PrayerOfMoreThanAnHourAgoIsNotTold) {
    SaveOption(option::kTellMissed, 1);
    const Date asr = Asr();
    platform.clock.Set(asr - Minutes(5));
    SleepUntil(asr + Minutes(61));
    EXPECT_THAT(platform.notices.shown, IsEmpty());
}

TEST_F(MissedTest, PrayerThatWasCalledBeforeTheSleepIsNotMissed) {
    SaveOption(option::kTellMissed, 1);
    const Date asr = Asr();
    RunFrom(asr, 4);
    PressStop();
    SleepUntil(asr + Minutes(30));
    EXPECT_THAT(platform.notices.shown, IsEmpty());
}

TEST_F(MissedTest, WithoutTheOptionNothingIsTold) {
    const Date asr = Asr();
    platform.clock.Set(asr - Minutes(5));
    SleepUntil(asr + Minutes(30));
    EXPECT_THAT(platform.notices.shown, IsEmpty());
}

TEST_F(MissedTest, SunriseIsNoPrayerAndAStartMissesNothing) {
    SaveOption(option::kTellMissed, 1);
    const Date sunrise = Arrival(kShurooq);
    platform.clock.Set(sunrise - Minutes(5));
    SleepUntil(sunrise + Minutes(30));
    EXPECT_THAT(platform.notices.shown, IsEmpty());
}

TEST_F(MissedTest, ClockThatIsSetBackMissesNothing) {
    SaveOption(option::kTellMissed, 1);
    const Date asr = Asr();
    RunFrom(asr + Minutes(30), 2);
    RunFrom(asr - Minutes(30), 2);
    EXPECT_THAT(platform.notices.shown, IsEmpty());
}

TEST_F(MissedTest, PrayerIsToldOnceThoughTheClockIsSetBackBeforeIt) {
    SaveOption(option::kTellMissed, 1);
    const Date asr = Asr();
    for (int sleep = 0; sleep < 2; ++sleep) {
        platform.clock.Set(asr - Minutes(5));
        SleepUntil(asr + Minutes(30));
    }
    EXPECT_EQ(NoticeCount(), 1);
}

TEST_F(MissedTest, AthanDoesNotGoOnBehindASleep) {
    SaveOption(option::kTellMissed, 1);
    AddSound(SoundPath("athan"), 300);
    const Date asr = Asr();
    RunFrom(asr, 20);
    ASSERT_TRUE(IsPlaying());
    SleepUntil(asr + Minutes(50));
    EXPECT_FALSE(IsPlaying());
    EXPECT_EQ(athanActive, kFalse);
    EXPECT_THAT(platform.notices.shown, IsEmpty()) << "it was heard";
}

TEST_F(MissedTest, AthanWhoseSoundASleepHasKeptIsMissed) {
    SaveOption(option::kTellMissed, 1);
    const Date asr = Asr();
    RunFrom(asr - Seconds(2), 1);
    platform.loop.After(2.0, [&] {
        platform.clock.Set(asr + Minutes(30));
        platform.session.onResume();
    });
    Run(6);
    EXPECT_EQ(Sounded("athan"), 0);
    ASSERT_EQ(NoticeCount(), 1);
    EXPECT_THAT(LastNotice().title, testing::StartsWith("Asr "));
}

}  // namespace
}  // namespace horavex
