#include "config/methods.h"

#include <set>

#include "config/angle_controls.h"
#include "config/settings_controls.h"
#include "store/angle_band.h"
#include "support/program_test.h"
#include "windows/frm_wizard.h"

namespace horavex {
namespace {

using testing::HasSubstr;

constexpr int kCustom = 0;
constexpr int kWorldLeague = 1;
constexpr int kEgypt = 2;
constexpr int kKarachi = 3;

struct MethodsTest : ProgramTest {
    MethodsTest() { StartAgain(); }

    SettingsForm& form = *HoravexMainForm;
    ComboBox& list = HoravexMainForm->cboMethod;
};

TEST_F(MethodsTest, EachHasAnglesInQuartersOfItsOwn) {
    std::set<std::pair<double, double>> pairs;
    for (const Method& method : Methods()) {
        EXPECT_EQ(method.fajrAngle * 4.0, std::floor(method.fajrAngle * 4.0));
        EXPECT_EQ(method.ishaAngle * 4.0, std::floor(method.ishaAngle * 4.0));
        EXPECT_TRUE(pairs.insert({method.fajrAngle, method.ishaAngle}).second) << method.fajrAngle;
    }
}

TEST_F(MethodsTest, ListHasTheAnglesThatUsersKnowItBy) {
    const std::vector<std::pair<double, double>> wanted = {{18.0, 17.0}, {19.5, 17.5}, {18.0, 18.0},
                                                           {15.0, 15.0}, {20.0, 18.0}, {18.0, 17.5},
                                                           {16.0, 15.0}, {12.0, 12.0}};
    std::vector<std::pair<double, double>> angles;
    for (const Method& method : Methods()) {
        angles.emplace_back(method.fajrAngle, method.ishaAngle);
    }
    EXPECT_EQ(angles, wanted);
}

TEST_F(MethodsTest, ListShowsTheConventionOfTheSliders) {
    EXPECT_EQ(list.ListCount(), static_cast<int>(Methods().size()) + 1);
    EXPECT_EQ(list.Text(), "University of Islamic Sciences, Karachi (18°/18°)");
    form.hsDepr2.UserSlide(17);
    EXPECT_EQ(list.ListIndex(), kWorldLeague);
    form.hsDepr21.UserSlide(1);
    EXPECT_EQ(list.Text(), "Custom");
}

TEST_F(MethodsTest, ChoiceMovesTheSlidersAndNothingElse) {
    const SettingsRecord before = Settings;
    list.UserSelect(kEgypt);
    EXPECT_EQ(form.hsDepr.Value(), 19);
    EXPECT_EQ(form.hsDepr1.Value(), 2);
    EXPECT_EQ(IshaAngle, 17.5);
    EXPECT_EQ(list.ListIndex(), kEgypt);
    SettingsRecord wanted = before;
    wanted.FajrAngle = 19.5;
    EXPECT_EQ(Settings, wanted);
    EXPECT_EQ(ActiveSettings.FajrAngle, 18.0);
}

TEST_F(MethodsTest, EveryChoiceInTheBandStaysChosen) {
    for (int row = 1; row < list.ListCount(); ++row) {
        list.UserSelect(kCustom);
        list.UserSelect(row);
        EXPECT_EQ(list.ListIndex(), row);
        EXPECT_EQ(Settings.FajrAngle, Methods()[static_cast<std::size_t>(row - 1)].fajrAngle);
        EXPECT_EQ(IshaAngle, Methods()[static_cast<std::size_t>(row - 1)].ishaAngle);
    }
}

TEST_F(MethodsTest, CustomMovesNothing) {
    list.UserSelect(kCustom);
    EXPECT_EQ(Settings.FajrAngle, 18.0);
    EXPECT_EQ(IshaAngle, 18.0);
}

TEST_F(MethodsTest, FourQuartersAreAWholeDegreeAndTheSlidersStay) {
    form.hsDepr.UserSlide(17);
    form.hsDepr1.UserSlide(4);
    EXPECT_EQ(list.ListIndex(), kKarachi);
    EXPECT_EQ(form.hsDepr.Value(), 17);
    EXPECT_EQ(form.hsDepr1.Value(), 4);
}

TEST_F(MethodsTest, ConventionOutsideTheBandIsRefusedWithTheReason) {
    SetDepressionLimits(4800);  // up to 15 degrees
    ASSERT_EQ(AngleBand.largest, 15);
    EXPECT_THAT(list.ItemRefusal(kKarachi), HasSubstr("degrees: 4 - 15"));
    EXPECT_EQ(list.ItemRefusal(4), "") << "both angles are 15";
    const double fajr = Settings.FajrAngle;
    list.UserSelect(kKarachi);
    EXPECT_EQ(Settings.FajrAngle, fajr);
    EXPECT_NE(list.ListIndex(), kKarachi);
}

TEST_F(MethodsTest, LimitsOfTheBandBelongToIt) {
    AngleBand = {18, 18, 17};
    EXPECT_TRUE(FitsBand({TextEntry::kCustom, 18.0, 17.0}));
    EXPECT_FALSE(FitsBand({TextEntry::kCustom, 18.25, 17.0}));
    EXPECT_FALSE(FitsBand({TextEntry::kCustom, 17.0, 16.75}));
}

TEST_F(MethodsTest, RefusalGoesWithTheNextPlace) {
    SetDepressionLimits(4800);
    SetDepressionLimits(2100);
    EXPECT_EQ(list.ItemRefusal(kKarachi), "");
}

TEST_F(MethodsTest, NamesSpeakTheLanguageOfTheTable) {
    form.lstLanguage.UserSelect(2);
    EXPECT_EQ(list.ListItem(kCustom), "Eigene Winkel");
    EXPECT_EQ(list.ListIndex(), kKarachi);
    EXPECT_EQ(form.lblMethod.Caption(), "&Methode");
    EXPECT_EQ(form.cmdComputerZone.Caption(), "&Zone dieses Computers verwenden");
}

TEST_F(MethodsTest, WizardHasTheSameList) {
    frmMain->mnuWizard.UserClick();
    EXPECT_EQ(frmWizard->cboMethod.Items(), list.Items());
    EXPECT_EQ(frmWizard->cboMethod.ListIndex(), kKarachi);
    for (int page = 1; page < 4; ++page) {
        frmWizard->cmdNext.UserClick();
    }
    frmWizard->cboMethod.UserSelect(kWorldLeague);
    EXPECT_EQ(IshaAngle, 17.0);
    EXPECT_EQ(frmWizard->hsDepr2.Value(), 17);
}

}  // namespace
}  // namespace horavex
