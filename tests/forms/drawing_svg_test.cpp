#include "forms/drawing_svg.h"

namespace horavex {
namespace {

constexpr const char* kFrame =
    "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 100 50\" font-family=\"sans-serif\" "
    "font-size=\"12\">\n";

std::string SvgOf(const DrawingStep& step) {
    return DrawingSvg({step}, 1500.0, 750.0);
}

std::string Framed(const std::string& element) {
    return kFrame + element + "</svg>\n";
}

TEST(DrawingSvg, EmptyDrawingIsAFrame) {
    EXPECT_EQ(DrawingSvg({}, 1500.0, 750.0), Framed(""));
}

TEST(DrawingSvg, EachStepIsAnElementInPixels) {
    EXPECT_EQ(SvgOf(LineStep{{15.0, 30.0}, {150.0, 20.0}, {{255, 0, 16}, 2}}),
              Framed("<line x1=\"1\" y1=\"2\" x2=\"10\" y2=\"1.33\" stroke=\"#ff0010\" "
                     "stroke-width=\"2\"/>\n"));
    EXPECT_EQ(SvgOf(FilledCircleStep{{150.0, 150.0}, 75.0, kWhite}),
              Framed("<circle cx=\"10\" cy=\"10\" r=\"5\" fill=\"#ffffff\" stroke=\"#000000\" "
                     "stroke-width=\"1\"/>\n"));
    EXPECT_EQ(SvgOf(PolygonStep{{{0.0, 0.0}, {15.0, 0.0}, {0.0, 15.0}}, kBlack}),
              Framed("<polygon points=\"0,0 1,0 0,1\" fill=\"#000000\" stroke=\"#000000\" "
                     "stroke-width=\"1\"/>\n"));
}

TEST(DrawingSvg, TextStandsOnItsBaseAndIsEscaped) {
    EXPECT_EQ(SvgOf(TextStep{{15.0, 15.0}, "a < b & الفجر"}),
              Framed("<text x=\"1\" y=\"12\" fill=\"#000000\">a &lt; b &amp; الفجر</text>\n"));
}

TEST(DrawingSvg, TextIsAnchoredAtItsMiddleOrWhereItBeginsAtTheRight) {
    EXPECT_EQ(SvgOf(TextStep{{15.0, 0.0}, "12", kBlack, Anchor::kMiddle}),
              Framed("<text x=\"1\" y=\"11\" fill=\"#000000\" text-anchor=\"middle\">12</text>\n"));
    EXPECT_EQ(SvgOf(TextStep{{15.0, 0.0}, "فجر", kBlack, Anchor::kRight}),
              Framed("<text x=\"1\" y=\"11\" fill=\"#000000\" direction=\"rtl\">فجر</text>\n"));
}

TEST(DrawingSvg, RowOfTextsIsWrittenBrieflyWhereOneIsTooWide) {
    const TextRowStep row{{{{0.0, 0.0}, "May", "M"}, {{750.0, 0.0}, "Septembre", "S"}}, 600.0};
    EXPECT_EQ(SvgOf(row), Framed("<text x=\"0\" y=\"11\" fill=\"#000000\">M</text>\n"
                                 "<text x=\"50\" y=\"11\" fill=\"#000000\">S</text>\n"));
}

TEST(DrawingSvg, PicturesAreLeftOut) {
    EXPECT_EQ(SvgOf(PictureStep{{0.0, 0.0}, 15.0, 15.0, "moon.png"}), Framed(""));
}

}  // namespace
}  // namespace horavex
