#include "store/text_table.h"

#include <algorithm>

#include "base/code_page.h"
#include "base/text.h"
#include "base/utf8.h"
#include "data/built_data.h"
#include "engine/angle.h"
#include "engine/limit_message.h"
#include "engine/place.h"
#include "geo/qibla.h"
#include "store/location_text.h"
#include "store/settings_record.h"

namespace horavex {
namespace {

constexpr std::int16_t kColumns = 6;
constexpr TextEntry kSingleWords[] = {
    TextEntry::kNorth,     TextEntry::kEast,    TextEntry::kSouth, TextEntry::kWest,
    TextEntry::kDegrees,   TextEntry::kMinutes, TextEntry::kOf,    TextEntry::kLatitude,
    TextEntry::kLongitude, TextEntry::kQibla};

using TextTable = BuiltData;

std::string Place(std::int16_t column, TextEntry entry) {
    return "column " + std::to_string(column) + ", entry " +
           std::to_string(static_cast<std::uint16_t>(entry));
}

std::vector<TextEntry> AllEntries() {
    std::vector<TextEntry> entries;
    for (std::uint16_t entry = 1; entry <= kTextEntries; ++entry) {
        entries.push_back(TextEntry{entry});
    }
    return entries;
}

template <typename Check>
void ForEachText(Check check) {
    for (std::int16_t column = 1; column <= kColumns; ++column) {
        for (const TextEntry entry : AllEntries()) {
            SCOPED_TRACE(Place(column, entry));
            check(TextItem(entry, column), column, entry);
        }
    }
}

bool IsArabicLetter(char32_t c) {
    return c >= 0x621 && c <= 0x64A;
}

TEST_F(TextTable, HasNothingBehindItsLastEntry) {
    EXPECT_EQ(folder.ReadWhole("Dat\\TI.DAT").size(), std::size_t{kTextEntries} * kColumns * 2);
    EXPECT_EQ(TextItem(TextEntry{kTextEntries + 1}, 1), "");
}

TEST_F(TextTable, EveryEntryHasATextInEveryColumn) {
    ForEachText([](const std::string& text, std::int16_t, TextEntry) {
        EXPECT_NE(text, "");
        EXPECT_EQ(Trim(text), text);
        EXPECT_TRUE(IsUtf8(text));
        EXPECT_TRUE(
            std::none_of(text.begin(), text.end(), [](char c) { return c >= 0 && c < ' '; }));
    });
}

TEST_F(TextTable, ArabicColumnIsInArabicLetters) {
    for (const TextEntry entry : AllEntries()) {
        const auto codePoints = DecodeUtf8(TextItem(entry, kArabicColumn)).value();
        const bool arabic = std::any_of(codePoints.begin(), codePoints.end(), IsArabicLetter);
        // The name of the zone of Greenwich is written with its Latin letters everywhere.
        EXPECT_EQ(arabic, entry != TextEntry::kGmt) << Place(kArabicColumn, entry);
    }
}

TEST_F(TextTable, OtherColumnsHoldNoArabicLetter) {
    ForEachText([](const std::string& text, std::int16_t column, TextEntry) {
        const auto codePoints = DecodeUtf8(text).value();
        EXPECT_TRUE(column == kArabicColumn ||
                    std::none_of(codePoints.begin(), codePoints.end(), IsArabicLetter));
    });
}

TEST_F(TextTable, SixthColumnIsEnglish) {
    for (const TextEntry entry : AllEntries()) {
        EXPECT_EQ(TextItem(entry, 6), TextItem(entry, 1)) << Place(6, entry);
    }
}

TEST_F(TextTable, EnglishDirectionsAndUnitsAreTheOnesThatAreReadBack) {
    EXPECT_EQ(TextItem(TextEntry::kNorth, 1), "North");
    EXPECT_EQ(TextItem(TextEntry::kEast, 1), "East");
    EXPECT_EQ(TextItem(TextEntry::kSouth, 1), "South");
    EXPECT_EQ(TextItem(TextEntry::kWest, 1), "West");
    EXPECT_EQ(TextItem(TextEntry::kDegrees, 1), "degrees");
    EXPECT_EQ(TextItem(TextEntry::kMinutes, 1), "minutes");
}

// Sentences made of them are split at blanks again.
TEST_F(TextTable, PiecesOfCoordinatesAndBearingsAreSingleWords) {
    for (const TextEntry entry : kSingleWords) {
        for (std::int16_t column = 1; column <= kColumns; ++column) {
            EXPECT_EQ(TextItem(entry, column).find_first_of(" \t\xA0"), std::string::npos)
                << Place(column, entry);
        }
    }
}

TEST_F(TextTable, FrenchMarksStandBehindNoBreakSpacesAndApostrophesAreCurved) {
    constexpr std::int16_t kFrenchColumn = 2;
    for (const TextEntry entry : AllEntries()) {
        for (const char* plain : {" :", " ;", " !", " ?", "'"}) {
            EXPECT_THAT(TextItem(entry, kFrenchColumn), testing::Not(testing::HasSubstr(plain)));
        }
    }
}

TEST_F(TextTable, PrayerNamesHoldNoColon) {
    for (std::size_t prayer = 0; prayer < 6; ++prayer) {
        for (std::int16_t column = 1; column <= kColumns; ++column) {
            EXPECT_EQ(TextItem(PrayerNameEntry(prayer), column).find(':'), std::string::npos)
                << Place(column, PrayerNameEntry(prayer));
        }
    }
}

TEST_F(TextTable, ZoneHintOpensOneParenthesis) {
    for (std::int16_t column = 1; column <= kColumns; ++column) {
        EXPECT_EQ(TextItem(TextEntry::kTimeZone, column).find('('), std::string::npos) << column;
    }
}

TEST_F(TextTable, MessagesOfAFailedYearAreSentences) {
    ActiveSettings.Language = 1;
    for (const char message : {'A', 'B', 'C'}) {
        ShowLimitMessage(message);
    }
    const std::string opening =
        "The prayer times of this year cannot be calculated with the present settings.\r\n\r\n"
        "Please check the Time Zone\r\n";
    ASSERT_EQ(dialogs.messages.size(), 3U);
    EXPECT_EQ(dialogs.messages[0].text, opening + "or reduce the depression angle of Fajr");
    EXPECT_EQ(dialogs.messages[1].text, opening + "or increase the depression angle of Fajr");
    EXPECT_EQ(dialogs.messages[2].text, opening + "Please check the daylight saving days");
}

TEST_F(TextTable, CoordinatesAreSentences) {
    EXPECT_EQ(FormatLatitude(-6.21, 1), "Latitude: 6 degrees, 13 minutes South");
    EXPECT_EQ(FormatLongitude(31.25, 1), "Longitude: 31 degrees, 15 minutes East");
}

TEST_F(TextTable, BearingIsASentence) {
    LatitudeRad = DegToRad(30.05);
    LongitudeWestRad = DegToRad(-31.25);
    Settings.QiblaMethod = 1;
    ActiveSettings.Language = 1;
    ComputeQibla();
    EXPECT_EQ(QiblaText, "Qibla: 136 degrees, 13 minutes East of North");
}

TEST_F(TextTable, DirectionsStandWhereTheWordsAreCounted) {
    LatitudeRad = DegToRad(30.05);
    LongitudeWestRad = DegToRad(-31.25);
    Settings.QiblaMethod = 1;
    for (std::int16_t column = 1; column <= kColumns; ++column) {
        ActiveSettings.Language = column;
        ComputeQibla();
        EXPECT_EQ(Split(FormatLatitude(30.05, column), ' ').at(5),
                  TextItem(TextEntry::kNorth, column));
        EXPECT_EQ(Split(FormatLongitude(-30.05, column), ' ').at(5),
                  TextItem(TextEntry::kWest, column));
        EXPECT_EQ(Split(QiblaText, ' ').at(5), TextItem(TextEntry::kEast, column));
        EXPECT_EQ(Split(QiblaText, ' ').at(7), TextItem(TextEntry::kNorth, column));
    }
}

TEST_F(TextTable, RemainingCompositionsAreSentences) {
    const auto text = [](TextEntry entry) { return TextItem(entry, 1); };
    EXPECT_EQ(text(TextEntry::kCalculatingYear) + " 2026", "Calculating the prayer times of 2026");
    EXPECT_EQ(text(TextEntry::kPleaseCheck) + " " + text(TextEntry::kTimeZone) + ". " +
                  text(TextEntry::kNearestZone) + " 3",
              "Please check the Time Zone. The nearest zone of this place is 3");
    EXPECT_EQ(text(TextEntry::kNote) + " : " + text(TextEntry::kStartOf) + " " +
                  text(TextEntry::kOfDaylightSaving) + ".",
              "Note : Start of daylight saving.");
    EXPECT_EQ(text(TextEntry::kFirst) + " " + text(TextEntry::kMethod), "first method");
    EXPECT_EQ("06:30 AM : " + text(TextEntry::kAlarmIsDue),
              "06:30 AM : It is time for your alarm.");
}

}  // namespace
}  // namespace horavex
