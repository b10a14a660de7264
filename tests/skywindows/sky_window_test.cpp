#include "skywindows/sky_window.h"

#include <gmock/gmock.h>

#include "lang/language_pack.h"
#include "support/program_test.h"
#include "windows/frm_sky.h"
#include "windows/moon_phases.h"

namespace horavex {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

constexpr int kPhases = 1;

class SkyWindowTest : public ProgramTest {
protected:
    SkyWindowTest() {
        StartAgain();
        frmMain->mnuSky.UserClick();
    }

    std::string Time() const { return form.lblShownTime.Caption(); }

    SkyForm& form = *frmSky;
};

TEST_F(SkyWindowTest, OpensModalFromTheMenuInTheMiddleOfTheScreen) {
    EXPECT_THAT(platform.desktop.calls, ElementsAre("load frmSky", "show frmSky", "modal frmSky"));
    EXPECT_EQ(form.Owner(), &*frmMain);
    EXPECT_EQ(form.Left(), (19200.0 - form.Width()) / 2.0);
}

TEST_F(SkyWindowTest, OpensFromTheMoonWindowTooWhichSaysWhatItsOwnTablesAre) {
    form.cmdClose.UserClick();
    frmMain->mnuMoonPhases.UserClick();
    EXPECT_THAT(Moon_Phases->lblSkyNote.Caption(), HasSubstr("hours off"));
    EXPECT_EQ(Moon_Phases->Controls().back(), &Moon_Phases->cmdSky);
    Moon_Phases->cmdSky.UserClick();
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(form.Owner(), &*Moon_Phases);
    form.cmdClose.UserClick();
    EXPECT_TRUE(Moon_Phases->Visible());
}

TEST_F(SkyWindowTest, ComesUpWithTheDayOfTheAcceptedPlaceByItsClock) {
    EXPECT_EQ(form.lblShownPlace.Caption(), ActiveCityText);
    EXPECT_THAT(Time(), StartsWith("21 November 2026  "));
    EXPECT_THAT(form.grdTable.rows, SizeIs(5));
    EXPECT_EQ(form.grdTable.figures, std::set<std::size_t>({1, 2, 3}));
    EXPECT_THAT(form.lblShownNote.Caption(), HasSubstr("Sun now: "));
    EXPECT_FALSE(form.picArcs.drawing.empty());
    EXPECT_FALSE(form.cmdNext.Visible());
}

TEST_F(SkyWindowTest, LooksAtTheSkyAgainEveryMinuteAsLongAsTheDayIsOnView) {
    const std::string before = form.lblShownNote.Caption();
    EXPECT_EQ(form.tmrNow.Interval(), 60000);
    platform.clock.Advance(600.0);
    form.tmrNow.Tick();
    EXPECT_NE(form.lblShownNote.Caption(), before);
    form.tabPages.UserSelect(kPhases);
    EXPECT_FALSE(form.tmrNow.Running());
    form.tabPages.UserSelect(0);
    EXPECT_TRUE(form.tmrNow.Running());
    form.cmdClose.UserClick();
    EXPECT_FALSE(form.tmrNow.Running());
}

TEST_F(SkyWindowTest, PhasesAreThoseOfTheYearAndTurnByButtonsAndPageKeys) {
    form.tabPages.UserSelect(kPhases);
    EXPECT_EQ(Time(), "2026");
    EXPECT_FALSE(form.picArcs.Visible());
    EXPECT_THAT(form.grdTable.heads, Contains("Full moon"));
    const auto rows = form.grdTable.rows;
    form.cmdNext.UserClick();
    form.tmrTurn.Tick();
    EXPECT_EQ(Time(), "2027");
    EXPECT_NE(form.grdTable.rows, rows);
    form.grdTable.UserPage(-1);
    form.cmdPrev.UserClick();
    EXPECT_EQ(Time(), "2025");
    form.cmdToday.UserClick();
    form.tmrTurn.Tick();
    EXPECT_EQ(Time(), "2026");
    EXPECT_EQ(form.grdTable.rows, rows);
}

TEST_F(SkyWindowTest, YearsThatAreOnlyTurnedOverAreNotWorkedOut) {
    form.tabPages.UserSelect(2);
    const auto rows = form.grdTable.rows;
    form.grdTable.UserPage(1);
    form.grdTable.UserPage(1);
    EXPECT_EQ(Time(), "2028");
    EXPECT_EQ(form.grdTable.rows, rows);
    EXPECT_LT(form.tmrTurn.Interval(), 250);
    form.tmrTurn.Tick();
    EXPECT_NE(form.grdTable.rows, rows);
    EXPECT_FALSE(form.tmrTurn.Running());
}

TEST_F(SkyWindowTest, PageThatIsPrintedIsThatOfTheYearAboveIt) {
    form.tabPages.UserSelect(2);
    const auto rows = form.grdTable.rows;
    form.cmdNext.UserClick();
    form.cmdPrint.UserClick();
    EXPECT_NE(form.grdTable.rows, rows);
    EXPECT_FALSE(form.tmrTurn.Running());
}

TEST_F(SkyWindowTest, EclipsesAndTheSunOverMeccaTurnWithTheYearToo) {
    for (const int page : {2, 3}) {
        form.tabPages.UserSelect(page);
        const auto rows = form.grdTable.rows;
        EXPECT_FALSE(form.lblShownNote.Caption().empty());
        form.cmdNext.UserClick();
        form.tmrTurn.Tick();
        EXPECT_NE(form.grdTable.rows, rows) << page;
        form.cmdPrev.UserClick();
    }
}

TEST_F(SkyWindowTest, PageKeysTurnNothingOnTheDay) {
    form.grdTable.UserPage(1);
    form.tabPages.UserSelect(kPhases);
    EXPECT_EQ(Time(), "2026");
}

TEST_F(SkyWindowTest, YearsEndWithTheAlmanac) {
    form.cmdClose.UserClick();
    SetClock(kLastAlmanacYear, 7, 1, 12, 0, 0);
    frmMain->mnuSky.UserClick();
    form.tabPages.UserSelect(kPhases);
    EXPECT_FALSE(form.cmdNext.Enabled());
    form.grdTable.UserPage(1);
    EXPECT_EQ(Time(), std::to_string(kLastAlmanacYear));
    form.cmdPrev.UserClick();
    EXPECT_TRUE(form.cmdNext.Enabled());
}

TEST_F(SkyWindowTest, SpeaksTheCurrentLanguage) {
    form.cmdClose.UserClick();
    currentLanguage = "German";
    frmMain->mnuSky.UserClick();
    EXPECT_EQ(form.Caption(), "Himmel");
    EXPECT_THAT(form.tabPages.Items(),
                ElementsAre("Heute", "Mondphasen", "Finsternisse", "Qibla nach der Sonne"));
    EXPECT_THAT(Time(), StartsWith("21. November 2026"));
    EXPECT_EQ(form.grdTable.rows.at(0).cells.at(0), "Sonne");
}

TEST_F(SkyWindowTest, PrintsAndHelps) {
    platform.desktop.calls.clear();
    form.cmdPrint.UserClick();
    form.cmdHelp.UserClick();
    EXPECT_THAT(platform.desktop.calls, Contains("Print frmSky"));
    EXPECT_THAT(platform.desktop.calls, Contains(StartsWith("ShowHelp ")));
    EXPECT_THAT(platform.desktop.calls, Not(Contains("unload frmSky")));
}

}  // namespace
}  // namespace horavex
