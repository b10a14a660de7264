#include "forms/range.h"

#include "sample_form.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// hsDepr runs from 15 to 20 and stands at 18.
class RangeTest : public FormTest {
protected:
    RangeTest() {
        form.hsDepr.onChange = [this] { Write("change"); };
        form.hsDepr.onScroll = [this] { Write("scroll"); };
    }

    void Write(const std::string& event) {
        events.push_back(event + " " + std::to_string(form.hsDepr.Value()));
    }
};

TEST_F(RangeTest, AnotherValueFiresChange) {
    form.hsDepr.SetValue(19);

    EXPECT_THAT(events, ElementsAre("change 19"));
}

TEST_F(RangeTest, SameValueFiresNothing) {
    form.hsDepr.SetValue(18);

    EXPECT_THAT(events, IsEmpty());
}

TEST_F(RangeTest, ValueOutsideTheRangeIsClipped) {
    form.hsDepr.SetValue(99);
    form.hsDepr.SetValue(21);
    form.hsDepr.SetValue(-1);

    EXPECT_THAT(events, ElementsAre("change 20", "change 15"));
}

TEST_F(RangeTest, NarrowerRangeClipsTheValueAndFires) {
    form.hsDepr.SetMax(17);
    form.hsDepr.SetMin(17);

    EXPECT_EQ(form.hsDepr.Value(), 17);
    EXPECT_THAT(events, ElementsAre("change 17"));
}

TEST_F(RangeTest, RangeThatHoldsTheValueFiresNothing) {
    form.hsDepr.SetMin(16);
    form.hsDepr.SetMax(18);

    EXPECT_THAT(events, IsEmpty());
}

TEST_F(RangeTest, LimitsMayCrossOnTheWayToANewRange) {
    form.hsDepr.SetMin(22);
    EXPECT_THAT(events, ElementsAre("change 20"));

    form.hsDepr.SetMax(25);
    EXPECT_THAT(events, ElementsAre("change 20", "change 22"));
}

TEST_F(RangeTest, UserSlidesWithOneChange) {
    form.hsDepr.UserSlide(16);
    form.hsDepr.UserSlide(16);

    EXPECT_THAT(events, ElementsAre("change 16"));
}

TEST_F(RangeTest, DragScrollsAndChangesWhenLetGo) {
    form.hsDepr.UserDrag(19);
    form.hsDepr.UserDrag(19);
    form.hsDepr.UserDrag(20);
    form.hsDepr.UserSlide(20);

    EXPECT_THAT(events, ElementsAre("scroll 19", "scroll 20", "change 20"));
}

TEST_F(RangeTest, DragBackToItsStartEndsWithoutChange) {
    form.hsDepr.UserDrag(19);
    form.hsDepr.UserDrag(18);
    form.hsDepr.UserSlide(18);
    EXPECT_THAT(events, ElementsAre("scroll 19", "scroll 18"));

    form.hsDepr.UserSlide(19);
    EXPECT_EQ(events.back(), "change 19");
}

TEST_F(RangeTest, DisabledBarIgnoresUsers) {
    form.hsDepr.SetEnabled(false);
    form.hsDepr.UserDrag(19);
    form.hsDepr.UserSlide(20);

    EXPECT_EQ(form.hsDepr.Value(), 18);
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(RangeTest, AssignmentInTheHandlerFiresBeforeTheOuterReturns) {
    form.hsDepr.onChange = [this] {
        Write("begin");
        form.hsDepr.SetValue(15);
        Write("end");
    };

    form.hsDepr.SetValue(16);

    EXPECT_THAT(events, ElementsAre("begin 16", "begin 15", "end 15", "end 15"));
}

TEST_F(RangeTest, SliderAndProgressBarKeepTheSameRules) {
    form.hsDepr1.onChange = Note("slider");
    form.barDone.onChange = Note("bar");

    form.hsDepr1.SetValue(9);
    form.hsDepr1.SetValue(4);
    form.hsDepr1.SetMax(3);
    form.barDone.SetValue(50);
    form.barDone.SetValue(50);

    EXPECT_EQ(form.hsDepr1.Value(), 3);
    EXPECT_THAT(events, ElementsAre("slider", "slider", "bar"));
}

TEST_F(RangeTest, StepsFireNothing) {
    form.hsDepr.SetLargeStep(12);
    form.hsDepr.SetSmallStep(2);

    EXPECT_EQ(form.hsDepr.LargeStep(), 12);
    EXPECT_EQ(form.hsDepr.SmallStep(), 2);
    EXPECT_THAT(events, IsEmpty());
}

}  // namespace
}  // namespace horavex
