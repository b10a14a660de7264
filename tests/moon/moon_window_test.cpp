#include "moon/moon_window.h"

#include "base/fault.h"
#include "base/text.h"
#include "calendar/moon_labels.h"
#include "engine/angle.h"
#include "lang/language_pack.h"
#include "moon/eclipses.h"
#include "moon/phase_rows.h"
#include "support/program_test.h"
#include "support/shipped_languages.h"
#include "windows/frm_ramadan.h"
#include "windows/moon_phases.h"

namespace horavex {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class MoonWindowTest : public ProgramTest {
protected:
    MoonWindowTest() {
        StartAgain();
        ShowMoonPhases();
    }

    void OpenIn(int year) {
        form.Unload();
        SetClock(year, 7, 1, 12, 0, 0);
        ShowMoonPhases();
    }

    /// The lines of a box, each of which ends with Crlf.
    static std::vector<std::string> LinesOf(const TextBox& box) {
        std::vector<std::string> lines = Split(box.Text(), '\n');
        EXPECT_EQ(lines.back(), "");
        lines.pop_back();
        for (std::string& line : lines) {
            EXPECT_TRUE(line.ends_with('\r'));
            line.pop_back();
        }
        return lines;
    }

    /// The rows of a table for the year and the zone on view.
    static std::vector<std::string> Filled(MoonRows (*compute)(std::int16_t year, double zone)) {
        const MoonRows rows = compute(2026, Zone());
        return {rows.begin(), rows.begin() + kMoonRows};
    }

    static double Zone() { return WholeZone(HoravexMainForm->txtTimeZone.Text()); }

    /// Names of the controls on view that lie on the tabs themselves.
    std::vector<std::string> PageOnView() {
        std::vector<std::string> names;
        for (const Control* control : form.Controls()) {
            if (&control->Parent() == &form.SSTab1 && control->Visible()) {
                names.push_back(control->Name());
            }
        }
        return names;
    }

    int NextRow(MoonPhase phase) {
        constexpr double kDayZero = 2415018.5;
        return NextMoonRow(phase, 2026, platform.clock.UniversalNow() + kDayZero);
    }

