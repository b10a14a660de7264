#include "moon/rise_set_page.h"

#include "config/settings_display.h"
#include "lang/language_pack.h"
#include "moon/moon_rise_set.h"
#include "moon/moon_window.h"
#include "store/text_table.h"
#include "support/program_test.h"
#include "support/shipped_languages.h"
#include "windows/moon_phases.h"

namespace horavex {
namespace {

using testing::IsEmpty;

/// The third page of the moon window; the settings window shows Cairo in zone 2.
class RiseSetPageTest : public ProgramTest {
protected:
    RiseSetPageTest() {
        StartAgain();
        Show(3005, 3125, "+2.00");
        Open();
    }

    /// latitude and longitude: hundredths of a degree, north and east positive.
    static void Show(int latitude, int longitude, const std::string& zone) {
        Location.City.Latitude = static_cast<std::int16_t>(latitude);
        Location.City.Longitude = static_cast<std::int16_t>(longitude);
        ShowNewLocation();
        HoravexMainForm->txtTimeZone.SetText(zone);
    }

    void Open() {
        form.Unload();
        ShowMoonPhases();
        form.SSTab1.UserSelect(2);
    }

    /// Types a custom place.
    void TypePlace(const std::string& lonDeg, const std::string& lonMin, const std::string& latDeg,
                   const std::string& latMin, const std::string& zone) {
        form.optCustomLocation.UserClick();
        form.txtLongH.UserType(lonDeg);
        form.txtLongM.UserType(lonMin);
        form.txtLatH.UserType(latDeg);
        form.txtLatM.UserType(latMin);
        form.txtTimeZone.UserType(zone);
    }

    void ExpectTimes(const MoonRiseSet& times) {
        EXPECT_EQ(form.lblMoonRise.Caption(), MoonRiseText(times));
        EXPECT_EQ(form.lblMoonSet.Caption(), MoonSetText(times));
    }

    void ExpectError() {
        EXPECT_EQ(form.lblMoonRise.Caption(), "Input Error");
        EXPECT_EQ(form.lblMoonSet.Caption(), "Input Error");
    }

    void ExpectRefused(const std::string& text, MessageIcon icon = MessageIcon::kNone) {
        form.cmdCalculate.UserClick();
        ASSERT_EQ(platform.dialogs.messages.size(), 1U) << text;
        EXPECT_EQ(platform.dialogs.messages[0].text, text);
        EXPECT_EQ(platform.dialogs.messages[0].title, "Input Error");
        EXPECT_EQ(platform.dialogs.messages[0].icon, icon);
        platform.dialogs.messages.clear();
        ExpectError();
    }

