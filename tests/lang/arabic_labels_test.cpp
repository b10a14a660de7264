#include "lang/arabic_labels.h"

#include "lang/lang_test.h"
#include "windows/horavex_main_form.h"

namespace horavex {
namespace {

class ArabicLabelsTest : public LangTest {
protected:
    ArabicLabelsTest() {
        form.lblLocationLat.SetCaption("Latitude: 30 degrees, 3 minutes North");
        form.lblLocationLon.SetCaption("Longitude: 31 degrees, 15 minutes East");
        form.lblTimeZone.SetCaption("Time Zone ( 2, 3, ...)");
    }

    SettingsForm& form = *HoravexMainForm;
};

TEST_F(ArabicLabelsTest, CoordinatesAreRewrittenFromTheirWords) {
    Translate();
    EXPECT_EQ(form.lblLocationLat.Caption(), "د.عرض: 30 درجة 3 دقيقة  شمال");
    EXPECT_EQ(form.lblLocationLon.Caption(), "خ.طول: 31 درجة 15 دقيقة  شرق");
}

TEST_F(ArabicLabelsTest, ZonesKeepWhatStandsInBrackets) {
    Translate();
    EXPECT_EQ(form.lblTimeZone.Caption(), "المنطقة الزمنية ( 2, 3, ...)");
}

TEST_F(ArabicLabelsTest, FormerCaptionsAreKeptInTheTag) {
    Translate();
    EXPECT_EQ(form.lblLocationLat.Tag(), "Latitude: 30 degrees, 3 minutes North");
    EXPECT_EQ(form.lblLocationLon.Tag(), "Longitude: 31 degrees, 15 minutes East");
    EXPECT_EQ(form.lblTimeZone.Tag(), "Time Zone ( 2, 3, ...)");
}

TEST_F(ArabicLabelsTest, OtherHemispheresTakeTheOppositeWord) {
    form.lblLocationLat.SetCaption("Latitude: 33 degrees, 52 minutes South");
    form.lblLocationLon.SetCaption("Longitude: 70 degrees, 40 minutes West");
    Translate();
    EXPECT_EQ(form.lblLocationLat.Caption(), "د.عرض: 33 درجة 52 دقيقة  جنوب");
    EXPECT_EQ(form.lblLocationLon.Caption(), "خ.طول: 70 درجة 40 دقيقة  غرب");
}

TEST_F(ArabicLabelsTest, HemisphereIsComparedInLowerCase) {
    form.lblLocationLat.SetCaption("LATITUDE: 1 DEGREES, 2 MINUTES NORTH");
    form.lblLocationLon.SetCaption("longitude: 1 degrees, 2 minutes east");
    Translate();
    EXPECT_EQ(form.lblLocationLat.Caption(), "د.عرض: 1 درجة 2 دقيقة  شمال");
    EXPECT_EQ(form.lblLocationLon.Caption(), "خ.طول: 1 درجة 2 دقيقة  شرق");
}

TEST_F(ArabicLabelsTest, CoordinatesOfAnotherTextLanguageStay) {
    for (const char* caption : {"Breite: 30 Grad, 3 Minuten Nord", "العرض: 30 درجة, 3 دقيقة جنوب",
                                "Longitude: 58 degrés, 27 minutes Ouest"}) {
        form.lblLocationLat.SetCaption(caption);
        form.lblLocationLon.SetCaption(caption);
        Translate();
        EXPECT_EQ(form.lblLocationLat.Caption(), caption);
        EXPECT_EQ(form.lblLocationLon.Caption(), caption);
    }
}

TEST_F(ArabicLabelsTest, HemisphereOfTheOtherCoordinateIsNone) {
    form.lblLocationLat.SetCaption("Latitude: 30 degrees, 3 minutes East");
    form.lblLocationLon.SetCaption("Longitude: 31 degrees, 15 minutes South");
    Translate();
    EXPECT_EQ(form.lblLocationLat.Caption(), "Latitude: 30 degrees, 3 minutes East");
    EXPECT_EQ(form.lblLocationLon.Caption(), "Longitude: 31 degrees, 15 minutes South");
}

TEST_F(ArabicLabelsTest, RewrittenCoordinatesStayWhenTheyAreRewrittenAgain) {
    Translate();
    Translate();
    EXPECT_EQ(form.lblLocationLat.Caption(), "د.عرض: 30 درجة 3 دقيقة  شمال");
    EXPECT_EQ(form.lblLocationLon.Caption(), "خ.طول: 31 درجة 15 دقيقة  شرق");
}

TEST_F(ArabicLabelsTest, SixWordsAreEnoughAndFurtherOnesAreIgnored) {
    form.lblLocationLat.SetCaption("a b c d e north f g");
    Translate();
    EXPECT_EQ(form.lblLocationLat.Caption(), "د.عرض: b درجة d دقيقة  شمال");
}

TEST_F(ArabicLabelsTest, EveryBlankSeparatesSoThatTwoMakeAnEmptyWord) {
    form.lblLocationLat.SetCaption("Latitude: 30  3 minutes north");
    Translate();
    EXPECT_EQ(form.lblLocationLat.Caption(), "د.عرض: 30 درجة 3 دقيقة  شمال");
}

TEST_F(ArabicLabelsTest, CaptionOfTooFewWordsStays) {
    for (const char* caption : {"", " ", "North", "Latitude: 30 degrees, 3 minutes"}) {
        form.lblLocationLat.SetCaption(caption);
        Translate();
        EXPECT_EQ(form.lblLocationLat.Caption(), caption);
        EXPECT_EQ(form.lblLocationLat.Tag(), caption);
    }
}

TEST_F(ArabicLabelsTest, ZonesBeginAtTheFirstBracket) {
    form.lblTimeZone.SetCaption("Zone (a) (b)");
    Translate();
    EXPECT_EQ(form.lblTimeZone.Caption(), "المنطقة الزمنية (a) (b)");
}

TEST_F(ArabicLabelsTest, ZonesWithoutABracketKeepNothing) {
    form.lblTimeZone.SetCaption("Time Zone");
    Translate();
    EXPECT_EQ(form.lblTimeZone.Caption(), "المنطقة الزمنية ");
    EXPECT_EQ(form.lblTimeZone.Tag(), "Time Zone");
}

}  // namespace
}  // namespace horavex
