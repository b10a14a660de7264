#include "engine/next_prayer.h"

#include "engine/sample_year.h"
#include "lang/language_pack.h"

namespace horavex {
namespace {

struct NextPrayerTest : EngineTest {
    NextPrayerTest() {
        currentLanguage = "English";
        platform.files.WriteWhole(
            "/program/lang/English.ini",
            BytesOf("[other]\nFajr=Fajr tomorrow\nZuhr=Zuhr at\nAsr=Asr at\nMaghrib=Maghrib at\n"
                    "Isha=Isha at\n"));
    }
};

/// hours: of the moment.
std::string Sentence(Prayer prayer, double hours, bool isTomorrows = false) {
    return NextPrayerSentence({static_cast<std::int16_t>(prayer), isTomorrows, {hours}, 0.0});
}

TEST_F(NextPrayerTest, FajrOfTodayHasAFixedText) {
    EXPECT_EQ(Sentence(kFajr, 5.0), "Fajr at 5:00:00 AM");
}

TEST_F(NextPrayerTest, FajrOfTomorrowIsNamedByThePack) {
    EXPECT_EQ(Sentence(kFajr, 5.01, true), "Fajr tomorrow 5:00:36 AM");
}

TEST_F(NextPrayerTest, OthersAreNamedByThePack) {
    EXPECT_EQ(Sentence(kZuhr, 12.0), "Zuhr at 12:00:00 PM");
    EXPECT_EQ(Sentence(kAsr, 15.25), "Asr at 3:15:00 PM");
    EXPECT_EQ(Sentence(kMaghrib, 18.0), "Maghrib at 6:00:00 PM");
    EXPECT_EQ(Sentence(kIsha, 19.5), "Isha at 7:30:00 PM");
}

TEST_F(NextPrayerTest, ShurooqWouldBeToldAsZuhr) {
    EXPECT_EQ(Sentence(kShurooq, 12.0), "Zuhr at 12:00:00 PM");
}

TEST_F(NextPrayerTest, DayIsToldWhereItIsNotToday) {
    const Moment isha = {24.25, MomentBy::kRule, 1};
    EXPECT_EQ(NextPrayerSentence({kIsha, false, isha, 0.0}),
              "Isha at 12:15:00 AM, next day \u2020");
}

TEST_F(NextPrayerTest, WithoutAPackTheNameIsEmpty) {
    currentLanguage = "Nowhere";
    EXPECT_EQ(Sentence(kAsr, 15.25), " 3:15:00 PM");
}

TEST(RemainingText, HasNoLeadingZerosAndNoDays) {
    EXPECT_EQ(RemainingText(0), "0:0:0");
    EXPECT_EQ(RemainingText(5 * 3600 + 12), "5:0:12");
    EXPECT_EQ(RemainingText(86400 + 61), "0:1:1");
    EXPECT_EQ(RemainingText(86399), "23:59:59");
}

}  // namespace
}  // namespace horavex
