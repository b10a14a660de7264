#include "config/automatic_zone.h"

#include "config/city_pick_test.h"
#include "config/commit.h"
#include "config/settings_window.h"
#include "config/wizard.h"
#include "engine/day_driver.h"
#include "engine/year_table.h"
#include "store/options.h"

namespace horavex {
namespace {

using testing::IsEmpty;

struct AutomaticZoneTest : CityPickTest {
    void SwitchOn() {
        form.chkAutomaticZone.UserClick();
        ASSERT_TRUE(AutomaticZoneIsOn());
    }

    static bool IsStored() { return ReadOption(option::kAutomaticZone) == 1; }
};

TEST_F(AutomaticZoneTest, UnlessAskedForAPickLeavesTheZoneEmpty) {
    StartAgain();
    EXPECT_FALSE(AutomaticZoneIsOn());
    Pick("new york");
    EXPECT_EQ(form.txtTimeZone.Text(), "");
    EXPECT_EQ(Settings.TimeZone, 3.0);
}

TEST_F(AutomaticZoneTest, TickFillsTheZonesControls) {
    StartAgain();
    Pick("new york");
    SwitchOn();
    EXPECT_EQ(form.txtTimeZone.Text(), "-5.00");
    EXPECT_EQ(form.chkDayLT.Value(), 1);
    EXPECT_EQ(Settings.DstStart, 67);
    EXPECT_EQ(Settings.DstEnd, 304);
}

TEST_F(AutomaticZoneTest, PickFillsTheZoneOfTheNewCity) {
    StartAgain();
    SwitchOn();
    Pick("new york");
    EXPECT_EQ(form.txtTimeZone.Text(), "-5.00");
    EXPECT_EQ(form.hsBegin.Value(), 66);
    EXPECT_EQ(Settings.DstEnd, 304);
    Pick("kathmandu");
    EXPECT_EQ(form.txtTimeZone.Text(), "+5.75");
    EXPECT_EQ(Settings.DstEnabled, 0);
    EXPECT_TRUE(AutomaticZoneIsOn());
}

TEST_F(AutomaticZoneTest, SetButtonAcceptsTheOptionWithTheValues) {
    StartAgain();
    SwitchOn();
    Pick("new york");
    EXPECT_FALSE(IsStored());
    form.SettingsSet.UserClick();
    EXPECT_TRUE(IsStored());
    EXPECT_EQ(ActiveSettings.TimeZone, -5.0);
    EXPECT_EQ(ActiveSettings.DstStart, 67);
    EXPECT_TRUE(AutomaticZoneIsOn());
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
}

TEST_F(AutomaticZoneTest, UntouchedItStoresNothing) {
    StartAgain();
    form.SettingsSet.UserClick();
    std::string value;
    EXPECT_NE(platform.registry.QueryValue("Software\\Horavex\\Options", "Automatic Zone", value),
              0);
}

TEST_F(AutomaticZoneTest, ClosingTheWindowThrowsTheTickAway) {
    StartAgain();
    ShowSettingsWindow();
    SwitchOn();
    form.UserClose();
    EXPECT_FALSE(AutomaticZoneIsOn());
    EXPECT_FALSE(IsStored());
}

TEST_F(AutomaticZoneTest, EveryEditOfTheUsersClearsTheBox) {
    StartAgain();
    Pick("new york");
    ShowSettingsWindow();
    const std::function<void()> edits[] = {
        [&] { form.txtTimeZone.UserType("4"); },   [&] { form.hsBegin.UserSlide(90); },
        [&] { form.hsEnd.UserDrag(250); },         [&] { form.chkDayLT.UserClick(); },
        [&] { form.cmdComputerZone.UserClick(); }, [&] { form.cmdDefault.UserClick(); },
    };
    for (const auto& edit : edits) {
        SwitchOn();
        edit();
        EXPECT_FALSE(AutomaticZoneIsOn()) << &edit - &edits[0];
    }
}

TEST_F(AutomaticZoneTest, ClearedAndSetTheOptionIsOffAgain) {
    StartAgain();
    SwitchOn();
    form.SettingsSet.UserClick();
    form.txtTimeZone.UserType("4");
    form.chkAutomaticZone.SetValue(0);
    form.SettingsSet.UserClick();
    EXPECT_FALSE(IsStored());
}

TEST_F(AutomaticZoneTest, OpenedAndClosedWindowsKeepTheAcceptedTick) {
    StartAgain();
    SwitchOn();
    Pick("new york");
    form.SettingsSet.UserClick();
    OpenSettings();
    EXPECT_TRUE(AutomaticZoneIsOn());
    form.UserClose();
    EXPECT_TRUE(AutomaticZoneIsOn());
    ShowWizard();
    EXPECT_EQ(wizard.chkAutomaticZone.Value(), 1);
    EXPECT_EQ(Settings.DstStart, 67) << "the wizard's own days give way to the city's";
    wizard.Command3.UserClick();
    SetAcceptedAgain();
    EXPECT_TRUE(AutomaticZoneIsOn());
    EXPECT_TRUE(IsStored());
}

TEST_F(AutomaticZoneTest, CityWhoseClockIsNotKnownShutsTheBoxAndSaysWhy) {
    StartAgain();
    EXPECT_TRUE(form.chkAutomaticZone.Enabled());
    SwitchOn();
    Pick("oslo");
    EXPECT_FALSE(form.chkAutomaticZone.Enabled());
    EXPECT_EQ(form.chkAutomaticZone.Value(), 0);
    EXPECT_EQ(form.txtTimeZone.Text(), "");
    EXPECT_EQ(form.chkAutomaticZone.ToolTipText(),
              "This computer's zone database does not have the zone of this city");
    platform.files.Delete("/program/Dat/ZI.DAT");
    Pick("new york");
    EXPECT_EQ(form.chkAutomaticZone.ToolTipText(), "No time zone is known for this city");
    ShowWizard();
    EXPECT_FALSE(wizard.chkAutomaticZone.Enabled());
}

TEST_F(AutomaticZoneTest, RefusedSetBringsTheAcceptedOptionBack) {
    StartAgain();
    SwitchOn();
    Settings.FajrAngle = 80.0;
    form.SettingsSet.UserClick();
    EXPECT_NE(CalcFailed, 0);
    EXPECT_FALSE(IsStored());
}

TEST_F(AutomaticZoneTest, EachStartBringsTheRecordUpToTheYear) {
    StartAgain();
    SwitchOn();
    Pick("new york");
    form.SettingsSet.UserClick();
    ResetProgramState();
    BindWindows();
    SetClock(2027, 6, 1, 12, 0, 0);
    Start();
    EXPECT_EQ(ActiveSettings.DstStart, 73);  // 14 March
    EXPECT_EQ(ActiveSettings.DstEnd, 310);   // 6 November
    EXPECT_EQ(Settings, ActiveSettings);
    EXPECT_TRUE(AutomaticZoneIsOn());
    LoadActiveSettings();
    EXPECT_EQ(ActiveSettings.DstStart, 73);
}

TEST_F(AutomaticZoneTest, NewYearBringsTheRecordUpBeforeItIsCalculated) {
    StartAgain();
    SwitchOn();
    Pick("new york");
    form.SettingsSet.UserClick();
    SetClock(2027, 1, 1, 0, 0, 1);
    RefreshAcceptedYear();
    EXPECT_EQ(ActiveSettings.DstStart, 73);
    EXPECT_EQ(PresentInputs().method.dstStart, 73);
    EXPECT_EQ(Settings.DstStart, 73) << "the window's own values turn with it";
}

TEST_F(AutomaticZoneTest, WithoutTheOptionARecordStaysAsItIs) {
    StartAgain();
    ActiveSettings.TimeZone = 4.0;
    SetAcceptedAgain();
    EXPECT_EQ(ActiveSettings.TimeZone, 4.0);
}

TEST_F(AutomaticZoneTest, AnotherClockThanTheComputersIsToldWithBothOffsets) {
    platform.clock.SetOffset(0.0, {1.0, false});
    StartAgain();
    EXPECT_FALSE(form.lblClocks.Visible());
    Pick("kathmandu");
    SwitchOn();
    EXPECT_EQ(form.lblClocks.Caption(), "This computer's clock: UTC+1; Kathmandu: UTC+5:45");
    Pick("new york");
    EXPECT_EQ(form.lblClocks.Caption(), "This computer's clock: UTC+1; New York City: UTC-5");
    EXPECT_TRUE(form.lblClocks.Visible());
    form.chkAutomaticZone.UserClick();
    EXPECT_FALSE(form.lblClocks.Visible());
    platform.clock.SetOffset(0.0, {-5.0, false});
    SwitchOn();
    EXPECT_FALSE(form.lblClocks.Visible());
}

TEST_F(AutomaticZoneTest, FirstRunTicksTheBoxAndLaterRunsDoNot) {
    Start();
    EXPECT_TRUE(wizard.IsLoaded());
    EXPECT_EQ(wizard.chkAutomaticZone.Value(), 1);
    EXPECT_FALSE(IsStored());
    ResetProgramState();
    BindWindows();
    Start();
    EXPECT_FALSE(AutomaticZoneIsOn());
}

TEST_F(AutomaticZoneTest, UntickedOnAFirstRunItStaysSo) {
    Start();
    wizard.chkAutomaticZone.UserClick();
    EXPECT_FALSE(AutomaticZoneIsOn());
    PickInWizard("karachi");
    EXPECT_EQ(wizard.txtTimeZone.Text(), "");
    wizard.cmdNext.UserClick();
    EXPECT_EQ(wizard.chkAutomaticZone.Value(), 0);
}

TEST_F(AutomaticZoneTest, EditsInTheWizardClearBothBoxes) {
    Start();
    wizard.cmdNext.UserClick();
    wizard.txtTimeZone.UserType("4");
    EXPECT_EQ(wizard.chkAutomaticZone.Value(), 0);
    EXPECT_FALSE(AutomaticZoneIsOn());
}

struct FirstPick {
    const char* city;
    double zone;
    std::int16_t daylight;
    const char* zuhr;  // on 21 November, by the city's clock
};

struct FirstPickTest : AutomaticZoneTest, testing::WithParamInterface<FirstPick> {};

TEST_P(FirstPickTest, FreshStartNeedsNoBoxUntilTheFinish) {
    Start();
    PickInWizard(GetParam().city);
    for (int page = 1; page < 4; ++page) {
        wizard.cmdNext.UserClick();
    }
    EXPECT_EQ(wizard.currentPage, 4);
    EXPECT_EQ(wizard.lblTime(kZuhr).Caption(), GetParam().zuhr);
    wizard.cmdNext.UserClick();
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
    EXPECT_EQ(CalcFailed, 0);
    EXPECT_EQ(ActiveSettings.CityIndex, IndexOf(GetParam().city));
    EXPECT_EQ(ActiveSettings.TimeZone, GetParam().zone);
    EXPECT_EQ(ActiveSettings.DstEnabled, GetParam().daylight);
    EXPECT_TRUE(IsStored());
    EXPECT_EQ(frmMain->lblTime(kZuhr).Caption(), GetParam().zuhr);
}

INSTANTIATE_TEST_SUITE_P(Cities, FirstPickTest,
                         testing::Values(FirstPick{"new york", -5.0, 1, "11:41 AM"},
                                         FirstPick{"london", 0.0, 1, "11:46 AM"},
                                         FirstPick{"karachi", 5.0, 0, "12:17 PM"},
                                         FirstPick{"kathmandu", 5.75, 0, "11:49 AM"},
                                         FirstPick{"auckland", 12.0, 1, "01:06 PM"}));

}  // namespace
}  // namespace horavex