    MoonPhasesForm& form = *Moon_Phases;
};

TEST_F(RiseSetPageTest, OpensWithThePlaceOfTheSettingsWindowLocked) {
    EXPECT_TRUE(form.optCurrentLocation.Value());
    EXPECT_EQ(form.txtLongH.Text(), "31");
    EXPECT_EQ(form.txtLongM.Text(), "15");
    EXPECT_EQ(form.txtLatH.Text(), "30");
    EXPECT_EQ(form.txtLatM.Text(), "3");
    EXPECT_EQ(form.txtTimeZone.Text(), "+2.00");
    EXPECT_TRUE(form.optEast.Value());
    EXPECT_TRUE(form.optNorth.Value());
    EXPECT_FALSE(form.Frame4.Enabled());
    EXPECT_FALSE(form.txtLongH.Enabled());
    EXPECT_FALSE(form.SkinLabel8.Enabled());
}

TEST_F(RiseSetPageTest, CustomPlaceUnlocksTheBoxesAndChangesNothingElse) {
    form.optCustomLocation.UserClick();
    for (const Control* control : std::initializer_list<const Control*>{
             &form.Frame4, &form.txtLongH, &form.txtLongM, &form.txtLatH, &form.txtLatM,
             &form.txtTimeZone, &form.SkinLabel4, &form.SkinLabel5, &form.SkinLabel6,
             &form.SkinLabel7, &form.SkinLabel8}) {
        EXPECT_TRUE(control->Enabled()) << control->Name();
    }
    EXPECT_EQ(form.txtLongH.Text(), "31");
    form.txtLongH.UserType("10");
    form.optCurrentLocation.UserClick();
    EXPECT_EQ(form.txtLongH.Text(), "31");
    EXPECT_FALSE(form.txtLongH.Enabled());
}

TEST_F(RiseSetPageTest, PlaceInTheNorthEastLeavesTheOptionsThatTheUserSet) {
    form.optCustomLocation.UserClick();
    form.optWest.UserClick();
    form.optSouth.UserClick();
    form.optCurrentLocation.UserClick();
    EXPECT_TRUE(form.optWest.Value());
    EXPECT_TRUE(form.optSouth.Value());
    form.cmdCalculate.UserClick();
    ExpectTimes(MoonRiseSetTimes({2026, 11, 21}, {30, 3, 31, 15}, 2.0));
}

TEST_F(RiseSetPageTest, PlaceInTheSouthWestSetsItsOptions) {
    Show(-3460, -5845, "-3.00");
    Open();
    EXPECT_TRUE(form.optWest.Value());
    EXPECT_TRUE(form.optSouth.Value());
    EXPECT_EQ(form.txtLongH.Text(), "58");
    EXPECT_EQ(form.txtLatM.Text(), "36");
    EXPECT_EQ(form.txtTimeZone.Text(), "-3.00");
    form.cmdCalculate.UserClick();
    ExpectTimes(MoonRiseSetTimes({2026, 11, 21}, {-34, -36, -58, -27}, -3.0));
}

TEST_F(RiseSetPageTest, WesternPlaceOfLessThanADegreeIsWestern) {
    Show(5150, -12, "+0.00");
    Open();
    EXPECT_TRUE(form.optWest.Value());
    EXPECT_EQ(form.txtLongM.Text(), "7");
}

TEST_F(RiseSetPageTest, PlaceIsTheSameInEveryPackAndLanguageOfTheTexts) {
    for (const std::string& pack : kShippedLanguages) {
        for (std::int16_t language = 1; language <= kTextLanguages; ++language) {
            SCOPED_TRACE(pack + " with the texts " + std::to_string(language));
            currentLanguage = pack;
            Settings.Language = language;
            Show(-3460, -5845, "-3.00");
            Open();
            EXPECT_TRUE(form.optWest.Value());
            EXPECT_TRUE(form.optSouth.Value());
            EXPECT_EQ(form.txtLongH.Text(), "58");
            form.cmdCalculate.UserClick();
            ExpectTimes(MoonRiseSetTimes({2026, 11, 21}, {-34, -36, -58, -27}, -3.0));
            Show(3005, 3125, "+2.00");
            Open();
            EXPECT_TRUE(form.optEast.Value());
            EXPECT_TRUE(form.optNorth.Value());
            form.cmdCalculate.UserClick();
            ExpectTimes(MoonRiseSetTimes({2026, 11, 21}, {30, 3, 31, 15}, 2.0));
        }
    }
}

TEST_F(RiseSetPageTest, PlaceIsMeccaAgainWhenAnotherPickIsThrownAway) {
    currentLanguage = "Arabic";
    Show(-3460, -5845, "-3.00");
    HoravexMainForm->UserClose();
    Open();
    EXPECT_EQ(form.txtLatH.Text(), "21");
    EXPECT_TRUE(form.optNorth.Value());
    EXPECT_EQ(form.txtLongH.Text(), "39");
    EXPECT_TRUE(form.optEast.Value());
    EXPECT_EQ(form.txtTimeZone.Text(), "+3.00");
}

TEST_F(RiseSetPageTest, DateIsTodayAndTheListsReachFarther) {
    EXPECT_EQ(form.cboDay.Text(), "21");
    EXPECT_EQ(form.cboMonth.Text(), "11");
    EXPECT_EQ(form.cboYear.Text(), "2026");
    EXPECT_EQ(form.cboDay.ListCount(), 31);
    EXPECT_EQ(form.cboMonth.ListCount(), 12);
    EXPECT_EQ(form.cboYear.ListItem(0), "2004");
    EXPECT_EQ(form.cboYear.ListItem(form.cboYear.ListCount() - 1), "2050");
}

TEST_F(RiseSetPageTest, CurrentLocationIsTheOneThatTheSettingsWindowTells) {
    const std::string longitude = form.txtLongH.Text();
    Location.City.Longitude = 12000;  // looked up, and not on view
    form.optCustomLocation.UserClick();
    form.optCurrentLocation.UserClick();
    EXPECT_EQ(form.txtLongH.Text(), longitude);
}

TEST_F(RiseSetPageTest, CurrentLocationGoesBackToToday) {
    form.cboDay.UserSelect(4);
    form.chkDayLightSaving.UserClick();
    form.optCustomLocation.UserClick();
    EXPECT_EQ(form.cboDay.Text(), "5");
    form.optCurrentLocation.UserClick();
    EXPECT_EQ(form.cboDay.Text(), "21");
    EXPECT_EQ(form.chkDayLightSaving.Value(), 0);
}

TEST_F(RiseSetPageTest, DayThatTheMonthLacksCannotStay) {
    form.cboDay.UserSelect(30);
    EXPECT_EQ(form.cboDay.Text(), "21");
}

TEST_F(RiseSetPageTest, DaylightTickLeavesBothBoundsOut) {
    const auto tickFor = [&](int start, int end) {
        Settings.DstEnabled = 1;
        Settings.DstStart = static_cast<std::int16_t>(start);
        Settings.DstEnd = static_cast<std::int16_t>(end);
        Open();
        return form.chkDayLightSaving.Value();
    };
    constexpr int kToday = 325;
    EXPECT_EQ(tickFor(kToday - 1, kToday + 1), 1);
    EXPECT_EQ(tickFor(kToday, kToday + 1), 0);
    EXPECT_EQ(tickFor(kToday - 1, kToday), 0);
    EXPECT_EQ(tickFor(300, 60), 0) << "a southern summer never ticks it";
    Settings.DstStart = 300;
    Settings.DstEnd = 340;
    Settings.DstEnabled = -1;
    Open();
    EXPECT_EQ(form.chkDayLightSaving.Value(), 0);
}

TEST_F(RiseSetPageTest, CalculatesForTheCurrentPlace) {
    form.cmdCalculate.UserClick();
    ExpectTimes(MoonRiseSetTimes({2026, 11, 21}, {30, 3, 31, 15}, 2.0));
    EXPECT_THAT(form.lblMoonRise.Caption(), testing::StartsWith("Moon Rise at:"));
    EXPECT_THAT(form.lblMoonSet.Caption(), testing::StartsWith("Moon Set at:"));
}

TEST_F(RiseSetPageTest, CurrentPlaceDoesNotLookAtTheBoxes) {
    form.txtLatH.SetText("x");
    form.cmdCalculate.UserClick();
    ExpectTimes(MoonRiseSetTimes({2026, 11, 21}, {30, 3, 31, 15}, 2.0));
}

TEST_F(RiseSetPageTest, CalculatesForTheChosenDayAndTheTypedPlace) {
    TypePlace(" 0 ", "7", "51", "30", "0");
    form.optWest.UserClick();
    form.cboDay.UserSelect(0);
    form.cboMonth.UserSelect(5);
    form.cboYear.UserSelect(0);
    form.cmdCalculate.UserClick();
    ExpectTimes(MoonRiseSetTimes({2004, 6, 1}, {51, 30, 0, -7}, 0.0));
    EXPECT_EQ(form.txtLongH.Text(), "0") << "boxes are trimmed";
}

TEST_F(RiseSetPageTest, SouthernTypedPlaceIsNegative) {
    TypePlace("151", "12", "33", "52", "10");
    form.optEast.UserClick();
    form.optSouth.UserClick();
    form.cmdCalculate.UserClick();
    ExpectTimes(MoonRiseSetTimes({2026, 11, 21}, {-33, -52, 151, 12}, 10.0));
}

TEST_F(RiseSetPageTest, DaylightSavingAddsAnHourWithoutAWrapAtMidnight) {
    TypePlace("31", "15", "30", "3", "2");
    bool wentBeyond = false;
    for (int day = 1; day <= 30; ++day) {
        form.cboDay.UserSelect(day - 1);
        form.chkDayLightSaving.SetValue(1);
        form.cmdCalculate.UserClick();
        MoonRiseSet times = MoonRiseSetTimes({2026, 11, day}, {30, 3, 31, 15}, 2.0);
        wentBeyond = wentBeyond || times.rise.hour == 23;
        AddDaylightHour(times);
        ExpectTimes(times);
    }
    EXPECT_TRUE(wentBeyond) << "no rise at 23 hours in that month";
}

TEST_F(RiseSetPageTest, EachBlankBoxIsRefused) {
    for (TextBox* box :
         {&form.txtLongH, &form.txtLongM, &form.txtLatH, &form.txtLatM, &form.txtTimeZone}) {
        TypePlace("31", "15", "30", "3", "2");
        box->UserType("  ");
        ExpectRefused("Please, Fill all text boxes first", MessageIcon::kExclamation);
    }
}

TEST_F(RiseSetPageTest, RangesAreRefusedInTheirOrder) {
    TypePlace("31", "15", "91", "3", "2");
    ExpectRefused("Latitude range is 0 to 90");
    form.optSouth.UserClick();
    ExpectRefused("Latitude range is 0 to 90");
    TypePlace("181", "60", "30", "3", "13");
    form.optWest.UserClick();
    ExpectRefused("Longitude range is 0 to 180");
    form.txtLongH.UserType("180");
    ExpectRefused("Minites rang is 0 to 59");
    form.txtLongM.UserType("59");
    form.txtLatM.UserType("60");
    ExpectRefused("Minites rang is 0 to 59");
    form.txtLatM.UserType("59");
    ExpectRefused("Time Zone range is -12 to 12");
    form.txtTimeZone.UserType("-12.5");
    ExpectRefused("Time Zone range is -12 to 12");
}

TEST_F(RiseSetPageTest, LastZonesOfEitherSidePass) {
    for (const char* zone : {"-12", "12"}) {
        TypePlace("31", "15", "30", "3", zone);
        form.cmdCalculate.UserClick();
        EXPECT_THAT(platform.dialogs.messages, IsEmpty()) << zone;
        ExpectTimes(MoonRiseSetTimes({2026, 11, 21}, {30, 3, 31, 15}, std::stod(zone)));
    }
}

TEST_F(RiseSetPageTest, BlankBoxesAndRangesHaveTitlesOfTheirOwn) {
    platform.files.WriteWhole("/program/lang/Own.ini", BytesOf("[msg]\n2=two\n4=four\n"));
    currentLanguage = "Own";
    TypePlace("31", "15", "91", "3", "2");
    form.cmdCalculate.UserClick();
    form.txtLatH.UserType("");
    form.cmdCalculate.UserClick();
    ASSERT_EQ(platform.dialogs.messages.size(), 2U);
    EXPECT_EQ(platform.dialogs.messages[0].title, "four");
    EXPECT_EQ(platform.dialogs.messages[1].title, "two");
    EXPECT_EQ(form.lblMoonRise.Caption(), "four");
}

TEST_F(RiseSetPageTest, LongitudeBeyond180EastPasses) {
    TypePlace("200", "0", "30", "3", "2");
    form.optEast.UserClick();
    form.cmdCalculate.UserClick();
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
    ExpectTimes(MoonRiseSetTimes({2026, 11, 21}, {30, 3, 200, 0}, 2.0));
}

TEST_F(RiseSetPageTest, EitherPolePassesAndEndsAsAnError) {
    TypePlace("31", "15", "90", "0", "2");
    for (OptionButton* pole : {&form.optNorth, &form.optSouth}) {
        pole->SetValue(true);
        form.lblMoonRise.SetCaption("");
        form.lblMoonSet.SetCaption("");
        form.cmdCalculate.UserClick();
        EXPECT_THAT(platform.dialogs.messages, IsEmpty());
        ExpectError();
    }
}

TEST_F(RiseSetPageTest, TextThatIsNoNumberIsAnErrorWithoutAMessage) {
    TypePlace("x", "15", "30", "3", "2");
    form.cmdCalculate.UserClick();
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
    ExpectError();
    TypePlace("40000", "15", "30", "3", "2");
    form.cmdCalculate.UserClick();
    ExpectError();
}

TEST_F(RiseSetPageTest, EmptyDateIsAnError) {
    form.cboDay.SetText("");
    form.cmdCalculate.UserClick();
    ExpectError();
}

TEST_F(RiseSetPageTest, ErrorTextIsThePacks) {
    currentLanguage = "German";
    TypePlace("31", "15", "90", "0", "2");
    form.cmdCalculate.UserClick();
    EXPECT_EQ(form.lblMoonRise.Caption(), GetLangString("msg", "4", ""));
    EXPECT_NE(form.lblMoonRise.Caption(), "Input Error");
}

TEST_F(RiseSetPageTest, CustomPlaceLastsUntilTheWindowCloses) {
    TypePlace("10", "0", "20", "0", "1");
    Open();
    EXPECT_TRUE(form.optCurrentLocation.Value());
    EXPECT_EQ(form.txtLongH.Text(), "31");
}

}  // namespace
}  // namespace horavex
