#include "desktop/face/prayer_line.h"

#include "support/test_platform.h"

namespace horavex {
namespace {

const QStringList kHalves = {" AM", " PM"};

std::vector<PrayerEntry> Read(const QString& text, const QStringList& tails = kHalves) {
    return ReadPrayerLine(text, tails).value_or(std::vector<PrayerEntry>{});
}

TEST(ReadPrayerLine, NamesAndTimesAreToldApart) {
    EXPECT_EQ(Read(" Fajr:04:56 AM Shurooq:06:24 AM Zuhr:11:41 AM Asr:02:36 PM Maghrib:04:57 PM"
                   " Isha:06:20 PM"),
              (std::vector<PrayerEntry>{{"Fajr", "04:56 AM"},
                                        {"Shurooq", "06:24 AM"},
                                        {"Zuhr", "11:41 AM"},
                                        {"Asr", "02:36 PM"},
                                        {"Maghrib", "04:57 PM"},
                                        {"Isha", "06:20 PM"}}));
}

TEST(ReadPrayerLine, NamesMayHoldBlanksOrBeEmpty) {
    EXPECT_EQ(Read(" Early Dawn:04:56 AM Sun rise :06:24 AM :11:41 AM"),
              (std::vector<PrayerEntry>{
                  {"Early Dawn", "04:56 AM"}, {"Sun rise ", "06:24 AM"}, {"", "11:41 AM"}}));
}

TEST(ReadPrayerLine, TimesMayBeOfAnyLocale) {
    const std::vector<PrayerEntry> german{{"Fadschr", "04:56"}, {"Isch AM", "18:20"}};
    EXPECT_EQ(Read(" Fadschr:04:56 Isch AM:18:20", {"", ""}), german);
    const std::vector<PrayerEntry> finnish{{"a", "04.56"}, {"b", "18.20"}};
    EXPECT_EQ(Read(" a:04.56 b:18.20", {""}), finnish);
    const std::vector<PrayerEntry> korean{{"a", "오전 04:56"}, {"b", "오후 06:20"}};
    EXPECT_EQ(Read(" a:오전 04:56 b:오후 06:20", {""}), korean);
    const std::vector<PrayerEntry> canadian{{"a", "04 h 56"}, {"b", "18 h 20"}};
    EXPECT_EQ(Read(" a:04 h 56 b:18 h 20", {""}), canadian);
    const std::vector<PrayerEntry> arabic{{"الفجر", "٠٤:٥٦ ص"}, {"العشاء", "٠٦:٢٠ م"}};
    EXPECT_EQ(Read(" الفجر:٠٤:٥٦ ص العشاء:٠٦:٢٠ م", {" ص", " م"}), arabic);
}

TEST(ReadPrayerLine, OtherTextsAreNothing) {
    EXPECT_EQ(ReadPrayerLine("Fajr:04:56 AM", kHalves), std::nullopt);
    EXPECT_EQ(ReadPrayerLine(" Fajr", kHalves), std::nullopt);
    EXPECT_EQ(ReadPrayerLine(" Fajr:", kHalves), std::nullopt);
    EXPECT_EQ(ReadPrayerLine(" Fajr:4", kHalves), std::nullopt);
    EXPECT_EQ(ReadPrayerLine(" Fajr:04:56 AMand more", kHalves), std::nullopt);
}

TEST(TailsOfTimes, AreThoseOfTheUsersLocale) {
    const TestPlatform platform;
    EXPECT_EQ(TailsOfTimes(), kHalves);
}

class RowNamedInTest : public testing::Test {
protected:
    std::vector<PrayerEntry> rows = Read(
        " Fajr:04:56 AM Shurooq:06:24 AM Zuhr:11:41 AM Asr:02:36 PM Maghrib:04:56 PM Isha:06:20 "
        "PM");
};

TEST_F(RowNamedInTest, NameInTheSentenceNamesTheRow) {
    EXPECT_EQ(RowNamedIn("Next Athan: Asr at 2:36:00 PM", rows), 3U);
    EXPECT_EQ(RowNamedIn("Next Athan: Fajr 4:57:12 AM", rows), 0U);
}

TEST_F(RowNamedInTest, WithoutANameTheTimeDoes) {
    EXPECT_EQ(RowNamedIn("Next: Thuhr 11:41:29 AM", rows), 2U);
    EXPECT_EQ(RowNamedIn("Next: sunset 4:56:00 PM", rows), 4U);
}

TEST_F(RowNamedInTest, NeitherOrSeveralNameNone) {
    EXPECT_EQ(RowNamedIn("Next: noon", rows), std::nullopt);
    EXPECT_EQ(RowNamedIn("", rows), std::nullopt);
    EXPECT_EQ(RowNamedIn("Next: 11:42:00 AM", rows), std::nullopt);
    EXPECT_EQ(RowNamedIn("after Asr comes Isha", rows), std::nullopt);
}

}  // namespace
}  // namespace horavex
