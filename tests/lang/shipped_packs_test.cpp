// The packs that are shipped, as they lie in the source folder.

#include <map>
#include <regex>
#include <set>
#include <span>

#include "base/text.h"
#include "base/utf8.h"
#include "forms/menu_item.h"
#include "lang/form_language.h"
#include "lang/lang_test.h"
#include "lang/language_menu.h"
#include "lang/language_pack.h"
#include "lang/pack_check.h"
#include "lang/pack_keys.h"
#include "lang/profile_file.h"
#include "linux/posix_files.h"
#include "support/build_folder.h"
#include "support/shipped_languages.h"
#include "windows/frm_main.h"

namespace horavex {
namespace {

using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// The folder data/lang of the source as the packs of the program folder.
class ShippedPacks : public LangTest {
protected:
    ShippedPacks() {
        PosixFiles disk;
        const std::string folder = SourcePath("data/lang");
        for (const std::string& name : disk.List(folder)) {
            data.Write("lang/" + name, ReadWhole(disk, folder + "/" + name));
        }
    }

    std::string Source(const std::string& language) {
        return StringOf(data.Read("lang/" + language + ".ini"));
    }

    /// The forms in one language.
    static std::vector<std::unique_ptr<Form>> FormsIn(const std::string& language) {
        auto forms = PackForms();
        for (const auto& form : forms) {
            LoadFormLanguage(*form, LanguagePackPath(language));
        }
        return forms;
    }

