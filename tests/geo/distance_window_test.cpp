#include "geo/distance_window.h"

#include "base/fault.h"
#include "base/number_text.h"
#include "geo/city_picker.h"
#include "geo/distance.h"
#include "lang/language_pack.h"
#include "store/distance_options.h"
#include "store/location_record.h"
#include "support/program_test.h"
#include "windows/f_country.h"
#include "windows/frm_distance.h"

namespace horavex {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class DistanceWindowTest : public ProgramTest {
protected:
    DistanceWindowTest() {
        StartAgain();
        ShowDistance();
    }

    std::vector<TextBox*> Boxes() {
        return {&form.txtDegALong, &form.txtMinALong, &form.txtSecALong, &form.txtDegALat,
                &form.txtMinALat,  &form.txtSecALat,  &form.txtDegBLong, &form.txtMinBLong,
                &form.txtSecBLong, &form.txtDegBLat,  &form.txtMinBLat,  &form.txtSecBLat};
    }

    std::vector<std::string> Texts() {
        std::vector<std::string> texts;
        for (const TextBox* box : Boxes()) {
            texts.push_back(box->Text());
        }
        return texts;
    }

    void Type(const std::vector<std::string>& texts) {
        for (std::size_t i = 0; i < texts.size(); ++i) {
            Boxes()[i]->UserType(texts[i]);
        }
    }

    void ChooseNorthEast() {
        for (OptionButton* option :
             {&form.CityAEast, &form.CityANorth, &form.CityBEast, &form.CityBNorth}) {
            option->UserClick();
        }
    }

    /// Two cities a degree apart on the equator, in kilometres.
    void FillIn() {
        Type({"0", "0", "0", "0", "0", "0", "1", "0", "0", "0", "0", "0"});
        ChooseNorthEast();
        form.optKilometers.UserClick();
    }

    double Result() { return TextToNumber(form.txtDistanceRsult.Text()); }

    const RecordingDialogs::Message& OnlyMessage() {
        EXPECT_EQ(platform.dialogs.messages.size(), 1U);
        return platform.dialogs.messages.at(0);
    }

    void ExpectRefusedBoxes() {
        form.cmdCalcDistance.UserClick();
        EXPECT_EQ(OnlyMessage().text, "Please, Fill in all text boxes with valid values.");
        EXPECT_EQ(OnlyMessage().title, "Form field is empty!");
        EXPECT_EQ(OnlyMessage().icon, MessageIcon::kExclamation);
        EXPECT_EQ(form.txtDistanceRsult.Text(), "");
        platform.dialogs.messages.clear();
    }

