// Which way a place and Mecca lie, as it is told in every pack and every language of the texts.

#include "config/settings_display.h"
#include "engine/angle.h"
#include "engine/solar_event.h"
#include "geo/qibla.h"
#include "geo/qibla_window.h"
#include "lang/language_pack.h"
#include "store/location_text.h"
#include "store/text_table.h"
#include "support/program_test.h"
#include "support/shipped_languages.h"
#include "windows/f_qibla.h"

namespace horavex {
namespace {

using testing::AnyOf;

/// Hundredths of a degree, one place a quadrant: Cairo, Jakarta, New York, Buenos Aires.
constexpr std::int16_t kPlaces[][2] = {{3005, 3125}, {-620, 10685}, {4071, -7401}, {-3461, -5845}};

struct ShownDirectionsTest : ProgramTest {
    ShownDirectionsTest() { StartAgain(); }

    /// Shows a place as a change of city and a calculation do.
    static void Show(std::int16_t latitude, std::int16_t longitude, std::int16_t language) {
        Settings.Language = ActiveSettings.Language = language;
        Location.City.Latitude = latitude;
        Location.City.Longitude = longitude;
        LatitudeRad = DegToRad(StoredCoord(latitude));
        LongitudeWestRad = -DegToRad(StoredCoord(longitude));
        ComputeQibla();
        ShowNewLocation();
    }

    static std::string InArabic(const char* caption, double degrees, const char* hemisphere) {
        const DegreesMinutes split = SplitDegrees(degrees);
        return caption + std::to_string(std::abs(split.whole)) + " درجة " +
               std::to_string(split.minutes) + " دقيقة  " + hemisphere;
    }

    static std::string LatitudeInArabic(double degrees) {
        return InArabic("د.عرض: ", degrees, degrees < 0.0 ? "جنوب" : "شمال");
    }

    static std::string LongitudeInArabic(double degrees) {
        return InArabic("خ.طول: ", degrees, degrees < 0.0 ? "غرب" : "شرق");
    }

    static std::string QiblaInArabic() {
        const DegreesMinutes split = SplitDegrees(QiblaDegrees);
        return "القبلة: " + std::to_string(std::abs(split.whole)) + " درجة و " +
               std::to_string(split.minutes) + " دقيقة الى " +
               (QiblaDegrees < 0.0 ? "الغرب" : "الشرق") + " من الشمال";
    }

    static std::string ShownQibla() {
        fQibla->Unload();
        ShowQibla();
        return fQibla->lblQibla.Caption();
    }

    void ExpectRight(double latitude, double longitude, std::int16_t language) {
        const auto allowed = [](const std::string& own, const std::string& arabic) {
            return IsArabicPack() ? AnyOf(own, arabic) : AnyOf(own, own);
        };
        EXPECT_THAT(form.lblLocationLat.Caption(),
                    allowed(FormatLatitude(latitude, language), LatitudeInArabic(latitude)));
        EXPECT_THAT(form.lblLocationLon.Caption(),
                    allowed(FormatLongitude(longitude, language), LongitudeInArabic(longitude)));
        EXPECT_THAT(ShownQibla(), allowed(QiblaText, QiblaInArabic()));
    }

    SettingsForm& form = *HoravexMainForm;
};

TEST_F(ShownDirectionsTest, AreRightInEveryPackAndLanguageOfTheTexts) {
    std::vector<std::string> packs(std::begin(kShippedLanguages), std::end(kShippedLanguages));
    packs.emplace_back();  // no pack
    for (const std::string& pack : packs) {
        currentLanguage = pack;
        for (std::int16_t language = 0; language <= kTextLanguages; ++language) {
            for (const auto& [latitude, longitude] : kPlaces) {
                SCOPED_TRACE(pack + " with the texts " + std::to_string(language));
                Show(latitude, longitude, language);
                ExpectRight(StoredCoord(latitude), StoredCoord(longitude), language);
            }
        }
    }
}

TEST_F(ShownDirectionsTest, ArabicPackRewritesTheEnglishTexts) {
    currentLanguage = "Arabic";
    Show(-620, 10685, 1);
    EXPECT_EQ(form.lblLocationLat.Caption(), "د.عرض: 6 درجة 12 دقيقة  جنوب");
    EXPECT_EQ(form.lblLocationLon.Caption(), "خ.طول: 106 درجة 51 دقيقة  شرق");
    EXPECT_EQ(ShownQibla(), "القبلة: 64 درجة و 51 دقيقة الى الغرب من الشمال");
}

TEST_F(ShownDirectionsTest, ArabicPackKeepsArabicCoordinatesAndGivesDirectionsTheirArticle) {
    currentLanguage = "Arabic";
    Show(3005, 3125, 4);
    EXPECT_EQ(form.lblLocationLat.Caption(), "العرض: 30 درجة, 3 دقيقة شمال");
    EXPECT_EQ(form.lblLocationLon.Caption(), "الطول: 31 درجة, 15 دقيقة شرق");
    EXPECT_EQ(ShownQibla(), "القبلة: 136 درجة و 13 دقيقة الى الشرق من الشمال");
}

/// The settings window after another language of the texts was chosen in Buenos Aires.
struct ChosenLanguageTest : ShownDirectionsTest {
    ChosenLanguageTest() {
        Show(-3460, -5845, 1);
        form.txtTimeZone.SetText("-3.00");
        form.lstLanguage.UserSelect(1);
    }

    void ExpectPlaceInFrench() {
        EXPECT_EQ(form.lblLocationLat.Caption(), "Latitude: 34 degrés, 36 minutes Sud");
        EXPECT_EQ(form.lblLocationLon.Caption(), "Longitude: 58 degrés, 27 minutes Ouest");
        EXPECT_EQ(form.lblTimeZone.Caption(), "Fuseau horaire ( -4, -3, ...)");
    }
};

TEST_F(ChosenLanguageTest, PlaceFollowsTheChoiceAtOnce) {
    ExpectPlaceInFrench();
    form.UserClose();
    EXPECT_THAT(form.lblLocationLat.Caption(), testing::EndsWith("North")) << "back to Mecca";
}

TEST_F(ChosenLanguageTest, PlaceAndQiblaFollowTheSetAtOnce) {
    form.SettingsSet.UserClick();
    ExpectPlaceInFrench();
    EXPECT_EQ(QiblaText, "Qibla: 76 degrés, 18 minutes Est du Nord");
    EXPECT_EQ(form.lblQibla.Caption(), QiblaText);
    EXPECT_EQ(frmMain->lblQibla.Caption(), QiblaText);
    EXPECT_EQ(ShownQibla(), QiblaText);
}

TEST_F(ChosenLanguageTest, ArabicPackKeepsItsWordsForThePlaceWhereTheTextsAreEnglish) {
    currentLanguage = "Arabic";
    form.lstLanguage.UserSelect(0);
    EXPECT_EQ(form.lblLocationLat.Caption(), LatitudeInArabic(-34.6));
    form.SettingsSet.UserClick();
    EXPECT_EQ(form.lblLocationLat.Caption(), LatitudeInArabic(-34.6));
    EXPECT_EQ(form.lblLocationLon.Caption(), LongitudeInArabic(-58.45));
}

}  // namespace
}  // namespace horavex