    static std::string Text(const std::string& language, const std::string& section,
                            const std::string& key) {
        return ReadPackString(LanguagePackPath(language), section, key, "", kPackTextBuffer);
    }
};

/// The letter behind the mark of the access key, small; empty for none. "&&" is a plain "&".
std::string AccessKey(const std::string& caption) {
    const std::size_t mark = caption.find('&');
    if (mark == std::string::npos) {
        return {};
    }
    std::string key;
    AppendUtf8(key, DecodeUtf8(caption.substr(mark + 1)).value().at(0));
    return AsciiLower(key);
}

/// What is filled in: "{time}", "{rule}".
std::multiset<std::string> MarksOf(const std::string& text) {
    static const std::regex mark("\\{[a-z]+\\}");
    std::multiset<std::string> marks;
    for (std::sregex_iterator at(text.begin(), text.end(), mark); at != std::sregex_iterator();
         ++at) {
        marks.insert(at->str());
    }
    return marks;
}

TEST_F(ShippedPacks, AreNamedInTheMenuWhichMarksTheOneInUse) {
    BuildLanguageMenu("English");
    std::vector<std::string> captions;
    for (const MenuItem* item : frmMain->mnuChangeLanguage.Entries()) {
        captions.push_back(item->Caption());
        EXPECT_EQ(item->Checked(), item->Caption() == "English") << item->Caption();
    }
    EXPECT_THAT(captions, ElementsAreArray(kShippedLanguages));
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
}

TEST_F(ShippedPacks, HaveNoMissingEmptyOrUnknownKey) {
    CheckReport report;
    CheckLanguagePacks(report);
    EXPECT_THAT(report.problems, IsEmpty());
    EXPECT_GT(report.passed, std::ssize(kShippedLanguages) * 300);
}

TEST_F(ShippedPacks, AreUtf8WithoutAByteOrderMarkOrCarriageReturns) {
    for (const std::string& language : kShippedLanguages) {
        const std::string source = Source(language);
        EXPECT_TRUE(IsUtf8(source)) << language;
        EXPECT_THAT(source, Not(HasSubstr("\xEF\xBB\xBF"))) << language;
        EXPECT_THAT(source, Not(HasSubstr("\r"))) << language;
        EXPECT_TRUE(source.ends_with("\n")) << language;
    }
}

TEST_F(ShippedPacks, LeaveTheAddressOfTheServerToTheSettings) {
    for (const std::string& language : kShippedLanguages) {
        EXPECT_THAT(Text(language, "msg", "18"), HasSubstr("{address} ")) << language;
        EXPECT_THAT(Text(language, "msg", "20"), HasSubstr("{address}")) << language;
        EXPECT_THAT(Source(language), Not(HasSubstr("://"))) << language;
    }
}

TEST_F(ShippedPacks, PatternsHaveTheMarksOfTheEnglishOnes) {
    const std::span<const std::string> none;
    std::string section;
    for (const std::string& line : Split(Source("English"), '\n')) {
        section = line.starts_with('[') ? line.substr(1, line.size() - 2) : section;
        const auto marks = MarksOf(line);
        for (const std::string& language : marks.empty() ? none : kShippedLanguages) {
            const std::string key = line.substr(0, line.find('='));
            EXPECT_EQ(MarksOf(Text(language, section, key)), marks)
                << language << " [" << section << "] " << key;
        }
    }
}

TEST_F(ShippedPacks, NameTenDigitsOfOneSet) {
    for (const std::string& language : kShippedLanguages) {
        const std::u32string digits = DecodeUtf8(Text(language, "timetables", "Digits")).value();
        ASSERT_EQ(digits.size(), 10U) << language;
        for (std::size_t value = 0; value < digits.size(); ++value) {
            EXPECT_EQ(digits[value], digits[0] + value) << language;
        }
    }
}

TEST_F(ShippedPacks, HaveEachKeyOnce) {
    for (const std::string& language : kShippedLanguages) {
        std::set<std::string> seen;
        std::string section;
        for (const std::string& line : Split(Source(language), '\n')) {
            if (line.starts_with('[')) {
                EXPECT_TRUE(seen.insert(line).second) << language << " " << line;
                section = line;
            } else if (const std::size_t mark = line.find('='); mark != std::string::npos) {
                EXPECT_TRUE(seen.insert(section + line.substr(0, mark)).second)
                    << language << " " << line;
            }
        }
    }
}

TEST_F(ShippedPacks, BlankNoCaptionOfAnyForm) {
    for (const std::string& language : kShippedLanguages) {
        for (const auto& form : FormsIn(language)) {
            EXPECT_NE(form->Caption(), form->Name()) << language;
            for (const Control* control : form->Controls()) {
                if (TakesPackTexts(*control)) {
                    EXPECT_NE(control->Caption(), "") << language << " " << control->Name();
                }
            }
        }
    }
}

TEST_F(ShippedPacks, TitlesOfTheFacesButtonsCarryNoAccessKey) {
    for (const std::string& language : kShippedLanguages) {
        for (const char* key : {"mnuAthan", "mnuSettings", "mnuTools", "mnuHelp"}) {
            EXPECT_THAT(Text(language, "frmMain", key), Not(HasSubstr("&"))) << language;
        }
    }
}

TEST_F(ShippedPacks, EveryMenuEntryHasAnAccessKeyOfItsOwnInItsMenu) {
    for (const std::string& language : kShippedLanguages) {
        std::map<const Element*, std::set<std::string>> keysOfMenu;
        for (const auto& form : FormsIn(language)) {
            for (const Control* control : form->Controls()) {
                if (control->Kind() != ControlKind::kMenuItem || !TakesPackTexts(*control) ||
                    &control->Parent() == form.get()) {
                    continue;
                }
                const std::string key = AccessKey(control->Caption());
                EXPECT_NE(key, "") << language << " " << control->Name();
                EXPECT_TRUE(keysOfMenu[&control->Parent()].insert(key).second)
                    << language << " " << control->Caption();
            }
        }
        EXPECT_EQ(keysOfMenu.size(), 5U);
    }
}

// The line below an access key cuts the letter from a sign that is written upon it, or from the
// letters that it is joined to.
TEST_F(ShippedPacks, BengaliAccessKeysAreLettersThatStandAlone) {
    const auto isSign = [](char32_t c) {
        return (c >= 0x981 && c <= 0x983) || (c >= 0x9BC && c <= 0x9CD) || c == 0x9D7;
    };
    constexpr char32_t kJoiner = 0x9CD;
    for (const ProfileEntry& entry : ListProfileEntries(Source("Bengali"))) {
        const std::string text = Text("Bengali", entry.section, entry.key);
        const auto letters = DecodeUtf8(text).value();
        const std::size_t mark = letters.find(U'&');
        if (mark != std::u32string::npos) {
            EXPECT_FALSE(mark + 2 < letters.size() && isSign(letters[mark + 2])) << text;
            EXPECT_FALSE(mark > 0 && letters[mark - 1] == kJoiner) << text;
        }
    }
}

TEST_F(ShippedPacks, ButtonsOfAWindowShareNoAccessKey) {
    for (const std::string& language : kShippedLanguages) {
        for (const auto& form : FormsIn(language)) {
            std::set<std::string> keys;
            for (const Control* control : form->Controls()) {
                if (control->Kind() != ControlKind::kMenuItem && TakesPackTexts(*control)) {
                    const std::string key = AccessKey(control->Caption());
                    EXPECT_TRUE(key.empty() || keys.insert(key).second)
                        << language << " " << control->Caption();
                }
            }
        }
    }
}

TEST_F(ShippedPacks, HaveAccessKeysWhereEnglishHasThem) {
    const auto english = FormsIn("English");
    for (const std::string& language : kShippedLanguages) {
        const auto translated = FormsIn(language);
        for (std::size_t form = 0; form < english.size(); ++form) {
            for (std::size_t control = 0; control < english[form]->Controls().size(); ++control) {
                const Control& original = *english[form]->Controls()[control];
                if (TakesPackTexts(original) && !AccessKey(original.Caption()).empty()) {
                    const Control& same = *translated[form]->Controls()[control];
                    EXPECT_NE(AccessKey(same.Caption()), "") << language << " " << same.Name();
                }
            }
        }
    }
}

// A line must not break in front of a mark that belongs to the word before it.
TEST_F(ShippedPacks, FrenchMarksStandBehindNoBreakSpacesAndApostrophesAreCurved) {
    for (const std::string& line : Split(Source("French"), '\n')) {
        const std::string text = line.starts_with(';') ? "" : line;
        for (const char* plain : {" :", " ;", " !", " ?", " %", " »", "« ", "'"}) {
            EXPECT_THAT(text, Not(HasSubstr(plain)));
        }
    }
}

// Nor between a number and its unit, or in front of the dots that German sets apart.
TEST_F(ShippedPacks, UnitsAndDotsStandBehindNoBreakSpaces) {
    const std::regex breaks("\\} (km|min|h|s|%)([^a-z]|$)|[a-z%] (%|…)");
    for (const char* language : {"French", "German", "Spanish"}) {
        for (const std::string& line : Split(Source(language), '\n')) {
            EXPECT_FALSE(std::regex_search(line, breaks)) << language << " " << line;
        }
    }
}

TEST_F(ShippedPacks, PrayersOfTheFaceAreSixNamesWithoutAColon) {
    for (const std::string& language : kShippedLanguages) {
        std::set<std::string> names;
        for (int prayer = 0; prayer < 6; ++prayer) {
            const std::string name =
                Text(language, "frmMain", "lblZoritNameArabic_" + std::to_string(prayer));
            EXPECT_THAT(name, Not(HasSubstr(":"))) << language;
            names.insert(name);
        }
        EXPECT_EQ(names.size(), 6U) << language;
    }
}

TEST_F(ShippedPacks, OpeningsOfTheNextPrayerBeginWithTheNameOnTheFace) {
    const std::map<std::string, int> prayers = {
        {"Fajr", 0}, {"Zuhr", 2}, {"Asr", 3}, {"Maghrib", 4}, {"Isha", 5}};
    for (const std::string& language : kShippedLanguages) {
        for (const auto& [key, prayer] : prayers) {
            const std::string name =
                Text(language, "frmMain", "lblZoritNameArabic_" + std::to_string(prayer));
            EXPECT_TRUE(Text(language, "other", key).starts_with(name + " "))
                << language << " " << key;
        }
    }
}

TEST_F(ShippedPacks, TwoLabelsOfTheFaceEndInAColon) {
    for (const std::string& language : kShippedLanguages) {
        EXPECT_TRUE(Text(language, "frmMain", "Label1").ends_with(":")) << language;
        EXPECT_TRUE(Text(language, "frmMain", "Label3").ends_with(":")) << language;
    }
}

// A longer value would be cut where it is read: names of months and prayers, and the titles of the
// face's buttons, go through the smaller buffer.
TEST_F(ShippedPacks, FitTheirBuffers) {
    const std::regex shortName(
        "\\[other\\](1?[0-9]|Fajr|Zuhr|Asr|Maghrib|Isha)|"
        "\\[frmMain\\]mnu(Athan|Settings|Tools|Help)");
    for (const std::string& language : kShippedLanguages) {
        const std::string source = Source(language);
        for (const ProfileEntry& entry : ListProfileEntries(source)) {
            const std::string key = "[" + entry.section + "]" + entry.key;
            const bool isShort = std::regex_match(key, shortName);
            EXPECT_LT(FindProfileValue(source, entry.section, entry.key)->size(),
                      isShort ? kPackNameBuffer : kPackTextBuffer)
                << language << " " << key;
        }
        EXPECT_GT(Text(language, "frmRamadan", "Text1").size(), 400U) << language;
    }
}

TEST_F(ShippedPacks, SpeakTheirOwnLanguage) {
    EXPECT_EQ(Text("Arabic", "frmMain", "mnuHelp"), "مساعدة");
    EXPECT_EQ(Text("Bengali", "frmMain", "mnuHelp"), "সহায়তা");
    EXPECT_EQ(Text("English", "frmMain", "mnuHelp"), "Help");
    EXPECT_EQ(Text("French", "frmMain", "mnuHelp"), "Aide");
    EXPECT_EQ(Text("German", "frmMain", "mnuHelp"), "Hilfe");
    EXPECT_EQ(Text("Indonesian", "frmMain", "mnuHelp"), "Bantuan");
    EXPECT_EQ(Text("Spanish", "frmMain", "mnuHelp"), "Ayuda");
    EXPECT_EQ(Text("Turkish", "frmMain", "mnuHelp"), "Yardım");
    EXPECT_EQ(Text("Urdu", "frmMain", "mnuHelp"), "مدد");
}

TEST_F(ShippedPacks, NumberNothingThatIsLeftFree) {
    for (const std::string& language : kShippedLanguages) {
        EXPECT_EQ(Text(language, "msg", "8"), "") << language;
        EXPECT_TRUE(Text(language, "msg", "18").ends_with(" ")) << language;
    }
}

}  // namespace
}  // namespace horavex
