#include "forms/resizer.h"

#include "sample_form.h"

namespace horavex {
namespace {

/// Places and sizes that no fraction of the form's size makes exact.
class ResizedForm : public Form {
public:
    ResizedForm() : Form("frmResized", {.width = 6000, .height = 4000}) {}

    Label label{*this, "label", {.left = 700, .top = 100, .width = 1300, .height = 300}};
    horavex::Frame frame{
        *this, "frame", {.left = 1000, .top = 1000, .width = 3000, .height = 2000}};
    CheckBox inFrame{frame, "inFrame", {.left = 300, .top = 500, .width = 900, .height = 250}};
    Picture picture{*this, "picture", {.left = 4100, .width = 800, .height = 400}};
    Label onPicture{picture, "onPicture", {.left = 200, .top = 100, .width = 400, .height = 200}};
    ComboBox combo{*this, "combo", {.left = 60, .top = 3600, .width = 1200, .height = 315}};
    Shape outline{*this, "outline", {.left = 10, .top = 20, .width = 30, .height = 40}};
    Timer timer{*this, "timer"};
};

struct Place {
    double left, top, width, height;
};

Place PlaceOf(const Element& element) {
    return {element.Left(), element.Top(), element.Width(), element.Height()};
}

void ExpectPlace(const Element& element, const Place& wanted) {
    EXPECT_NEAR(element.Left(), wanted.left, 1e-3) << element.Name();
    EXPECT_NEAR(element.Top(), wanted.top, 1e-3) << element.Name();
    EXPECT_NEAR(element.Width(), wanted.width, 1e-3) << element.Name();
    EXPECT_NEAR(element.Height(), wanted.height, 1e-3) << element.Name();
}

class ResizerTest : public testing::Test {
protected:
    ResizerTest() { ResetProgramState(); }

    void Resize(double width, double height) {
        form.SetWidth(width);
        form.SetHeight(height);
        resizer.ResizeControls();
    }

