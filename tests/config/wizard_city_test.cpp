#include "config/wizard_city.h"

#include "config/city_pick_test.h"
#include "config/computer_city.h"
#include "config/wizard.h"
#include "config/working_options.h"
#include "store/location_files.h"

namespace horavex {
namespace {

using testing::IsEmpty;

struct WizardCityTest : CityPickTest {
    std::string OfferedCity() {
        LocationRecord place;
        const auto city = CityOfComputersZone();
        return city ? LookupLocation(*city, place) : "";
    }
};

TEST_F(WizardCityTest, CityOfTheZoneIsItsLargest) {
    platform.whereabouts.zoneNames = {"Europe/Berlin"};
    EXPECT_EQ(OfferedCity(), "Berlin, Berlin - Germany");
}

TEST_F(WizardCityTest, CountryOfTheLocaleComesBeforeTheSize) {
    platform.whereabouts.zoneNames = {"Europe/Zurich"};
    platform.whereabouts.country = "switzerland";
    EXPECT_EQ(OfferedCity(), "Zürich, Zurich - Switzerland");
    platform.whereabouts.country = "Japan";
    EXPECT_EQ(OfferedCity(), "Zürich, Zurich - Switzerland") << "which has no city there";
    platform.whereabouts.zoneNames = {"Asia/Bangkok"};
    platform.whereabouts.country = "";
    EXPECT_EQ(OfferedCity(), "Bangkok, Bangkok - Thailand");
}

TEST_F(WizardCityTest, ZoneUnderAFormerNameIsFoundByItsPresentOne) {
    platform.whereabouts.zoneNames = {"Asia/Calcutta", "Asia/Kolkata"};
    EXPECT_EQ(OfferedCity(), "Mumbai, Maharashtra - India");
}

TEST_F(WizardCityTest, NothingIsOfferedWhereNoCityFits) {
    EXPECT_EQ(OfferedCity(), "");
    platform.whereabouts.zoneNames = {"Etc/UTC"};
    EXPECT_EQ(OfferedCity(), "");
    Start();
    EXPECT_FALSE(wizard.cmdMyCity.Visible());
    EXPECT_FALSE(wizard.cmdLocate.Visible());
}

TEST_F(WizardCityTest, DamagedDataOffersNothing) {
    platform.whereabouts.zoneNames = {"Europe/Berlin"};
    platform.files.WriteWhole("/program/Dat/Z.DAT", BytesOf("x"));
    Start();
    EXPECT_TRUE(wizard.IsLoaded());
    EXPECT_FALSE(wizard.cmdMyCity.Visible());
}

TEST_F(WizardCityTest, OfferOfAnEarlierOpeningGoesWithItsData) {
    platform.whereabouts.zoneNames = {"Europe/Berlin"};
    Start();
    ASSERT_TRUE(wizard.cmdMyCity.Visible());
    wizard.Command3.UserClick();
    platform.files.WriteWhole("/program/Dat/Z.DAT", BytesOf("x"));
    ShowWizard();
    EXPECT_FALSE(wizard.cmdMyCity.Visible());
}

// The desktop's location service.

struct LocateTest : WizardCityTest {
    LocateTest() {
        platform.whereabouts.canLocate = true;
        Start();
    }
};

TEST_F(LocateTest, NothingIsAskedUntilTheButtonIsPressed) {
    EXPECT_TRUE(wizard.cmdLocate.Visible());
    EXPECT_FALSE(platform.whereabouts.IsAsked());
    wizard.cmdLocate.UserClick();
    EXPECT_TRUE(platform.whereabouts.IsAsked());
    EXPECT_TRUE(wizard.lblLocating.Visible());
    EXPECT_FALSE(wizard.cmdLocate.Enabled());
}

TEST_F(LocateTest, PositionPicksTheNearestCity) {
    wizard.cmdLocate.UserClick();
    platform.whereabouts.Tell(EarthPosition{40.71, -74.01});
    EXPECT_EQ(wizard.lblPickedCity.Caption(), "New York City, New York - United States");
    EXPECT_EQ(wizard.lblPlace.Caption(), "New York City: America/New_York, UTC-5");
    EXPECT_EQ(Settings.FajrAngle, 15.0);
    EXPECT_FALSE(wizard.lblLocating.Visible());
    EXPECT_TRUE(wizard.cmdLocate.Enabled());
}

TEST_F(LocateTest, NoAnswerIsToldAndTheButtonCanBePressedAgain) {
    wizard.cmdLocate.UserClick();
    platform.whereabouts.Tell(std::nullopt);
    EXPECT_TRUE(wizard.lblNotLocated.Visible());
    EXPECT_FALSE(wizard.lblPicked.Visible());
    wizard.cmdLocate.UserClick();
    EXPECT_FALSE(wizard.lblNotLocated.Visible());
}

TEST_F(LocateTest, AnotherPickEndsTheQuestion) {
    wizard.cmdLocate.UserClick();
    PickInWizard("karachi");
    EXPECT_FALSE(platform.whereabouts.IsAsked());
    EXPECT_TRUE(wizard.cmdLocate.Enabled());
    EXPECT_EQ(wizard.lblPickedCity.Caption(), "Karachi, Sindh - Pakistan");
}

TEST_F(LocateTest, ClosedWizardEndsTheQuestion) {
    wizard.cmdLocate.UserClick();
    wizard.Command3.UserClick();
    EXPECT_FALSE(platform.whereabouts.IsAsked());
}

// A first run by the button of the computer's city. The times are those of the command line, which
// takes a city's usual choices by a way of its own.

struct HomeCity {
    const char* zone;
    const char* country;  // of the locale
    const char* city;
    std::array<const char*, 6> times;  // on the face, 21 November 2026
};

struct FiveClicksTest : WizardCityTest, testing::WithParamInterface<HomeCity> {
    FiveClicksTest() {
        AddZone("Europe/Oslo", kHour);
        AddZone("Africa/Casablanca", kHour);
    }
};

TEST_P(FiveClicksTest, LeadToTheRightFace) {
    platform.whereabouts.zoneNames = {GetParam().zone};
    platform.whereabouts.country = GetParam().country;
    Start();
    EXPECT_EQ(wizard.cmdMyCity.Caption(), std::string("M&y city: ") + GetParam().city);
    wizard.cmdMyCity.UserClick();
    EXPECT_TRUE(wizard.cmdNext.HasFocus());
    for (int click = 0; click < 4; ++click) {
        wizard.cmdNext.UserClick();
    }
    EXPECT_FALSE(wizard.IsLoaded());
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
    EXPECT_EQ(ActiveCityText, GetParam().city);
    EXPECT_EQ(frmMain->lblCity.Caption(), GetParam().city);
    for (std::size_t prayer = 0; prayer < 6; ++prayer) {
        EXPECT_EQ(frmMain->lblTime(static_cast<int>(prayer)).Caption(), GetParam().times[prayer])
            << prayer;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Homes, FiveClicksTest,
    testing::Values(
        HomeCity{"America/New_York",
                 "United States",
                 "New York City, New York - United States",
                 {"05:30 AM", "06:49 AM", "11:41 AM", "02:13 PM", "04:33 PM", "05:53 PM"}},
        HomeCity{"Europe/London",
                 "United Kingdom",
                 "London, England - United Kingdom",
                 {"05:29 AM", "07:28 AM", "11:46 AM", "01:42 PM", "04:03 PM", "05:55 PM"}},
        HomeCity{"Europe/Oslo",
                 "Norway",
                 "Oslo, Oslo - Norway",
                 {"06:04 AM †", "08:28 AM", "12:02 PM", "01:19 PM", "03:36 PM", "06:01 PM"}},
        HomeCity{"Asia/Riyadh",
                 "Saudi Arabia",
                 "Riyadh, Riyadh - Saudi Arabia",
                 {"04:51 AM", "06:13 AM", "11:38 AM", "02:43 PM", "05:04 PM", "06:34 PM"}},
        HomeCity{"Asia/Karachi",
                 "Pakistan",
                 "Karachi, Sindh - Pakistan",
                 {"05:32 AM", "06:52 AM", "12:17 PM", "04:07 PM", "05:42 PM", "07:02 PM"}},
        HomeCity{"Asia/Jakarta",
                 "Indonesia",
                 "Jakarta, Jakarta - Indonesia",
                 {"04:04 AM", "05:23 AM", "11:41 AM", "03:03 PM", "05:53 PM", "07:07 PM"}},
        HomeCity{"Asia/Kathmandu",
                 "Nepal",
                 "Kathmandu, Bagmati - Nepal",
                 {"05:07 AM", "06:29 AM", "11:49 AM", "02:49 PM", "05:09 PM", "06:26 PM"}},
        HomeCity{"Africa/Casablanca",
                 "Morocco",
                 "Casablanca, Casablanca-Settat - Morocco",
                 {"06:35 AM", "08:04 AM", "01:21 PM", "04:04 PM", "06:28 PM", "07:46 PM"}},
        HomeCity{"Pacific/Auckland",
                 "New Zealand",
                 "Auckland, Auckland - New Zealand",
                 {"04:15 AM", "05:59 AM", "01:06 PM", "04:56 PM", "08:14 PM", "09:52 PM"}}),
    [](const auto& home) {
        std::string name = home.param.zone;
        std::erase_if(name, [](char c) { return c == '/' || c == '_'; });
        return name;
    });

TEST_F(WizardCityTest, TownOfTheZoneThatIsNotItsLargestTakesAPickMore) {
    AddZone("Europe/Oslo", kHour);
    platform.whereabouts.zoneNames = {"Europe/Oslo"};
    platform.whereabouts.country = "Norway";
    Start();
    PickInWizard("tromso");
    for (int click = 0; click < 4; ++click) {
        wizard.cmdNext.UserClick();
    }
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
    EXPECT_EQ(ActiveCityText, "Tromsø, Troms - Norway");
    EXPECT_EQ(frmMain->lblTime(kFajr).Caption(), "07:05 AM †");
    EXPECT_EQ(frmMain->lblTime(kMaghrib).Caption(), "12:52 PM");
}

}  // namespace
}  // namespace horavex
