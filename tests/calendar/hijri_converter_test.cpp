#include "calendar/hijri_converter.h"

#include "base/text.h"
#include "calendar/date_entry.h"
#include "engine/angle.h"
#include "lang/language_pack.h"
#include "support/data_folder.h"
#include "support/program_copy.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

struct HijriConverterTest : testing::Test {
    HijriConverterTest() { CopyBuiltProgramFolder(platform.files); }

    TestPlatform platform;
    DataFolder data{platform.files};
};

TEST_F(HijriConverterTest, EveryDayOfTwoCenturiesComesBack) {
    const HijriConverter converter;
    HijriDate former = converter.ToHijri(DateSerial(1900, 1, 1) - 1.0);
    for (Date date = DateSerial(1900, 1, 1); date < DateSerial(2101, 1, 1); date += 1.0) {
        const HijriDate hijri = converter.ToHijri(date);
        ASSERT_EQ(converter.ToGregorian(hijri), date);
        // The next day, or the first of the next month.
        const bool sameMonth = hijri.month == former.month;
        ASSERT_EQ(hijri.day, sameMonth ? former.day + 1 : 1) << date;
        ASSERT_TRUE(sameMonth || hijri.month == former.month % 12 + 1) << date;
        ASSERT_EQ(hijri.year, former.year + (!sameMonth && hijri.month == 1 ? 1 : 0)) << date;
        former = hijri;
    }
}

TEST_F(HijriConverterTest, StoredAdjustmentCountsBothWays) {
    const HijriDate plain = HijriConverter().ToHijri(DateSerial(2026, 11, 21));
    SaveOption(option::kHijriAdjustment, -2);
    const HijriConverter adjusted;
    EXPECT_EQ(adjusted.ToHijri(DateSerial(2026, 11, 23)), plain);
    EXPECT_EQ(adjusted.ToGregorian(plain), DateSerial(2026, 11, 23));
}

TEST_F(HijriConverterTest, OutsideTheTableItIsArithmetic) {
    const HijriConverter converter;
    EXPECT_EQ(converter.ToHijri(DateSerial(1900, 1, 1)), HijriFromDate(DateSerial(1900, 1, 1)));
    EXPECT_EQ(converter.ToGregorian({1501, 6, 1}), DateFromHijri({1501, 6, 1}));
}

TEST_F(HijriConverterTest, InsideTheTableItIsAsPublished) {
    EXPECT_EQ(HijriConverter().ToHijri(DateSerial(2026, 11, 21)), (HijriDate{1448, 6, 11}));
    EXPECT_NE(HijriFromDate(DateSerial(2026, 11, 21)), (HijriDate{1448, 6, 11}));
}

TEST_F(HijriConverterTest, HijriTextIsWeekdayDayMonthYearAndEra) {
    EXPECT_EQ(HijriConverter().CalculateHijri(2026, 11, 21), "Saturday 11 Jamad Thani 1448 AH");
}

TEST_F(HijriConverterTest, HijriTextSpeaksThePacksLanguage) {
    currentLanguage = "Arabic";
    const auto words = Split(HijriConverter().CalculateHijri(2026, 11, 21), ' ');
    EXPECT_THAT(words, testing::ElementsAre("Saturday", "11", "جمادى", "الآخرة", "1448", "هـ"));
}

TEST_F(HijriConverterTest, EraOfSeveralWordsStaysOneWord) {
    currentLanguage = "English";
    data.Write("lang/English.ini", "[other]\nAH=of the Hijra\n");
    EXPECT_EQ(Split(HijriConverter().CalculateHijri(2026, 11, 21), ' ').back(),
              "of\u00A0the\u00A0Hijra");
}

TEST_F(HijriConverterTest, GregorianTextIsTheLongDate) {
    EXPECT_EQ(HijriConverter().CalculateGregorian(1448, 6, 11), "Saturday, November 21, 2026");
}

TEST_F(HijriConverterTest, DayBeyondItsMonthCarriesOn) {
    EXPECT_EQ(HijriConverter().CalculateHijri(2026, 2, 31),
              HijriConverter().CalculateHijri(2026, 3, 3));
}

TEST_F(HijriConverterTest, EntryConvertsInItsDirection) {
    EXPECT_EQ(ConvertDateEntry(Conversion::kToHijri, 2026, 11, 21),
              "Saturday 11 Jamad Thani 1448 AH");
    EXPECT_EQ(ConvertDateEntry(Conversion::kToGregorian, 1448, 6, 11),
              "Saturday, November 21, 2026");
    EXPECT_THAT(platform.dialogs.messages, testing::IsEmpty());
}

TEST_F(HijriConverterTest, EntryHasItsBounds) {
    EXPECT_TRUE(IsDateEntry(1, 1, 1));
    EXPECT_TRUE(IsDateEntry(9999, 12, 31));
    EXPECT_FALSE(IsDateEntry(0, 1, 1));
    EXPECT_FALSE(IsDateEntry(1, 0, 1));
    EXPECT_FALSE(IsDateEntry(1, 13, 1));
    EXPECT_FALSE(IsDateEntry(1, 1, 0));
    EXPECT_FALSE(IsDateEntry(1, 1, 32));
}

TEST_F(HijriConverterTest, RefusedEntryIsOneMessageOfFourLines) {
    EXPECT_EQ(ConvertDateEntry(Conversion::kToHijri, 2026, 13, 1), std::nullopt);
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    const auto& message = platform.dialogs.messages[0];
    EXPECT_EQ(message.text, "Please check Day, Month, and Year for valid entry." + Crlf +
                                "Valid entry for Day 1-31." + Crlf + "Valid entry for Month 1-12." +
                                Crlf + "Valid entry for Year >= 1.");
    EXPECT_EQ(message.title, "");
    EXPECT_EQ(message.icon, MessageIcon::kCritical);
}

TEST_F(HijriConverterTest, LineOfTheDayIsNotTranslated) {
    currentLanguage = "German";
    ConvertDateEntry(Conversion::kToGregorian, 1448, 1, 32);
    const auto lines = Split(platform.dialogs.messages.at(0).text, '\n');
    EXPECT_NE(lines[0], "Please check Day, Month, and Year for valid entry.\r");
    EXPECT_EQ(lines[1], "Valid entry for Day 1-31.\r");
}

}  // namespace
}  // namespace horavex
