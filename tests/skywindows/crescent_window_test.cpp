#include "skywindows/crescent_window.h"

#include "base/bytes.h"
#include "lang/language_pack.h"
#include "support/program_test.h"
#include "timetables/document_tools.h"
#include "windows/frm_crescent.h"
#include "windows/frm_sky.h"

namespace horavex {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

class CrescentWindowTest : public ProgramTest {
protected:
    CrescentWindowTest() {
        StartAgain();
        frmMain->mnuCrescent.UserClick();
    }

    /// Ticks until the map is complete; returns how many it took.
    int FinishMap() {
        int ticks = 0;
        for (; form.tmrMap.Running(); ++ticks) {
            form.tmrMap.Tick();
        }
        return ticks;
    }

    std::string MapTitle() const { return std::get<TextStep>(*TitleStep()).text; }

    CrescentForm& form = *frmCrescent;

private:
    Drawing::const_iterator TitleStep() const {
        return std::ranges::find_if(form.picMap.drawing, [](const DrawingStep& step) {
            return std::holds_alternative<TextStep>(step);
        });
    }
};

TEST_F(CrescentWindowTest, OpensModalFromTheMenuInTheMiddleOfTheScreen) {
    EXPECT_THAT(platform.desktop.calls,
                ElementsAre("load frmCrescent", "show frmCrescent", "modal frmCrescent"));
    EXPECT_EQ(form.Owner(), &*frmMain);
    EXPECT_EQ(form.Left(), (19200.0 - form.Width()) / 2.0);
}

TEST_F(CrescentWindowTest, OpensFromTheWindowOfTheSkyToo) {
    form.cmdClose.UserClick();
    frmMain->mnuSky.UserClick();
    frmSky->cmdCrescent.UserClick();
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(form.Owner(), &*frmSky);
    form.cmdClose.UserClick();
    EXPECT_TRUE(frmSky->Visible());
}

// 21 November 2026 is in Jumada II 1448.
TEST_F(CrescentWindowTest, ComesUpWithTheMonthThatComesNext) {
    EXPECT_EQ(form.cboMonth.Text(), "Rajab");
    EXPECT_EQ(form.cboYear.Text(), "1448");
    EXPECT_EQ(form.lblShownPlace.Caption(), ActiveCityText);
    EXPECT_THAT(form.lblShownNewMoon.Caption(), StartsWith("New moon: 9 December 2026  "));
    EXPECT_THAT(form.grdEvenings.rows, SizeIs(5));
    EXPECT_THAT(form.grdDays.rows, SizeIs(6));
}

TEST_F(CrescentWindowTest, TurnsMonthsByButtonsListsAndPageKeys) {
    form.cmdNext.UserClick();
    EXPECT_EQ(form.cboMonth.Text(), "Sha'ban");
    form.grdEvenings.UserPage(-1);
    form.cmdPrev.UserClick();
    EXPECT_EQ(form.cboMonth.Text(), "Jamad Thani");
    form.cboMonth.UserSelect(8);
    form.cboYear.UserSelect(1445 - 1318);
    EXPECT_THAT(form.lblShownNewMoon.Caption(), StartsWith("New moon: 10 March 2024  "));
    form.cboMonth.UserSelect(11);
    form.cmdNext.UserClick();
    EXPECT_EQ(form.cboMonth.Text(), "Muharram");
    EXPECT_EQ(form.cboYear.Text(), "1446");
}

TEST_F(CrescentWindowTest, MonthsEndWithTheAlmanac) {
    form.cboYear.UserSelect(0);
    form.cboMonth.UserSelect(0);
    EXPECT_FALSE(form.cmdPrev.Enabled());
    form.grdEvenings.UserPage(-1);
    EXPECT_EQ(form.cboMonth.Text(), "Muharram");
    EXPECT_EQ(form.cboYear.Text(), "1318");
    form.cboYear.UserSelect(form.cboYear.ListCount() - 1);
    form.cboMonth.UserSelect(11);
    EXPECT_FALSE(form.cmdNext.Enabled());
    EXPECT_TRUE(form.cmdPrev.Enabled());
}

TEST_F(CrescentWindowTest, MapIsOfTheEveningOnWhichTheCrescentComesIntoSight) {
    const auto current = std::ranges::find_if(form.grdEvenings.rows,
                                              [](const Grid::Row& row) { return row.current; });
    ASSERT_NE(current, form.grdEvenings.rows.end());
    EXPECT_EQ(current->cells.front(), "10 December");
    EXPECT_EQ(form.cboEvening.Text(), "10 December 2026");
    EXPECT_EQ(MapTitle(),
              "Crescent of Rajab 1448, evening of 10 December 2026, criterion of Yallop");
}

TEST_F(CrescentWindowTest, MapGrowsBehindTheWindowAndCanBeSavedWhenItIsDone) {
    EXPECT_EQ(form.prgMap.Value(), 0);
    EXPECT_FALSE(form.cmdSaveMap.Enabled());
    EXPECT_TRUE(form.tmrMap.Running());
    const std::size_t before = form.picMap.drawing.size();
    form.tmrMap.Tick();
    EXPECT_GT(form.prgMap.Value(), 0);
    EXPECT_LT(form.prgMap.Value(), form.prgMap.Max());
    EXPECT_GT(form.picMap.drawing.size(), before);
    EXPECT_GT(FinishMap(), 10);
    EXPECT_EQ(form.prgMap.Value(), form.prgMap.Max());
    EXPECT_TRUE(form.cmdSaveMap.Enabled());
}

TEST_F(CrescentWindowTest, AnotherEveningBeginsTheMapAnew) {
    FinishMap();
    form.cboEvening.UserSelect(1);
    EXPECT_EQ(form.prgMap.Value(), 0);
    EXPECT_TRUE(form.tmrMap.Running());
    EXPECT_THAT(MapTitle(), HasSubstr("evening of 9 December 2026"));
    EXPECT_TRUE(form.grdEvenings.rows[1].current);
}

TEST_F(CrescentWindowTest, AnotherCriterionColoursTheMapThatIsThere) {
    FinishMap();
    form.cboCriterion.UserSelect(1);
    EXPECT_FALSE(form.tmrMap.Running());
    EXPECT_TRUE(form.cmdSaveMap.Enabled());
    EXPECT_THAT(MapTitle(), HasSubstr("criterion of Odeh"));
    form.cmdNext.UserClick();
    EXPECT_EQ(form.cboCriterion.ListIndex(), 1);
    EXPECT_THAT(MapTitle(), HasSubstr("criterion of Odeh"));
}

TEST_F(CrescentWindowTest, SavesTheMapAsSvgOrPng) {
    std::string png;
    InstallDocumentTools(
        {.writePng = [&](const std::string& path, const Drawing& drawing, double, double) {
            png = path;
            EXPECT_EQ(drawing.size(), form.picMap.drawing.size());
        }});
    FinishMap();
    platform.dialogs.savedFile = "";
    form.cmdSaveMap.UserClick();
    platform.dialogs.savedFile = "/home/map.svg";
    form.cmdSaveMap.UserClick();
    EXPECT_EQ(platform.dialogs.saveRequests.back().request.title, MapTitle());
    EXPECT_THAT(StringOf(platform.files.Contents("/home/map.svg")), StartsWith("<svg "));
    platform.dialogs.savedFile = "/home/map.png";
    form.cmdSaveMap.UserClick();
    EXPECT_EQ(png, "/home/map.png");
    EXPECT_EQ(platform.dialogs.saveRequests.back().request.title, MapTitle());
}

TEST_F(CrescentWindowTest, SpeaksTheCurrentLanguage) {
    form.cmdClose.UserClick();
    currentLanguage = "German";
    frmMain->mnuCrescent.UserClick();
    EXPECT_EQ(form.Caption(), "Mondsichel");
    EXPECT_EQ(form.cboMonth.Text(), "Radschab");
    EXPECT_EQ(form.grdEvenings.heads.at(1), "Sonne unter");
    EXPECT_TRUE(form.grdEvenings.figures.contains(1));
    EXPECT_EQ(form.grdEvenings.rows[2].cells[9].substr(3), "leicht sichtbar");
    EXPECT_THAT(MapTitle(), HasSubstr("Abend des 10. Dezember 2026"));
}

TEST_F(CrescentWindowTest, HelpsAndStopsTheMapWhenItCloses) {
    form.cmdHelp.UserClick();
    EXPECT_THAT(platform.desktop.calls, Contains(StartsWith("ShowHelp ")));
    EXPECT_TRUE(form.tmrMap.Running());
    form.cmdClose.UserClick();
    EXPECT_FALSE(form.tmrMap.Running());
    form.tmrMap.Tick();
    frmMain->mnuCrescent.UserClick();
    EXPECT_EQ(form.prgMap.Value(), 0);
}

}  // namespace
}  // namespace horavex
