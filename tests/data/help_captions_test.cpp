// What the help sets in bold is what windows show: a caption, a text or a part of one.

#include <ostream>
#include <regex>
#include <set>

#include "base/text.h"
#include "config/help_topics.h"
#include "data/built_data.h"
#include "store/text_table.h"
#include "support/run_program.h"

namespace horavex {
namespace {

struct HelpLanguage {
    std::string name;
    std::int16_t column;  // of the text table

    friend void PrintTo(const HelpLanguage& language, std::ostream* out) { *out << language.name; }
};

struct HelpCaptions : BuiltData, testing::WithParamInterface<HelpLanguage> {
    static std::string Content(const std::string& file) {
        return ContentOf(BuiltProgramFolder() + "/" + file);
    }

    /// All that the language shows, in small letters, without the marks of access keys.
    static std::string Shown() {
        std::string shown = Content("lang/" + GetParam().name + ".ini");
        for (std::uint16_t entry = 1; entry <= kTextEntries; ++entry) {
            shown += TextItem(TextEntry{entry}, GetParam().column) + "\n";
        }
        std::erase(shown, '&');
        return AsciiLower(shown);
    }

    static std::set<std::string> BoldIn(const std::string& page) {
        const std::string text = std::regex_replace(page, std::regex("\\s+"), " ");
        const std::regex bold("<b>([^<]*)</b>");
        std::set<std::string> found;
        for (std::sregex_iterator at(text.begin(), text.end(), bold); at != std::sregex_iterator();
             ++at) {
            found.insert((*at)[1]);
        }
        return found;
    }

    /// Words that open a paragraph, names of encodings, and in Arabic, which has no slanted
    /// letters, what is stressed.
    static bool IsNoCaption(const std::string& bold) {
        static const std::set<std::string> stressed = {
            "أول غروب بعد", "الشمال الحقيقي", "في الشتاء", "الأكبر", "أبكر",
            "أكثر تأخرًا",   "لهذا اليوم",     "متأخرًا",    "متقدمًا"};
        return bold.ends_with('.') || bold.ends_with("।") || bold.ends_with("۔") ||
               bold == "UTF-8" || bold.starts_with("Windows-125") || stressed.contains(bold);
    }
};

TEST_P(HelpCaptions, AreTheOnesThatWindowsShow) {
    const std::string shown = Shown();
    for (const std::string& page : HelpTopics(Content("Horavex.HLP")).Pages()) {
        for (const std::string& bold : BoldIn(Content("help/" + GetParam().name + "/" + page))) {
            EXPECT_TRUE(IsNoCaption(bold) || shown.find(AsciiLower(bold)) != std::string::npos)
                << page << ": " << bold;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, HelpCaptions,
                         testing::Values(HelpLanguage{"English", 1}, HelpLanguage{"French", 2},
                                         HelpLanguage{"German", 3}, HelpLanguage{"Arabic", 4},
                                         HelpLanguage{"Bengali", 1}, HelpLanguage{"Indonesian", 1},
                                         HelpLanguage{"Spanish", 5}, HelpLanguage{"Turkish", 1},
                                         HelpLanguage{"Urdu", 1}),
                         [](const auto& language) { return language.param.name; });

}  // namespace
}  // namespace horavex
