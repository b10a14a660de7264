#include "terminal/forms/raster.h"

#include <gmock/gmock.h>

#include <clocale>

namespace horavex {
namespace {

using testing::ElementsAre;

struct RasterTest : testing::Test {
    RasterTest() { std::setlocale(LC_CTYPE, "C.UTF-8"); }

    Cells Drawn(const Drawing& drawing, bool inOneColour = false) {
        Raster raster(2, 4);
        raster.Draw(drawing, 400.0, 400.0);
        Cells cells(2, 4);
        raster.Put(cells, {0, 0}, inOneColour);
        return cells;
    }
};

TEST_F(RasterTest, TwoSquaresShareAPlace) {
    const Cells cells = Drawn({LineStep{{0.0, 50.0}, {399.0, 50.0}, {kWhite}},
                               LineStep{{0.0, 350.0}, {199.0, 350.0}, {kWhite}}});
    EXPECT_THAT(cells.Texts(), ElementsAre("▀▀▀▀", "▄▄"));
    EXPECT_EQ(cells.At(0, 0).look.ink, kWhite);
    EXPECT_EQ(cells.At(0, 0).look.ground, std::nullopt);
}

TEST_F(RasterTest, AreasAreFilled) {
    const Cells cells =
        Drawn({PolygonStep{{{0.0, 0.0}, {400.0, 0.0}, {400.0, 200.0}, {0.0, 200.0}}, kWhite},
               FilledCircleStep{{100.0, 300.0}, 110.0, kBlack}});
    EXPECT_EQ(cells.Texts().at(0), "▀▀▀▀");
    EXPECT_EQ(cells.At(0, 0).look.ground, kWhite);
    EXPECT_EQ(cells.At(1, 0).look.ink, kBlack);
    EXPECT_EQ(cells.At(1, 3).text, " ");
}

TEST_F(RasterTest, LightnessStandsForColoursThatAreNotThere) {
    const Cells cells =
        Drawn({PolygonStep{{{0.0, 0.0}, {200.0, 0.0}, {200.0, 400.0}, {0.0, 400.0}}, kWhite},
               PolygonStep{{{200.0, 0.0}, {400.0, 0.0}, {400.0, 400.0}, {200.0, 400.0}}, kBlack}},
              true);
    EXPECT_THAT(cells.Texts(), ElementsAre("██··", "██··"));
}

TEST_F(RasterTest, TextsStayInside) {
    Raster raster(2, 4);
    raster.Draw({TextStep{{300.0, 0.0}, "12"}, TextStep{{0.0, 399.0}, "longer"}}, 400.0, 400.0);
    Cells cells(4, 8);
    raster.Put(cells, {1, 2}, false);
    EXPECT_THAT(cells.Texts(), ElementsAre("", "    12", "  lon…", ""));
}

TEST_F(RasterTest, TextsThatWouldRunIntoOneAnotherAreLeftOut) {
    Raster raster(1, 6);
    raster.Draw(
        {TextStep{{0.0, 0.0}, "0°"}, TextStep{{300.0, 0.0}, "9"}, TextStep{{400.0, 0.0}, "12"}},
        600.0, 400.0);
    Cells cells(1, 6);
    raster.Put(cells, {0, 0}, false);
    EXPECT_THAT(cells.Texts(), ElementsAre("0° 9"));
}

TEST_F(RasterTest, TextsStandAroundTheirPlaceOrInFrontOfIt) {
    Raster raster(1, 10);
    raster.Draw({TextStep{{300.0, 0.0}, "12", kBlack, Anchor::kMiddle},
                 TextStep{{1000.0, 0.0}, "end", kBlack, Anchor::kRight}},
                1000.0, 400.0);
    Cells cells(1, 10);
    raster.Put(cells, {0, 0}, false);
    EXPECT_THAT(cells.Texts(), ElementsAre("  12   end"));
}

TEST_F(RasterTest, RowOfTextsIsBriefWhereOneIsWiderThanItsRoom) {
    TextRowStep row{{{{0.0, 0.0}, "May", "M"}, {{500.0, 0.0}, "June", "J"}}, 400.0};
    const auto shown = [&row] {
        Raster raster(1, 10);
        raster.Draw({row}, 1000.0, 400.0);
        Cells cells(1, 10);
        raster.Put(cells, {0, 0}, false);
        return cells.Texts();
    };
    EXPECT_THAT(shown(), ElementsAre("May  June"));
    row.room = 300.0;
    EXPECT_THAT(shown(), ElementsAre("M    J"));
}

TEST_F(RasterTest, WholeDrawingFillsTheRasterWhateverItsSize) {
    Raster raster(1, 4);
    raster.DrawWhole({LineStep{{1000.0, 1000.0}, {5000.0, 1000.0}, {kWhite}},
                      LineStep{{1000.0, 3000.0}, {1000.0, 3000.0}, {kWhite}}});
    Cells cells(1, 4);
    raster.Put(cells, {0, 0}, false);
    EXPECT_THAT(cells.Texts(), ElementsAre("▀▀▀▀"));
}

}  // namespace
}  // namespace horavex