    ResizedForm form;
    clsResizer resizer;
};

TEST_F(ResizerTest, RowsAreAsManyAsControlsAndHoldFractionsAsFloats) {
    resizer.PrepareClass(form);
    ASSERT_EQ(resizer.ratios.size(), form.Controls().size());
    const clsResizer::Row& row = resizer.ratios[static_cast<std::size_t>(form.label.TabIndex())];
    EXPECT_EQ(row[0], static_cast<float>(700.0 / 6000.0));
    EXPECT_EQ(row[1], static_cast<float>(100.0 / 4000.0));
    EXPECT_EQ(row[2], static_cast<float>(1300.0 / 6000.0));
    EXPECT_EQ(row[3], static_cast<float>(300.0 / 4000.0));
    EXPECT_EQ(row[4] + row[5] + row[6] + row[7], 0.0F);
}

TEST_F(ResizerTest, ControlsFollowTheFormInBothDirections) {
    resizer.PrepareClass(form);
    Resize(12000, 2000);
    ExpectPlace(form.label, {1400, 50, 2600, 150});
    ExpectPlace(form.frame, {2000, 500, 6000, 1000});
}

TEST_F(ResizerTest, WhatLiesInAFrameFollowsTheFrameBySizeForItHasNoScale) {
    resizer.PrepareClass(form);
    EXPECT_EQ(resizer.ratios[static_cast<std::size_t>(form.inFrame.TabIndex())][0], 0.1F);
    Resize(12000, 8000);
    ExpectPlace(form.inFrame, {600, 1000, 1800, 500});
}

TEST_F(ResizerTest, WhatLiesOnAPictureFollowsItsInside) {
    resizer.PrepareClass(form);
    Resize(3000, 4000);
    ExpectPlace(form.onPicture, {100, 100, 200, 200});
}

TEST_F(ResizerTest, ControlOfFixedHeightTakesTheOtherThree) {
    resizer.PrepareClass(form);
    Resize(12000, 8000);
    ExpectPlace(form.combo, {120, 7200, 2400, 315});
}

TEST_F(ResizerTest, ControlsWithoutATabIndexArePassedOver) {
    resizer.PrepareClass(form);
    Resize(12000, 8000);
    ExpectPlace(form.outline, {10, 20, 30, 40});
}

TEST_F(ResizerTest, FormerSizeGivesTheFormerLayoutWithinFloats) {
    const Place label = PlaceOf(form.label);
    const Place inFrame = PlaceOf(form.inFrame);
    resizer.PrepareClass(form);
    Resize(7777, 3331);
    Resize(6000, 4000);
    ExpectPlace(form.label, label);
    ExpectPlace(form.inFrame, inFrame);
    EXPECT_EQ(form.label.Left(), static_cast<double>(static_cast<float>(700.0 / 6000.0)) * 6000.0);
}

TEST_F(ResizerTest, LayoutRecordedAnewIsTheOneThatComesBack) {
    resizer.PrepareClass(form);
    form.label.SetLeft(3000);
    resizer.RecordLayout();
    Resize(12000, 4000);
    EXPECT_EQ(form.label.Left(), 6000);
}

TEST_F(ResizerTest, IgnoredControlIsResizedAllTheSame) {
    resizer.PrepareClass(form);
    resizer.AddControlToIgnore(form.label);
    EXPECT_EQ(resizer.ignored, std::vector<Control*>{&form.label});
    Resize(12000, 4000);
    ExpectPlace(form.label, {1400, 100, 2600, 300});
}

TEST_F(ResizerTest, FormWithoutControlsHasNoRows) {
    Form bare("frmBare", {.width = 1000, .height = 1000});
    resizer.PrepareClass(bare);
    EXPECT_TRUE(resizer.ratios.empty());
    resizer.ResizeControls();
    EXPECT_EQ(bare.Width(), 1000);
}

TEST_F(ResizerTest, ResizerWithoutAFormDoesNothing) {
    resizer.ResizeControls();
    EXPECT_TRUE(resizer.ratios.empty());
}

TEST_F(ResizerTest, SameTabIndexOnTwoParentsIsOneRowAndTheLastReadWins) {
    Form twins("frmTwins", {.width = 1000, .height = 1000});
    horavex::Frame box{twins, "box", {.tabIndex = 0, .width = 500, .height = 500}};
    Label first{twins, "first", {.tabIndex = 1, .left = 100, .width = 10, .height = 10}};
    Label second{box, "second", {.tabIndex = 1, .left = 200, .width = 50, .height = 50}};
    resizer.PrepareClass(twins);
    resizer.ResizeControls();
    EXPECT_NEAR(first.Left(), 400, 1e-3);  // 200 of 500, of a parent of 1000
    EXPECT_NEAR(second.Left(), 200, 1e-3);
}

TEST_F(ResizerTest, TabIndexBehindTheRowsIsPassedOver) {
    Form sparse("frmSparse", {.width = 1000, .height = 1000});
    const Label far{sparse, "far", {.tabIndex = 9, .left = 100, .width = 10}};
    const Label below{sparse, "below", {.tabIndex = -1, .left = 100, .width = 10}};
    const Label near{sparse, "near", {.tabIndex = 0, .left = 100, .width = 10}};
    resizer.PrepareClass(sparse);
    EXPECT_EQ(resizer.ratios.size(), 3U);
    sparse.SetWidth(2000);
    resizer.ResizeControls();
    EXPECT_EQ(far.Left(), 100);
    EXPECT_EQ(below.Left(), 100);
    EXPECT_NEAR(near.Left(), 200, 1e-3);
}

TEST_F(ResizerTest, ControlMadeLaterHasARowOnlyIfThereWasRoom) {
    resizer.PrepareClass(form);
    const Label late{form, "late", {.tabIndex = 40, .left = 100}};
    Resize(12000, 8000);
    EXPECT_EQ(late.Left(), 100);
}

TEST_F(ResizerTest, ParentWithoutExtentLeavesTheFractionsAtNothing) {
    Form flat("frmFlat", {.width = 0, .height = 1000});
    const Label label{flat, "label", {.left = 100, .top = 100, .width = 10, .height = 10}};
    resizer.PrepareClass(flat);
    EXPECT_EQ(resizer.ratios[0][0], 0.0F);
    EXPECT_EQ(resizer.ratios[0][1], 0.1F);
}

}  // namespace
}  // namespace horavex
