#include "geo/qibla_window.h"

#include "engine/angle.h"
#include "engine/place.h"
#include "geo/qibla.h"
#include "lang/language_pack.h"
#include "store/text_table.h"
#include "support/program_test.h"
#include "windows/f_qibla.h"

namespace horavex {
namespace {

/// The program in Cairo at noon.
class QiblaWindowTest : public ProgramTest {
protected:
    QiblaWindowTest() {
        StartAgain();
        From(30.05, 31.25);
    }

    static void From(double latitude, double longitude) {
        LatitudeRad = DegToRad(latitude);
        LongitudeWestRad = -DegToRad(longitude);
        ComputeQibla();
    }

    QiblaForm& form = *fQibla;
};

TEST_F(QiblaWindowTest, ShowsTheSentenceAndTheFourDirections) {
    ShowQibla();
    EXPECT_TRUE(form.IsModal());
    EXPECT_EQ(form.Owner(), &*frmMain);
    EXPECT_EQ(form.Caption(), "Horavex Prayer Time Software ");
    EXPECT_EQ(form.lblQibla.Caption(), QiblaText);
    EXPECT_EQ(form.lblNorth.Caption(), TextItem(TextEntry::kNorth, 1));
    EXPECT_EQ(form.lblEast.Caption(), TextItem(TextEntry::kEast, 1));
    EXPECT_EQ(form.lblSouth.Caption(), TextItem(TextEntry::kSouth, 1));
    EXPECT_EQ(form.lblWest.Caption(), TextItem(TextEntry::kWest, 1));
}

TEST_F(QiblaWindowTest, DirectionsAreInTheLanguageOfTheAcceptedSettings) {
    ActiveSettings.Language = 3;
    ShowQibla();
    EXPECT_EQ(form.lblEast.Caption(), TextItem(TextEntry::kEast, 3));
    EXPECT_NE(form.lblEast.Caption(), TextItem(TextEntry::kEast, 1));
}

TEST_F(QiblaWindowTest, ArabicRewritesTheSentenceByItsWords) {
    currentLanguage = "ARABIC";
    ShowQibla();
    EXPECT_EQ(form.lblQibla.Caption(), "القبلة: 136 درجة و 13 دقيقة الى الشرق من الشمال");
    EXPECT_NE(QiblaText.find("136"), std::string::npos) << "the sentence itself stays";
}

TEST_F(QiblaWindowTest, ArabicKnowsTheWest) {
    From(30.0, 60.0);
    currentLanguage = "arabic";
    ShowQibla();
    EXPECT_THAT(form.lblQibla.Caption(), testing::HasSubstr("دقيقة الى الغرب من الشمال"));
}

TEST_F(QiblaWindowTest, ArabicKnowsTheSouth) {
    QiblaText = "QIBLA: 136 DEGREES, 8 MINUTES EAST OF SOUTH";
    currentLanguage = "arabic";
    ShowQibla();
    EXPECT_EQ(form.lblQibla.Caption(), "القبلة: 136 درجة و 8 دقيقة الى الشرق من الجنوب");
}

TEST_F(QiblaWindowTest, ArabicKnowsTheDirectionsOfTheTextsThatAreInUse) {
    currentLanguage = "Arabic";
    ActiveSettings.Language = kArabicColumn;
    From(30.0, 60.0);
    ShowQibla();
    EXPECT_THAT(form.lblQibla.Caption(), testing::HasSubstr("دقيقة الى الغرب من الشمال"));
}

TEST_F(QiblaWindowTest, ArabicLeavesASentenceWithoutDirectionsThatItKnows) {
    currentLanguage = "Arabic";
    for (const char* sentence :
         {"Qibla: 136 Grad, 8 Minuten Ost von Nord", "Qibla: 64 Grad, 51 Minuten West von Nord",
          "Qibla: 136 degrees, 8 minutes Ost of North", "القبلة: 64 درجة, 51 دقيقة غرب من شمال",
          "Qibla: 136 degrees, 8 minutes East of", "Qibla: ?", ""}) {
        QiblaText = sentence;
        ShowQibla();
        EXPECT_EQ(form.lblQibla.Caption(), sentence);
        form.Unload();
    }
}

TEST_F(QiblaWindowTest, PaintsTheCompassWithTheNeedle) {
    ShowQibla();
    form.Paint();
    const Point centre{form.ScaleWidth() / 2.0, (form.ScaleHeight() - 2000.0) / 2.0};
    const auto* dial = std::get_if<FilledCircleStep>(&form.drawing.front());
    ASSERT_NE(dial, nullptr);
    EXPECT_EQ(dial->centre, centre);
    const auto* head = std::get_if<PolygonStep>(&form.drawing.back());
    ASSERT_NE(head, nullptr);
    EXPECT_GT(head->corners[0].x, centre.x) << "to the east";
    EXPECT_GT(head->corners[0].y, centre.y) << "and to the south";
}

TEST_F(QiblaWindowTest, SunIsOnTheCompassByDayAlone) {
    ShowQibla();
    form.Paint();
    const std::size_t byDay = form.drawing.size();
    EXPECT_TRUE(form.lblSun.Visible());
    form.Unload();
    SetClock(2026, 11, 21, 23, 0, 0);
    ShowQibla();
    form.Paint();
    EXPECT_EQ(form.drawing.size(), byDay - 2) << "neither the sun nor its ray";
    EXPECT_FALSE(form.lblSun.Visible());
}

TEST_F(QiblaWindowTest, MapHasTheLandsAndTheWay) {
    ShowQibla();
    EXPECT_GT(form.picMap.drawing.size(), 100U);
}

TEST_F(QiblaWindowTest, NamesThePlaceAndHowFarMeccaIs) {
    YearCityText = "Cairo - Egypt";
    ShowQibla();
    EXPECT_EQ(form.lblShownPlace.Caption(), "Cairo - Egypt");
    EXPECT_EQ(form.lblDistance.Caption(), "Distance to Mecca: 1,289 km");
}

TEST_F(QiblaWindowTest, ButtonClosesIt) {
    ShowQibla();
    form.cmdClose.UserClick();
    EXPECT_FALSE(form.Visible());
}

}  // namespace
}  // namespace horavex
