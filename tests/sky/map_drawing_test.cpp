#include "sky/map_drawing.h"

#include <algorithm>

#include "base/bytes.h"
#include "forms/drawing_svg.h"
#include "forms/inks.h"
#include "linux/erfa_almanac.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr Observer kMecca{21.4, 39.8};
constexpr const char* kOptical = "fill=\"#7fbf5a\"";  // class B of either criterion
constexpr const char* kYallopE = "fill=\"#deafa0\"";
constexpr const char* kCoast = "stroke=\"#14181c\"";

class MapDrawingTest : public testing::Test {
protected:
    Drawing Draw(Criterion criterion, const Observer& place = kMecca) const {
        return MapDrawing(map, criterion, place, {"An evening", "The new moon", {}});
    }
    std::string Svg(Criterion criterion) const {
        return DrawingSvg(Draw(criterion), kMapWidth, kMapHeight);
    }
    void Complete() {
        while (!map.IsComplete()) {
            map.ComputeRow();
        }
    }
    void WriteLands(const std::string& text) {
        platform.files.WriteWhole("/program/Dat/Land.txt", BytesOf(text));
    }

    TestPlatform platform;
    const ErfaAlmanac almanac{};
    VisibilityMap map{almanac, DateSerial(2024, 3, 10),
                      DateSerial(2024, 3, 10) + TimeSerial(9, 0, 0), 10.0};
};

template <class Step>
std::vector<Step> StepsOf(const Drawing& drawing) {
    std::vector<Step> steps;
    for (const DrawingStep& step : drawing) {
        if (const Step* found = std::get_if<Step>(&step)) {
            steps.push_back(*found);
        }
    }
    return steps;
}

TEST_F(MapDrawingTest, HasATitleAndTheNewMoonAboveIt) {
    const auto texts = StepsOf<TextStep>(Draw(Criterion::kOdeh));
    EXPECT_EQ(texts.at(0).text, "An evening");
    EXPECT_EQ(texts.at(1).text, "The new moon");
}

TEST_F(MapDrawingTest, TellsEveryClassOfTheCriterionBelow) {
    const std::string yallop = Svg(Criterion::kYallop);
    for (const char* key :
         {">A  easily visible<", ">B  visible in a clear sky<", ">F  not visible<",
          ">moon sets before the sun<", ">before the new moon<"}) {
        EXPECT_THAT(yallop, HasSubstr(key));
    }
    const std::string odeh = Svg(Criterion::kOdeh);
    EXPECT_THAT(odeh, HasSubstr(">D  not visible<"));
    EXPECT_THAT(odeh, Not(HasSubstr(">E  ")));
}

TEST_F(MapDrawingTest, WordsFromRightToLeftBeginAtTheRight) {
    const auto firstKey = [](const Drawing& drawing) {
        return StepsOf<PolygonStep>(drawing).back().corners.front().x;
    };
    const Drawing usual = Draw(Criterion::kOdeh);
    const Drawing turned = MapDrawing(map, Criterion::kOdeh, kMecca, {"هلال", "", {}, true});
    EXPECT_DOUBLE_EQ(firstKey(turned), kMapWidth - firstKey(usual));
    EXPECT_EQ(StepsOf<TextStep>(turned).at(0).anchor, Anchor::kRight);
    EXPECT_DOUBLE_EQ(StepsOf<TextStep>(turned).at(0).at.x,
                     kMapWidth - StepsOf<TextStep>(usual).at(0).at.x);
}

TEST_F(MapDrawingTest, IsSeaUntilItIsWorkedOut) {
    const std::size_t before = StepsOf<PolygonStep>(Draw(Criterion::kYallop)).size();
    map.ComputeRow();
    const std::size_t first = StepsOf<PolygonStep>(Draw(Criterion::kYallop)).size();
    EXPECT_GT(first, before);
    Complete();
    EXPECT_GT(StepsOf<PolygonStep>(Draw(Criterion::kYallop)).size(), first + 12);
}

TEST_F(MapDrawingTest, DrawsNeighboursOfOneClassAsOneStrip) {
    Complete();
    const auto boxes = StepsOf<PolygonStep>(Draw(Criterion::kOdeh));
    EXPECT_LT(boxes.size(), 13U * 8U);
    double area = 0.0;
    for (std::size_t i = 2; i + 6 < boxes.size(); ++i) {  // between the grounds and the legend
        const auto& corners = boxes[i].corners;
        area += (corners[2].x - corners[0].x) * (corners[2].y - corners[0].y);
    }
    EXPECT_NEAR(area, kMapWidth * kMapWidth * 130.0 / 360.0, 1.0);
}

TEST_F(MapDrawingTest, ColoursAClassWhereItIs) {
    Complete();
    // The row from 35 down to 25 degrees north begins with the west of the Pacific.
    const auto boxes = StepsOf<PolygonStep>(Draw(Criterion::kOdeh));
    const double top = 40.0 * 15.0 + 30.0 * 30.0;  // twips: above the map, and 30 degrees of it
    const auto row = std::ranges::find_if(boxes, [&](const PolygonStep& box) {
        return box.corners[0] == Point{0.0, top} && box.corners.size() == 4;
    });
    ASSERT_NE(row, boxes.end());
    EXPECT_EQ(row->fill, (Colour{27, 120, 55}));
    EXPECT_THAT(Svg(Criterion::kYallop), HasSubstr(kYallopE));
    EXPECT_THAT(Svg(Criterion::kOdeh), Not(HasSubstr(kYallopE)));
    EXPECT_THAT(Svg(Criterion::kOdeh), HasSubstr(kOptical));
}

TEST_F(MapDrawingTest, HasTheOutlinesOfLandsAsFarAsTheyLieOnIt) {
    EXPECT_THAT(Svg(Criterion::kOdeh), Not(HasSubstr(kCoast)));
    WriteLands("0,60 10,60 5,80\n0,70 10,70 5,89\n");
    std::vector<LineStep> coast;
    for (const LineStep& line : StepsOf<LineStep>(Draw(Criterion::kOdeh))) {
        if (line.pen.colour == ink::kOutline) {
            coast.push_back(line);
        }
    }
    ASSERT_EQ(coast.size(), 3U);  // of the first land, cut off at its edge
    for (const LineStep& line : coast) {
        EXPECT_GE(std::min(line.from.y, line.to.y), 40.0 * 15.0);
    }
}

TEST_F(MapDrawingTest, MarksThePlaceUnlessItLiesBeyondTheEdge) {
    const auto marks = StepsOf<FilledCircleStep>(Draw(Criterion::kOdeh));
    ASSERT_EQ(marks.size(), 1U);
    EXPECT_NEAR(marks[0].centre.x, (180.0 + 39.8) * 30.0, 1e-6);
    EXPECT_NEAR(marks[0].centre.y, 40.0 * 15.0 + (65.0 - 21.4) * 30.0, 1e-6);
    EXPECT_TRUE(StepsOf<FilledCircleStep>(Draw(Criterion::kOdeh, {69.6, 18.9})).empty());
}

}  // namespace
}  // namespace horavex
