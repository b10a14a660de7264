// What the settings window speaks at a start. It is loaded before any pack is known, so that its
// captions come from the text table alone.

#include <algorithm>
#include <set>

#include "base/text.h"
#include "lang/form_language.h"
#include "store/text_table.h"
#include "support/data_folder.h"
#include "support/program_test.h"

namespace horavex {
namespace {

/// The program started with a pack and the language of the texts that goes with it.
struct SettingsLanguageTest : ProgramTest, testing::WithParamInterface<std::int16_t> {
    SettingsLanguageTest() {
        LoadActiveSettings();
        ActiveSettings.Language = GetParam();
        for (const char* path : {"/program/Dat/AI.DAT", "/program/Dat/Settings.DAT"}) {
            platform.files.WriteWhole(path, RecordOf(ActiveSettings));
        }
        StartAgain();
    }

    static std::set<std::string> Texts() {
        std::set<std::string> texts;
        for (std::uint16_t entry = 1; entry <= kTextEntries; ++entry) {
            texts.insert(TextItem(TextEntry{entry}, GetParam()));
        }
        return texts;
    }

    /// Captions that are worked out, six fixed names, and the entries of no menu.
    static bool IsLeftOut(const Control& control) {
        static const std::set<std::string> names = {"lblCityBanner", "lblDeprMin", "lblDeprMax",
                                                    "Label6",        "Label7",     "lblZoritName",
                                                    "mnuPopSound",   "mnuSound",   "lblClocks"};
        return IsRuntimeControl(control) || names.contains(control.Name()) || !HasCaption(control);
    }
};

TEST_P(SettingsLanguageTest, EveryCaptionIsInTheLanguageOfTheTexts) {
    const auto texts = Texts();
    for (const Control* control : HoravexMainForm->Controls()) {
        if (!IsLeftOut(*control)) {
            EXPECT_TRUE(texts.contains(control->Caption()))
                << control->Name() << ": " << control->Caption();
        }
    }
}

TEST_P(SettingsLanguageTest, TitleIsOneTextOfTheTable) {
    EXPECT_EQ(HoravexMainForm->Caption(), TextItem(TextEntry::kSettingsTitle, GetParam()));
}

INSTANTIATE_TEST_SUITE_P(All, SettingsLanguageTest, testing::Values(1, 2, 3, 4, 5));

}  // namespace
}  // namespace horavex