    MoonPhasesForm& form = *Moon_Phases;
};

TEST_F(MoonWindowTest, OpensModalInTheMiddleOfTheScreen) {
    EXPECT_THAT(platform.desktop.calls,
                ElementsAre("load Moon_Phases", "show Moon_Phases", "modal Moon_Phases"));
    EXPECT_EQ(form.Owner(), &*frmMain);
    EXPECT_EQ(form.Left(), (19200.0 - form.Width()) / 2.0);
    EXPECT_EQ(form.Top(), (10800.0 - form.Height()) / 2.0);
}

TEST_F(MoonWindowTest, TablesAreFilledForTheYearOfTheClock) {
    EXPECT_EQ(LinesOf(form.Text2), Filled(ComputeNewMoonRows));
    EXPECT_EQ(LinesOf(form.Text3), Filled(ComputeFirstQuarterRows));
    EXPECT_EQ(LinesOf(form.Text5), Filled(ComputeFullMoonRows));
    EXPECT_EQ(LinesOf(form.Text6), Filled(ComputeLastQuarterRows));
    EXPECT_THAT(LinesOf(form.Text2)[6], testing::HasSubstr(" 2026, "));
    EXPECT_EQ(form.Text7.Text(), "");
}

TEST_F(MoonWindowTest, EachTableMarksTheMoonThatComesNext) {
    EXPECT_EQ(form.Text2.MarkedLine(), NextRow(MoonPhase::kNewMoon));
    EXPECT_EQ(form.Text3.MarkedLine(), NextRow(MoonPhase::kFirstQuarter));
    EXPECT_EQ(form.Text5.MarkedLine(), NextRow(MoonPhase::kFullMoon));
    EXPECT_EQ(form.Text6.MarkedLine(), NextRow(MoonPhase::kLastQuarter));
    EXPECT_GT(form.Text2.MarkedLine(), 0);
}

// New moon was on 9 November at 7:02 Universal Time, full moon comes on the 24th at 14:53.
TEST_F(MoonWindowTest, TellsHowMuchOfTonightsMoonIsLit) {
    EXPECT_EQ(form.lblTonight.Caption(), "Tonight: 90% of the disc lit, day 12 of the moon");
}

TEST_F(MoonWindowTest, BothTablesHaveTheSameLabels) {
    EXPECT_EQ(LinesOf(form.Text1).size(), 13U);
    EXPECT_EQ(LinesOf(form.Text1)[0], HijriLabelForMoonRow(LinesOf(form.Text2)[0]));
    EXPECT_EQ(form.Text4.Text(), form.Text1.Text());
}

TEST_F(MoonWindowTest, LabelsOf2011AreASliceOfTheTable) {
    OpenIn(2011);
    EXPECT_EQ(LinesOf(form.Text1).front(), BuildMoonMonthLabels(2011)[4]);
    EXPECT_EQ(LinesOf(form.Text4).back(), BuildMoonMonthLabels(2011)[16]);
}

TEST_F(MoonWindowTest, LastRowOf2007HasNoLabel) {
    OpenIn(2007);
    EXPECT_EQ(LinesOf(form.Text1).size(), 12U);
    EXPECT_EQ(LinesOf(form.Text2).size(), 13U);
}

TEST_F(MoonWindowTest, YearBefore2000HasTheSharedSlice) {
    OpenIn(1995);
    EXPECT_EQ(LinesOf(form.Text1).front(), "Muharram 1416");
    EXPECT_EQ(LinesOf(form.Text1).size(), 13U);
}

TEST_F(MoonWindowTest, WithoutTheConverterAllLabelsSayError) {
    platform.files.Delete("/program/Dat/UQ.DAT");
    OpenIn(2021);
    EXPECT_THAT(LinesOf(form.Text1), Each("Error"));
    EXPECT_EQ(LinesOf(form.Text1).size(), 13U);
}

TEST_F(MoonWindowTest, OpeningAgainFillsTheTablesAnewAndOnce) {
    OpenIn(2026);
    EXPECT_EQ(LinesOf(form.Text2), Filled(ComputeNewMoonRows));
    EXPECT_EQ(LinesOf(form.Text1).size(), 13U);
}

TEST_F(MoonWindowTest, ZoneThatIsNoNumberOpensNoWindow) {
    form.Unload();
    HoravexMainForm->txtTimeZone.SetText("");
    EXPECT_THROW(ShowMoonPhases(), TypeMismatchFault);
    EXPECT_FALSE(form.IsLoaded());
}

TEST_F(MoonWindowTest, TabsAreCaptionedByThePack) {
    EXPECT_THAT(form.SSTab1.Items(),
                ElementsAre("New moon / First Quarter", "Full Moon / Last Quarter",
                            "Moon Rise / Set", "Solar / Lunar Eclipses"));
    form.Unload();
    currentLanguage = "German";
    ShowMoonPhases();
    EXPECT_EQ(form.SSTab1.ListItem(2), GetLangString("other", "17", ""));
    EXPECT_NE(form.SSTab1.ListItem(2), "Moon Rise / Set");
    EXPECT_EQ(form.Caption(), "Mondphasen");
}

TEST_F(MoonWindowTest, EachTabHasItsPage) {
    EXPECT_THAT(PageOnView(), ElementsAre("lblMonth1", "Text1", "lblNewMoon", "picNewMoon", "Text2",
                                          "lblFirstQuarter", "picFirstQuarter", "Text3"));
    form.SSTab1.UserSelect(1);
    EXPECT_THAT(PageOnView(), ElementsAre("lblMonth2", "Text4", "lblFullMoon", "picFullMoon",
                                          "Text5", "lblLastQuarter", "picLastQuarter", "Text6"));
    form.SSTab1.UserSelect(2);
    EXPECT_THAT(PageOnView(), ElementsAre("lblDay", "cboDay", "lblMonth", "cboMonth", "lblYear",
                                          "cboYear", "optCurrentLocation", "optCustomLocation",
                                          "Frame4", "chkDayLightSaving", "cmdCalculate",
                                          "lblMoonRise", "lblMoonSet", "picDay"));
    form.SSTab1.UserSelect(3);
    EXPECT_THAT(PageOnView(),
                ElementsAre("Cmdeclipse_sun", "Cmdeclipse_moon", "Cmdclear", "Text7"));
}

TEST_F(MoonWindowTest, PagesThatAreTurnedToHaveSomethingToRead) {
    EXPECT_EQ(form.Text7.Text(), "") << "until it is on view";
    form.SSTab1.UserSelect(2);
    EXPECT_THAT(form.lblMoonRise.Caption(), testing::StartsWith("Moon Rise at:"));
    form.SSTab1.UserSelect(3);
    Eclipses eclipses;
    EXPECT_EQ(form.Text7.Text(), ListSolarEclipses(eclipses, 2026, Zone()));
}

TEST_F(MoonWindowTest, PageOfRiseAndSetKeepsItsAnswer) {
    form.SSTab1.UserSelect(2);
    const std::string today = form.lblMoonRise.Caption();
    form.cboYear.UserSelect(0);
    form.cmdCalculate.UserClick();
    const std::string other = form.lblMoonRise.Caption();
    ASSERT_NE(other, today);
    form.SSTab1.UserSelect(0);
    form.SSTab1.UserSelect(2);
    EXPECT_EQ(form.lblMoonRise.Caption(), other);
}

TEST_F(MoonWindowTest, EclipseButtonsListTheYearOfTheClockWhateverTheDateSays) {
    form.SSTab1.UserSelect(2);
    form.cboYear.UserSelect(0);
    form.SSTab1.UserSelect(3);
    form.Cmdeclipse_sun.UserClick();
    const std::string solar = form.Text7.Text();
    EXPECT_THAT(solar, testing::HasSubstr(" 2026  ,  "));
    Eclipses eclipses;
    EXPECT_EQ(solar, ListSolarEclipses(eclipses, 2026, Zone()));
    form.Cmdeclipse_moon.UserClick();
    EXPECT_EQ(form.Text7.Text(), ListLunarEclipses(eclipses, 2026, Zone()));
    EXPECT_NE(form.Text7.Text(), solar);
}

TEST_F(MoonWindowTest, SecondPressListsTheSameOnce) {
    form.SSTab1.UserSelect(3);
    form.Cmdeclipse_moon.UserClick();
    const std::string once = form.Text7.Text();
    form.Cmdeclipse_moon.UserClick();
    EXPECT_EQ(form.Text7.Text(), once);
}

TEST_F(MoonWindowTest, ClearEmptiesTheList) {
    form.SSTab1.UserSelect(3);
    form.Cmdeclipse_sun.UserClick();
    EXPECT_NE(form.Text7.Text(), "");
    form.Cmdclear.UserClick();
    EXPECT_EQ(form.Text7.Text(), "");
}

TEST_F(MoonWindowTest, PrintsTheWindow) {
    platform.desktop.calls.clear();
    form.Command2.UserClick();
    EXPECT_THAT(platform.desktop.calls, ElementsAre("Print Moon_Phases"));
}

TEST_F(MoonWindowTest, CloseUnloads) {
    form.cmdClose.UserClick();
    EXPECT_FALSE(form.IsLoaded());
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
}

TEST_F(MoonWindowTest, HelpOpensOverTheWindowWithTheTextOfThePack) {
    form.SkinLabel1.UserClick();
    EXPECT_TRUE(frmRamadan->IsModal());
    EXPECT_EQ(frmRamadan->Owner(), &form);
    EXPECT_EQ(frmRamadan->Caption(), "Help");
    EXPECT_EQ(frmRamadan->SkinLabel1.Caption(),
              "How to find the starting of any luner Month ( Example : Ramadan , Zul-heggah )");
    EXPECT_EQ(frmRamadan->cmdClose.Caption(), "&Close");
    EXPECT_THAT(frmRamadan->Text1.Text(), testing::StartsWith("A lunar month begins"));
    EXPECT_THAT(frmRamadan->Text1.Text(), testing::EndsWith("decide on the day."));
    frmRamadan->cmdClose.UserClick();
    EXPECT_FALSE(frmRamadan->IsLoaded());
    EXPECT_TRUE(form.IsLoaded());
}

TEST_F(MoonWindowTest, HelpWithoutAPackStaysEmpty) {
    currentLanguage = "Klingon";
    form.SkinLabel1.UserClick();
    EXPECT_EQ(frmRamadan->Text1.Text(), "");
}

TEST_F(MoonWindowTest, HelpIsThereInEveryLanguage) {
    for (const std::string& language : kShippedLanguages) {
        currentLanguage = language;
        form.SkinLabel1.UserClick();
        EXPECT_THAT(frmRamadan->Text1.Text(), Not(testing::IsEmpty())) << language;
        EXPECT_EQ(frmRamadan->Caption() == "Help", language == "English") << language;
        frmRamadan->Unload();
    }
}

}  // namespace
}  // namespace horavex
