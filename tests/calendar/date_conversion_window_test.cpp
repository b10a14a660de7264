#include "calendar/date_conversion_window.h"

#include "base/fault.h"
#include "calendar/current_calendar.h"
#include "calendar/hijri_converter.h"
#include "lang/language_pack.h"
#include "support/program_test.h"
#include "windows/frm_date_convert.h"

namespace horavex {
namespace {

using testing::IsEmpty;

/// The window is open: a modal call of the tests' host returns at once. Today is Saturday,
/// 21 November 2026, the 11th of Jamad Thani 1448 by the published months; the arithmetic calendar
/// behind the program's own "today" has the 10th.
class DateConversionWindowTest : public ProgramTest {
protected:
    DateConversionWindowTest() {
        StartAgain();
        ShowDateConversion();
    }

    std::string Entry() const {
        return form.cboDay.Text() + "/" + form.cboMonth.Text() + "/" + form.cboYear.Text();
    }

    DateConvertForm& form = *frmDateConvert;
};

TEST_F(DateConversionWindowTest, OpensModalInFrontOfTheFace) {
    EXPECT_THAT(
        platform.desktop.calls,
        testing::ElementsAre("load frmDateConvert", "show frmDateConvert", "modal frmDateConvert"));
    EXPECT_EQ(form.Owner(), &*frmMain);
    EXPECT_TRUE(form.IsModal());
}

TEST_F(DateConversionWindowTest, OpeningConvertsTodayAtOnce) {
    EXPECT_TRUE(form.choHijri.Value());
    EXPECT_EQ(Entry(), "21/11/2026");
    EXPECT_EQ(form.lblResult.Caption(), "Saturday 11 Jamad Thani 1448 AH");
}

TEST_F(DateConversionWindowTest, ListsAreDaysMonthsAndGregorianYears) {
    EXPECT_EQ(form.cboDay.ListCount(), 31);
    EXPECT_EQ(form.cboMonth.ListCount(), 12);
    EXPECT_EQ(form.cboYear.ListItem(0), "1990");
    EXPECT_EQ(form.cboYear.ListItem(form.cboYear.ListCount() - 1), "2050");
}

TEST_F(DateConversionWindowTest, StopsTheClockAndBothTimersOfTheSettingsWindow) {
    form.Unload();
    HoravexMainForm->Timer1.SetEnabled(true);
    HoravexMainForm->UpdateCheckTimer.SetEnabled(true);
    ShowDateConversion();
    EXPECT_FALSE(frmMain->tmrUpdate.Enabled());
    EXPECT_FALSE(HoravexMainForm->Timer1.Enabled());
    EXPECT_FALSE(HoravexMainForm->UpdateCheckTimer.Enabled());
    form.cmdClose.UserClick();
    EXPECT_FALSE(form.IsLoaded());
    EXPECT_TRUE(frmMain->tmrUpdate.Enabled());
    EXPECT_FALSE(HoravexMainForm->Timer1.Enabled()) << "they stay off";
    EXPECT_FALSE(HoravexMainForm->UpdateCheckTimer.Enabled());
}

TEST_F(DateConversionWindowTest, GregorianDirectionConvertsTodaysHijriDate) {
    form.choGregorian.UserClick();
    EXPECT_EQ(CurrentCalendar, kHijriCalendar);
    EXPECT_EQ(Entry(), "10/6/1448");
    EXPECT_EQ(form.cboYear.ListItem(0), "1400");
    EXPECT_EQ(form.cboYear.ListItem(form.cboYear.ListCount() - 1), "1450");
    EXPECT_EQ(form.lblResult.Caption(), "Friday, November 20, 2026");
}

TEST_F(DateConversionWindowTest, HijriDirectionGoesBackToTheGregorianYears) {
    form.choGregorian.UserClick();
    form.choHijri.UserClick();
    EXPECT_EQ(CurrentCalendar, kGregorianCalendar);
    EXPECT_EQ(Entry(), "21/11/2026");
    EXPECT_EQ(form.cboYear.ListCount(), 61);
    EXPECT_EQ(form.lblResult.Caption(), "Saturday 11 Jamad Thani 1448 AH");
}

TEST_F(DateConversionWindowTest, ConvertsTheEnteredDate) {
    form.cboDay.UserSelect(0);
    form.cboMonth.UserSelect(0);
    form.cboYear.UserSelect(10);
    form.cmdConvert.UserClick();
    EXPECT_EQ(form.lblResult.Caption(), HijriConverter().CalculateHijri(2000, 1, 1));
    form.TodaysDate.UserClick();
    EXPECT_EQ(Entry(), "21/11/2026");
    EXPECT_EQ(form.lblResult.Caption(), "Saturday 11 Jamad Thani 1448 AH");
}

TEST_F(DateConversionWindowTest, BlanksAroundANumberDoNotCount) {
    form.cboDay.UserType(" 5 ");
    form.cmdConvert.UserClick();
    EXPECT_EQ(form.lblResult.Caption(), HijriConverter().CalculateHijri(2026, 11, 5));
}

TEST_F(DateConversionWindowTest, HijriYearBeyondTheListCanBeTyped) {
    form.choGregorian.UserClick();
    form.cboYear.UserType("1455");
    form.cmdConvert.UserClick();
    EXPECT_EQ(form.cboYear.ListIndex(), -1);
    EXPECT_EQ(form.lblResult.Caption(), HijriConverter().CalculateGregorian(1455, 6, 10));
}

TEST_F(DateConversionWindowTest, DayThatTheMonthLacksCannotStay) {
    form.cboDay.UserSelect(30);
    EXPECT_EQ(Entry(), "21/11/2026");
}

TEST_F(DateConversionWindowTest, GuardFollowsTheDirection) {
    form.choGregorian.UserClick();  // Jamad Thani has 29 days
    form.cboDay.UserType("30");
    EXPECT_EQ(form.cboDay.Text(), "10");
}

TEST_F(DateConversionWindowTest, EmptyEntryFailsAndKeepsTheResult) {
    form.cboDay.SetText("");
    EXPECT_THROW(form.cmdConvert.UserClick(), TypeMismatchFault);
    EXPECT_EQ(form.lblResult.Caption(), "Saturday 11 Jamad Thani 1448 AH");
}

TEST_F(DateConversionWindowTest, ClosingGivesTheFormerCalendarBack) {
    form.choGregorian.UserClick();
    form.UserClose();
    EXPECT_EQ(CurrentCalendar, kGregorianCalendar);
    CurrentCalendar = kHijriCalendar;
    ShowDateConversion();
    form.choHijri.UserClick();
    form.choGregorian.UserClick();
    form.choHijri.UserClick();
    form.Unload();
    EXPECT_EQ(CurrentCalendar, kHijriCalendar);
}

TEST_F(DateConversionWindowTest, LaterActivationEmptiesTheResult) {
    frmMain->UserActivate();
    form.UserActivate();
    EXPECT_EQ(form.lblResult.Caption(), "");
    EXPECT_EQ(Entry(), "21/11/2026");
}

TEST_F(DateConversionWindowTest, SpeaksTheLanguageOfThePack) {
    form.Unload();
    currentLanguage = "German";
    ShowDateConversion();
    EXPECT_EQ(form.Caption(), GetLangString("frmDateConvert", "frmDateConvert", ""));
    EXPECT_NE(form.cmdConvert.Caption(), "Convert");
    EXPECT_NE(form.lblResult.Caption(), "");
}

TEST_F(DateConversionWindowTest, WithoutTheTableOfMonthsNothingStaysStopped) {
    form.Unload();
    platform.files.Delete("/program/Dat/UQ.DAT");
    EXPECT_THROW(ShowDateConversion(), FileFault);
    EXPECT_FALSE(form.IsLoaded());
    EXPECT_TRUE(frmMain->tmrUpdate.Enabled());
    EXPECT_EQ(CurrentCalendar, kGregorianCalendar);
}

TEST_F(DateConversionWindowTest, ShowsNoMessageOfItsOwn) {
    form.choGregorian.UserClick();
    form.choHijri.UserClick();
    form.Unload();
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
}

}  // namespace
}  // namespace horavex
