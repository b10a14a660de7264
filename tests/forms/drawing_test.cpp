#include "forms/drawing.h"

#include "sample_form.h"

namespace horavex {
namespace {

using testing::SizeIs;

using DrawingTest = FormTest;

TEST_F(DrawingTest, PaintFillsAnEmptyDrawingEachTime) {
    form.onPaint = [this] {
        form.drawing.push_back(FilledCircleStep{
            {form.ScaleWidth() / 2, form.ScaleHeight() / 2}, 800, kWhite, {.width = 4}});
        form.drawing.push_back(PolygonStep{{{0, 0}, {100, 0}, {0, 100}}, {250, 250, 250}});
    };

    form.Paint();
    form.Paint();

    ASSERT_THAT(form.drawing, SizeIs(2));
    const auto& circle = std::get<FilledCircleStep>(form.drawing[0]);
    EXPECT_EQ(circle.centre, (Point{3000, 2000}));
    EXPECT_EQ(circle.fill, kWhite);
    EXPECT_EQ(circle.pen, (Pen{kBlack, 4}));
    EXPECT_THAT(std::get<PolygonStep>(form.drawing[1]).corners, SizeIs(3));
}

TEST_F(DrawingTest, PaintFollowsTheSize) {
    form.onPaint = [this] { form.drawing.push_back(LineStep{{0, 0}, {form.ScaleWidth(), 0}}); };
    form.SetWidth(7500);

    form.Paint();

    EXPECT_EQ(std::get<LineStep>(form.drawing.front()).to, (Point{7500, 0}));
}

}  // namespace
}  // namespace horavex
