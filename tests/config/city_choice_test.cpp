#include "config/city_choice.h"

#include "base/int16.h"
#include "config/settings_window.h"
#include "geo/city_picker.h"
#include "lang/language_pack.h"
#include "store/angle_band.h"
#include "store/city_search.h"
#include "store/location_files.h"
#include "store/location_text.h"
#include "store/settings_defaults.h"
#include "support/program_test.h"
#include "windows/f_country.h"
#include "windows/frm_wizard.h"

namespace horavex {
namespace {

using testing::StartsWith;

struct CityChoiceTest : ProgramTest {
    CityChoiceTest() { StartAgain(); }

    static std::int16_t IndexOf(const std::string& text) {
        const auto cities = ListCities();
        return SearchCities(cities, text).at(0).city->cityIndex;
    }

    SettingsForm& form = *HoravexMainForm;
};

TEST_F(CityChoiceTest, AnotherCityBecomesTheWorkingPlace) {
    TakePickedCity(IndexOf("Jakarta"));
    EXPECT_EQ(Settings.CityIndex, IndexOf("Jakarta"));
    EXPECT_EQ(CityText, "Jakarta, Jakarta - Indonesia");
    EXPECT_EQ(Location.Country, "Indonesia");
    EXPECT_EQ(frmMain->lblCity.Caption(), CityText);
    EXPECT_EQ(form.lblCity.Caption(), CityText);
    EXPECT_EQ(form.lblTimeZone.Caption(), "Time Zone ( 7, 8, ...)");
    EXPECT_THAT(form.lblLocationLat.Caption(), StartsWith("Latitude: 6 degrees"));
    EXPECT_EQ(ZoneNearest, 7);
    EXPECT_EQ(ActiveSettings.CityIndex, kMeccaCityIndex) << "nothing is accepted yet";
    EXPECT_EQ(ActiveCityText, "Mecca, Mecca - Saudi Arabia");
}

TEST_F(CityChoiceTest, AnotherCityEmptiesTheZoneSoThatSettingIsRefused) {
    TakePickedCity(IndexOf("Jakarta"));
    EXPECT_EQ(form.txtTimeZone.Text(), "");
    form.SettingsSet.UserClick();
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(platform.dialogs.messages[0].text,
              "Please check the Time Zone. The nearest zone of this place is 7");
    EXPECT_EQ(ActiveSettings.CityIndex, kMeccaCityIndex);
}

TEST_F(CityChoiceTest, AnotherCityTakesTheBandAndItsDefaultForFajr) {
    TakePickedCity(IndexOf("Berlin"));
    EXPECT_LT(AngleBand.largest, 18);
    EXPECT_EQ(form.hsDepr.Max(), AngleBand.largest);
    EXPECT_EQ(form.hsDepr.Value(), AngleBand.middle);
    EXPECT_EQ(Settings.FajrAngle, AngleBand.middle);
    EXPECT_EQ(frmWizard->hsDepr2.Max(), AngleBand.largest);
    EXPECT_EQ(frmWizard->lblDeprMax.Caption(), form.lblDeprMax.Caption());
}

TEST_F(CityChoiceTest, DefaultFajrCountsThoughTheSliderStandsThereAlready) {
    ASSERT_EQ(form.hsDepr.Value(), 18);
    Settings.FajrAngle = 15.0;  // on the wizard's slider
    TakePickedCity(IndexOf("Jakarta"));
    ASSERT_EQ(AngleBand.middle, 18);
    EXPECT_EQ(Settings.FajrAngle, 18.0);
    EXPECT_EQ(form.lblDepr.Caption(), "degrees 18");
}

TEST_F(CityChoiceTest, AnotherCityTakesTheDefaultDaysOfItsHemisphere) {
    TakePickedCity(IndexOf("Cairo"));
    EXPECT_EQ(Settings.DstStart, 94);
    EXPECT_EQ(Settings.DstEnd, 297);
    EXPECT_EQ(form.hsBegin.Value(), 93);
    EXPECT_EQ(form.lblBegin.Caption(), "Saturday, April 4, 2026");
    TakePickedCity(IndexOf("Sydney"));
    EXPECT_EQ(Settings.DstStart, 297);
    EXPECT_EQ(Settings.DstEnd, 94);
    EXPECT_EQ(form.hsEnd.Value(), 93);
}

TEST_F(CityChoiceTest, SameCityChangesNothing) {
    form.hsDepr.UserSlide(15);
    const SettingsRecord before = Settings;
    TakePickedCity(kMeccaCityIndex);
    EXPECT_EQ(Settings, before);
    EXPECT_EQ(form.txtTimeZone.Text(), "+3.00");
}

TEST_F(CityChoiceTest, ZoneBoxOfAVisibleWindowTakesTheFocus) {
    TakePickedCity(IndexOf("Cairo"));
    EXPECT_FALSE(form.txtTimeZone.HasFocus());
    ShowSettingsWindow();
    TakePickedCity(IndexOf("Cairo"));
    EXPECT_TRUE(form.txtTimeZone.HasFocus());
}

TEST_F(CityChoiceTest, FaultInTheFilesChangesNothing) {
    const SettingsRecord before = Settings;
    const std::int16_t jakarta = IndexOf("Jakarta");
    platform.files.Delete("/program/Dat/CI.DAT");
    EXPECT_THROW(TakePickedCity(jakarta), FileFault);
    EXPECT_EQ(Settings, before);
    EXPECT_EQ(CityText, "Mecca, Mecca - Saudi Arabia");
    EXPECT_EQ(Location.City.Name, "Mecca");
}

TEST_F(CityChoiceTest, ButtonOpensThePickerBesideTheWindow) {
    ShowSettingsWindow();
    form.cmdChangeCity.UserClick();
    EXPECT_TRUE(fCountry->Visible());
    EXPECT_FALSE(fCountry->IsModal());
    EXPECT_EQ(fCountry->Owner(), nullptr);
    EXPECT_EQ(fCountry->lstcity.Text(), "Mecca, Mecca");
}

TEST_F(CityChoiceTest, CancelledPickerBringsTheWindowBack) {
    platform.loop.AtPump(platform.loop.Pumps() + 2, [] { fMessage->UserClose(); });
    cmdChangeCity_Click();
    EXPECT_FALSE(fCountry->IsLoaded());
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(CancelLoad, kTrue);
}

TEST_F(CityChoiceTest, PickerGoesWithTheWindowWhoseEditsAreThrownAway) {
    OpenSettings();
    form.cmdChangeCity.UserClick();
    form.UserClose();
    EXPECT_FALSE(fCountry->Visible()) << "a pick would name a city over another's times";
}

TEST_F(CityChoiceTest, PickerGoesWithTheWindowThatIsSet) {
    OpenSettings();
    form.cmdChangeCity.UserClick();
    form.SettingsSet.UserClick();
    ASSERT_FALSE(form.Visible());
    EXPECT_FALSE(fCountry->Visible());
}

TEST_F(CityChoiceTest, PickerOfTheDistanceWindowStaysWithoutTheSettings) {
    OpenSettings();
    LoadCityPicker();
    fCountry->openedFromDistance = kTrue;
    fCountry->Show();
    form.UserClose();
    EXPECT_TRUE(fCountry->Visible());
}

TEST_F(CityChoiceTest, CancelIsForgottenWhenTheWindowOpens) {
    CancelLoad = kTrue;
    frmMain->mnumSettings.UserClick();
    EXPECT_EQ(CancelLoad, kFalse);
}

TEST_F(CityChoiceTest, ArabicRewritesTheTextsOfThePlaceAndKeepsThemInTheTags) {
    currentLanguage = "ARABIC";
    TakePickedCity(IndexOf("Jakarta"));
    EXPECT_EQ(form.lblLocationLon.Caption(), "خ.طول: 106 درجة 51 دقيقة  شرق");
    EXPECT_THAT(form.lblLocationLon.Tag(), StartsWith("Longitude: 106 degrees"));
    form.cmdChangeCity.UserClick();
    EXPECT_THAT(form.lblLocationLon.Tag(), StartsWith("Longitude: 106 degrees"));
}

}  // namespace
}  // namespace horavex
