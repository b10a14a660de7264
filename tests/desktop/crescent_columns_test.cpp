// The table of a month's evenings, in every language: whatever a criterion says of one, its columns
// stand beside each other whole.

#include <QScrollBar>
#include <QTableWidget>

#include "desktop/shots/scenes.h"
#include "sky/class_words.h"
#include "skywindows/crescent_window.h"
#include "skywindows/crescent_words.h"
#include "support/shipped_languages.h"
#include "windows/frm_crescent.h"
#include "windows/frm_main.h"

namespace horavex {
namespace {

/// Every evening that a criterion can tell of.
void ShowEveryClass(Grid& evenings) {
    const ClassWords words = PackClassWords();
    Grid::Row row = evenings.rows.back();
    evenings.rows.clear();
    for (const std::string& word : words.yallop) {
        row.cells[9] = "A  " + word;
        evenings.rows.push_back(row);
    }
    row.cells[9] = words.beforeNewMoon;
    for (const std::string& word : words.odeh) {
        row.cells[10] = "A  " + word;
        evenings.rows.push_back(row);
    }
    for (const std::string& word : {words.moonSetsFirst, words.noSunset}) {
        row.cells[10] = word;
        evenings.rows.push_back(row);
    }
    evenings.Refresh();
}

struct CrescentColumnsTest : testing::TestWithParam<std::string> {};

TEST_P(CrescentColumnsTest, HoldWhateverACriterionSays) {
    int beyond = -1;
    Stage stage(GetParam(), {}, [&](const std::vector<QWidget*>& windows) {
        beyond = windows.back()
                     ->findChild<QTableWidget*>("grdEvenings")
                     ->horizontalScrollBar()
                     ->maximum();
    });
    stage.Visit([] { OpenCrescent(*frmMain); }, *frmCrescent,
                [&] {
                    ShowEveryClass(frmCrescent->grdEvenings);
                    stage.Look(*frmCrescent);
                });
    EXPECT_EQ(beyond, 0);
}

INSTANTIATE_TEST_SUITE_P(EachLanguage, CrescentColumnsTest, testing::ValuesIn(kShippedLanguages),
                         [](const auto& language) { return language.param; });

}  // namespace
}  // namespace horavex
