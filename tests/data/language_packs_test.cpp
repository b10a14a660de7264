#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "base/utf8.h"
#include "config/methods.h"
#include "data/built_data.h"
#include "lang/language_pack.h"
#include "lang/pack_check.h"
#include "lang/pack_keys.h"
#include "store/text_table.h"
#include "support/shipped_languages.h"

namespace horavex {
namespace {

using LanguagePacks = BuiltData;

bool HasArabicLetter(const std::string& text) {
    const auto codePoints = DecodeUtf8(text).value();
    return std::any_of(codePoints.begin(), codePoints.end(),
                       [](char32_t c) { return c >= 0x621 && c <= 0x64A; });
}

std::string English(const char* section, const char* key) {
    currentLanguage = "English";
    return GetLangString(section, key, "");
}

TEST_F(LanguagePacks, AreAllInTheFolder) {
    std::vector<std::string> packs;
    for (const std::string& language : kShippedLanguages) {
        packs.push_back(language + ".ini");
    }
    EXPECT_THAT(folder.List("lang"), testing::UnorderedElementsAreArray(packs));
}

TEST_F(LanguagePacks, EveryKeyThatIsReadHasAText) {
    for (const std::string& language : kShippedLanguages) {
        currentLanguage = language;
        for (const PackSection& section : PackVocabularies()) {
            for (const std::string& key : section.keys) {
                EXPECT_NE(GetLangString(section.name, key, ""), "")
                    << language << " [" << section.name << "] " << key;
            }
        }
    }
}

TEST_F(LanguagePacks, NoKeyIsReadByNothing) {
    CheckReport report;
    CheckLanguagePacks(report);
    EXPECT_THAT(report.problems, testing::IsEmpty());
    EXPECT_GT(report.passed, 100);
}

TEST_F(LanguagePacks, ArabicTextsOfNoFormAreInArabicLetters) {
    const std::set<std::string> withoutWords = {
        "Code",         "Direction",    "PrayerAt",     "Percent",     "MonthTitle", "DayTitle",
        "Colon",        "Comma",        "Digits",       "DecimalMark", "Clock",      "DayMonth",
        "DayMonthYear", "ClassInWords", "FirstOfMonth", "HijriDate",   "Thousand",   "Million"};
    currentLanguage = "Arabic";
    for (const PackSection& section : PackVocabularies()) {
        for (const std::string& key : section.keys) {
            const bool hasNoWord = withoutWords.contains(key);
            EXPECT_NE(HasArabicLetter(GetLangString(section.name, key, "")), hasNoWord)
                << "[" << section.name << "] " << key;
        }
    }
}

TEST_F(LanguagePacks, EnglishPrayersOpenASentenceThatATimeEnds) {
    EXPECT_EQ(English("other", "Fajr"), "Fajr at");
    EXPECT_EQ(English("other", "Zuhr"), "Zuhr at");
    EXPECT_EQ(English("other", "Asr"), "Asr at");
    EXPECT_EQ(English("other", "Maghrib"), "Maghrib at");
    EXPECT_EQ(English("other", "Isha"), "Isha at");
}

// The settings window takes the names of the table, the window of adjustments those of the pack.
TEST_F(LanguagePacks, AuthoritiesHaveTheNamesOfTheTextTable) {
    const std::map<std::string, std::int16_t> columns = {
        {"French", 2}, {"German", 3}, {"Arabic", 4}, {"Spanish", 5}};
    for (const auto& [language, column] : columns) {
        currentLanguage = language;
        for (const Method& method : Methods()) {
            const bool isMore = method.name == TextEntry::kSingaporeMalaysia ||
                                method.name == TextEntry::kKuwait;  // a country there
            EXPECT_TRUE(isMore || GetLangString("methods", method.authority->key, "") ==
                                      TextItem(method.name, column))
                << language << " " << method.authority->key;
        }
    }
}

TEST_F(LanguagePacks, EnglishMonthsBeginAndEndTheYear) {
    EXPECT_EQ(English("other", "1"), "Muharram");
    EXPECT_EQ(English("other", "9"), "Ramadan");
    EXPECT_EQ(English("other", "12"), "Zul Hijja");
}

}  // namespace
}  // namespace horavex