    DistanceForm& form = *frmDistance;
};

TEST_F(DistanceWindowTest, OpensWithTwoCitiesAndNothingElse) {
    EXPECT_TRUE(form.IsModal());
    EXPECT_TRUE(form.OptionTwoCities.Value());
    EXPECT_EQ(form.lblCityA.Caption(), "City A is here");
    EXPECT_EQ(form.lblCityB.Caption(), "City B is here");
    EXPECT_EQ(form.metricsLabel.Caption(), "");
    EXPECT_THAT(Texts(), Each(""));
}

TEST_F(DistanceWindowTest, DegreeOnTheEquator) {
    FillIn();
    form.cmdCalcDistance.UserClick();
    EXPECT_NEAR(Result(), 111.3, 0.05);
    EXPECT_EQ(form.metricsLabel.Caption(), "Kilometers");
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
}

TEST_F(DistanceWindowTest, SaysDistanceAndDirectionInOneLine) {
    EXPECT_EQ(form.lblSummary.Caption(), "");
    FillIn();
    form.cmdCalcDistance.UserClick();
    EXPECT_EQ(form.lblSummary.Caption(), "111 kilometers, 90\u00b000\u2032 clockwise from north");
    form.cmdDistanceClear.UserClick();
    EXPECT_EQ(form.lblSummary.Caption(), "");
}

TEST_F(DistanceWindowTest, NamesMeccaInThePlaceOfTheSecondCity) {
    EXPECT_FALSE(form.lblMecca.Visible());
    form.OptionDistanceToMecca.UserClick();
    EXPECT_TRUE(form.lblMecca.Visible());
    EXPECT_FALSE(form.lblCityB.Visible());
    form.cmdDistanceClear.UserClick();
    EXPECT_FALSE(form.lblMecca.Visible());
    EXPECT_TRUE(form.lblCityB.Visible());
}

TEST_F(DistanceWindowTest, BeginsWithTheAcceptedCityWhereAnOptionAsksForIt) {
    form.Unload();
    SaveOption(option::kDistanceFromHere, 1);
    ShowDistance();
    EXPECT_EQ(form.lblCityA.Caption(), ActiveCityText);
    EXPECT_EQ(form.txtDegALat.Text(), "21");
    EXPECT_TRUE(form.CityANorth.Value());
    EXPECT_TRUE(form.optKilometers.Value());
    EXPECT_EQ(form.txtDegBLat.Text(), "");
}

TEST_F(DistanceWindowTest, CityBCannotBeChangedWhereItIsMecca) {
    form.OptionDistanceToMecca.UserClick();
    EXPECT_FALSE(form.cmdCityB.Enabled());
    EXPECT_FALSE(form.txtDegBLong.Enabled());
    form.OptionTwoCities.UserClick();
    EXPECT_TRUE(form.cmdCityB.Enabled());
    form.OptionDistanceToMecca.UserClick();
    form.cmdDistanceClear.UserClick();
    EXPECT_TRUE(form.txtDegBLong.Enabled());
}

TEST_F(DistanceWindowTest, EqualPointsAreNothingApart) {
    FillIn();
    form.txtDegBLong.UserType("0");
    form.cmdCalcDistance.UserClick();
    EXPECT_EQ(form.txtDistanceRsult.Text(), "0");
}

TEST_F(DistanceWindowTest, MilesDifferByTheirFixedFactor) {
    FillIn();
    form.cmdCalcDistance.UserClick();
    const double kilometres = Result();
    form.optMiles.UserClick();
    form.cmdCalcDistance.UserClick();
    const double miles = Result();
    EXPECT_EQ(form.metricsLabel.Caption(), "Miles");
    EXPECT_NEAR(miles, kilometres * 1000.0 / 1609.344, 1e-10);
    form.optNauticalMiles.UserClick();
    form.cmdCalcDistance.UserClick();
    EXPECT_EQ(form.metricsLabel.Caption(), "Nautical Miles");
    EXPECT_NEAR(Result(), miles * 0.8689927583936801, 1e-10);
}

TEST_F(DistanceWindowTest, WestAndSouthPutTheirSignIntoAllThreeBoxes) {
    Type({"31", "15", "0.5", "30", "3", "0"});
    form.CityAWest.UserClick();
    form.CityASouth.UserClick();
    EXPECT_EQ(form.txtDegALong.Text(), "-31");
    EXPECT_EQ(form.txtMinALong.Text(), "-15");
    EXPECT_EQ(form.txtSecALong.Text(), "-0.5");
    EXPECT_EQ(form.txtSecALat.Text(), "0") << "nothing has no sign";
    form.CityAEast.UserClick();
    EXPECT_EQ(form.txtDegALong.Text(), "31");
    EXPECT_EQ(form.txtSecALong.Text(), "0.5");
    EXPECT_EQ(form.txtMinALat.Text(), "-3") << "the other coordinate stays";
}

TEST_F(DistanceWindowTest, HemisphereOfAnUnfilledCoordinateIsRefused) {
    struct Case {
        OptionButton* option;
        const char* text;
    };
    const Case cases[] = {{&form.CityAEast, "Please fill in City A's Longitude"},
                          {&form.CityAWest, "Please fill in City A's Longitude"},
                          {&form.CityANorth, "Please fill in City A's Latitude"},
                          {&form.CityASouth, "Please fill in City A's Latitude"},
                          {&form.CityBEast, "Please fill in City B's Longitude"},
                          {&form.CityBWest, "Please fill in City B's Longitude"},
                          {&form.CityBNorth, "Please fill in City B's Latitude"},
                          {&form.CityBSouth, "Please fill in City B's Latitude"}};
    for (const Case& refused : cases) {
        platform.dialogs.messages.clear();
        refused.option->UserClick();
        EXPECT_EQ(OnlyMessage().text, refused.text);
        EXPECT_EQ(OnlyMessage().title, "Form field is empty!");
        EXPECT_FALSE(refused.option->Value()) << refused.text;
    }
}

TEST_F(DistanceWindowTest, HemisphereOfATextThatIsNoNumberIsRefused) {
    Type({"31", "x", "0"});
    form.CityAEast.UserClick();
    EXPECT_FALSE(form.CityAEast.Value());
    EXPECT_EQ(OnlyMessage().text, "Please fill in City A's Longitude");
}

TEST_F(DistanceWindowTest, MessagesOfCityBAreNotTranslated) {
    currentLanguage = "German";
    form.CityAEast.UserClick();
    EXPECT_NE(OnlyMessage().text, "Please fill in City A's Longitude");
    platform.dialogs.messages.clear();
    form.CityBEast.UserClick();
    form.CityBNorth.UserClick();
    EXPECT_EQ(platform.dialogs.messages[0].text, "Please fill in City B's Longitude");
    EXPECT_EQ(platform.dialogs.messages[1].text, "Please fill in City B's Latitude");
}

TEST_F(DistanceWindowTest, EachEmptyBoxStopsTheCalculationBeforeTheUnitIsLookedAt) {
    for (std::size_t i = 0; i < Boxes().size(); ++i) {
        FillIn();
        form.optKilometers.SetValue(false);
        Boxes()[i]->UserType("");
        ExpectRefusedBoxes();
    }
}

TEST_F(DistanceWindowTest, EachMissingHemisphereStopsTheCalculation) {
    for (OptionButton* option :
         {&form.CityAEast, &form.CityANorth, &form.CityBEast, &form.CityBNorth}) {
        FillIn();
        option->SetValue(false);
        form.optKilometers.SetValue(false);
        ExpectRefusedBoxes();
    }
}

TEST_F(DistanceWindowTest, MissingUnitStopsTheCalculationBeforeNumbersAreLookedAt) {
    FillIn();
    form.optKilometers.SetValue(false);
    form.txtDegALat.UserType("x");
    form.cmdCalcDistance.UserClick();
    EXPECT_EQ(OnlyMessage().text,
              "Please choose the correct out type metrics (Kilometers, Miles or Nautical Miles!");
    EXPECT_EQ(OnlyMessage().title, "Form field not checked!");
    EXPECT_EQ(OnlyMessage().icon, MessageIcon::kNone);
}

TEST_F(DistanceWindowTest, TextThatIsNoNumberStopsTheCalculation) {
    FillIn();
    form.txtSecBLat.UserType("x");
    ExpectRefusedBoxes();
}

TEST_F(DistanceWindowTest, SignsFollowTheOptionsWhateverWasTypedAfterwards) {
    FillIn();
    form.CityBWest.UserClick();
    form.txtDegBLong.UserType("1");
    form.txtDegALong.UserType("-1");
    form.cmdCalcDistance.UserClick();
    EXPECT_EQ(form.txtDegBLong.Text(), "-1");
    EXPECT_EQ(form.txtDegALong.Text(), "1");
    EXPECT_NEAR(Result(), 2 * 111.3, 0.1);
}

TEST_F(DistanceWindowTest, CoordinatesGoThroughFifteenDigits) {
    FillIn();
    Type({"10", "20", "30", "1", "2", "3"});
    form.cmdCalcDistance.UserClick();
    const DistancePoints points = {.DistanceLatA = 1.0 + 0.0333333333333333 + 8.33333333333333E-04,
                                   .DistanceLonA = 10.0 + 0.333333333333333 + 8.33333333333333E-03,
                                   .DistanceLatB = 0.0,
                                   .DistanceLonB = 1.0};
    EXPECT_EQ(form.txtDistanceRsult.Text(), NumberToText(DistanceKilometres(points)));
}

TEST_F(DistanceWindowTest, PointsHalfwayAroundTheEquatorAreNotQuiteOpposite) {
    FillIn();
    form.txtDegBLong.UserType("180");
    // Half of 180 degrees is not quite a right angle in 64 bits.
    EXPECT_NO_THROW(form.cmdCalcDistance.UserClick());
    EXPECT_NEAR(Result(), 20037.5, 1.0);
}

TEST_F(DistanceWindowTest, MeccaFillsCityB) {
    form.OptionDistanceToMecca.UserClick();
    const auto texts = Texts();
    EXPECT_THAT(std::vector<std::string>(texts.begin() + 6, texts.end()),
                ElementsAre("39", "49", "0", "21", "25", "0"));
    EXPECT_TRUE(form.CityBEast.Value());
    EXPECT_TRUE(form.CityBNorth.Value());
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
}

TEST_F(DistanceWindowTest, CairoIsTwelveHundredKilometresFromMecca) {
    Type({"31", "15", "0", "30", "3", "0"});
    form.CityAEast.UserClick();
    form.CityANorth.UserClick();
    form.OptionDistanceToMecca.UserClick();
    form.optKilometers.UserClick();
    form.cmdCalcDistance.UserClick();
    EXPECT_NEAR(Result(), 1287.0, 3.0);
}

TEST_F(DistanceWindowTest, TwoCitiesAfterMeccaEmptyAllTwelveBoxes) {
    Type({"31", "15", "0", "30", "3", "0"});
    form.OptionDistanceToMecca.UserClick();
    form.OptionTwoCities.UserClick();
    EXPECT_THAT(Texts(), Each(""));
}

TEST_F(DistanceWindowTest, ClearGivesTheFirstStateBack) {
    FillIn();
    form.cmdCalcDistance.UserClick();
    form.OptionDistanceToMecca.UserClick();
    form.lblCityA.SetCaption("Cairo - Egypt");
    form.cmdDistanceClear.UserClick();
    EXPECT_THAT(Texts(), Each(""));
    EXPECT_EQ(form.txtDistanceRsult.Text(), "");
    EXPECT_FALSE(form.OptionDistanceToMecca.Value());
    EXPECT_TRUE(form.OptionTwoCities.Value());
    EXPECT_EQ(form.lblCityA.Caption(), "City A is here");
    EXPECT_EQ(form.lblCityB.Caption(), "City B is here");
}

TEST_F(DistanceWindowTest, ClearEmptiesTheBoxesOfTwoCities) {
    FillIn();
    ASSERT_TRUE(form.OptionTwoCities.Value());
    form.cmdDistanceClear.UserClick();
    EXPECT_THAT(Texts(), Each(""));
}

TEST_F(DistanceWindowTest, CityButtonsOpenThePickerWhoseCityFillsTheirBoxes) {
    form.cmdCityB.UserClick();
    ASSERT_TRUE(fCountry->IsModal());
    EXPECT_EQ(fCountry->Owner(), &form);
    const std::int16_t working = Settings.CityIndex;
    fCountry->txtSearch.UserType("cairo");
    fCountry->lstFound.UserSelect(0);
    fCountry->cmdOK.UserClick();
    EXPECT_THAT(form.lblCityB.Caption(), testing::HasSubstr("Cairo"));
    EXPECT_EQ(form.lblCityA.Caption(), "City A is here");
    const auto texts = Texts();
    EXPECT_THAT(texts, ElementsAre("", "", "", "", "", "", "31", "15", "0", "30", "4", "0"));
    EXPECT_EQ(Settings.CityIndex, working) << "the pick is not for the settings";
}

TEST_F(DistanceWindowTest, CityOfTheFirstButtonIsTheFirst) {
    form.cmdCityA.UserClick();
    ASSERT_TRUE(fCountry->IsModal());
    fCountry->txtSearch.UserType("cairo");
    fCountry->lstFound.UserSelect(0);
    fCountry->cmdOK.UserClick();
    EXPECT_THAT(form.lblCityA.Caption(), testing::HasSubstr("Cairo"));
    EXPECT_EQ(form.lblCityB.Caption(), "City B is here");
}

TEST_F(DistanceWindowTest, PickedCityFillsItsBoxesWithTheirSigns) {
    FillPickedCity(DistanceCity::kA, "Buenos Aires - Argentina",
                   "Latitude: 34 degrees, 36 minutes South",
                   "Longitude: 58 degrees, 27 minutes West");
    EXPECT_EQ(form.lblCityA.Caption(), "Buenos Aires - Argentina");
    const auto texts = Texts();
    EXPECT_THAT(std::vector<std::string>(texts.begin(), texts.begin() + 6),
                ElementsAre("-58", "-27", "0", "-34", "-36", "0"));
    EXPECT_TRUE(form.CityAWest.Value());
    EXPECT_TRUE(form.CityASouth.Value());
    FillPickedCity(DistanceCity::kA, "Lima", "Latitude: 12 degrees, 3 minutes South",
                   "Longitude: 77 degrees, 2 minutes West");
    EXPECT_EQ(form.txtDegALat.Text(), "-12") << "the option was set already";
}

TEST_F(DistanceWindowTest, PickedCityBLeavesCityAAlone) {
    FillPickedCity(DistanceCity::kB, "Cairo - Egypt", "Latitude: 30 degrees, 3 minutes North",
                   "Longitude: 31 degrees, 15 minutes East");
    EXPECT_EQ(form.lblCityB.Caption(), "Cairo - Egypt");
    EXPECT_EQ(form.lblCityA.Caption(), "City A is here");
    const auto texts = Texts();
    EXPECT_THAT(texts, ElementsAre("", "", "", "", "", "", "31", "15", "0", "30", "3", "0"));
    EXPECT_TRUE(form.CityBEast.Value());
    EXPECT_TRUE(form.CityBNorth.Value());
}

TEST_F(DistanceWindowTest, PickedCityInOtherWordsLeavesTheHemisphereAsItWas) {
    FillPickedCity(DistanceCity::kB, "Kairo", "Breite: 30 Grad, 3 Minuten Nord",
                   "Länge: 31 Grad, 15 Minuten Ost");
    const auto texts = Texts();
    EXPECT_THAT(std::vector<std::string>(texts.begin() + 6, texts.end()), Each("0"));
    EXPECT_FALSE(form.CityBEast.Value());
    EXPECT_FALSE(form.CityBNorth.Value());
}

}  // namespace
}  // namespace horavex
