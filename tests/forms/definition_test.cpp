#include "sample_form.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class DefinitionTest : public FormTest {
protected:
    void Reload() {
        form.Unload();
        form.Load();
    }
};

TEST_F(DefinitionTest, ComesBackWithTheNextLoad) {
    form.Load();
    form.SetCaption("Other");
    form.lblCity.SetCaption("Cairo");
    form.lblCity.SetLeft(-5);
    form.cmdOK.SetEnabled(false);
    form.optAsrRatio(2).SetValue(true);
    form.lstLanguage.AddItem("Arabic");
    form.lstLanguage.SetListIndex(3);
    form.hsDepr.SetMax(16);
    form.frameAsr.BringToFront();

    Reload();

    EXPECT_EQ(form.Caption(), "Sample");
    EXPECT_EQ(form.lblCity.Caption(), "Nowhere");
    EXPECT_EQ(form.lblCity.Left(), 120);
    EXPECT_TRUE(form.cmdOK.Enabled());
    EXPECT_TRUE(form.optAsrRatio(1).Value());
    EXPECT_FALSE(form.optAsrRatio(2).Value());
    EXPECT_THAT(form.lstLanguage.Items(), SizeIs(3));
    EXPECT_EQ(form.lstLanguage.ListIndex(), 0);
    EXPECT_EQ(form.hsDepr.Max(), 20);
    EXPECT_EQ(form.hsDepr.Value(), 18);
    EXPECT_EQ(form.frameAsr.Stacking(), 0);
}

TEST_F(DefinitionTest, YieldsToWhatWasSetBeforeTheFirstLoad) {
    form.lblCity.SetCaption("Cairo");

    form.Load();

    EXPECT_EQ(form.lblCity.Caption(), "Cairo");
    EXPECT_EQ(form.SkinLabel1.Caption(), "Click here");
}

TEST_F(DefinitionTest, YieldsToWhatWasSetBetweenTwoLives) {
    form.Load();
    form.lblCity.SetCaption("Cairo");
    form.txtZone.SetText("9");
    form.Unload();
    form.lblCity.SetCaption("Cairo");

    form.Load();

    EXPECT_EQ(form.lblCity.Caption(), "Cairo");
    EXPECT_EQ(form.txtZone.Text(), "+2.00");
}

TEST_F(DefinitionTest, WhatWasSetWhileUnloadedLastsForOneLife) {
    form.lblCity.SetCaption("Cairo");
    form.Load();

    Reload();

    EXPECT_EQ(form.lblCity.Caption(), "Nowhere");
}

TEST_F(DefinitionTest, ComesBackWithoutAnyChangeEvent) {
    form.Load();
    form.hsDepr.SetValue(15);
    form.chkAlarm.SetValue(0);
    form.txtZone.SetText("9");
    form.hsDepr.onChange = Note("bar");
    form.chkAlarm.onClick = Note("check");
    form.txtZone.onChange = Note("box");

    Reload();

    EXPECT_EQ(form.hsDepr.Value(), 18);
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(DefinitionTest, ControlsOfAnUnloadedFormFireLikeAnyOther) {
    form.hsDepr.onChange = Note("bar");

    form.hsDepr.SetMax(16);

    EXPECT_THAT(events, ElementsAre("bar"));
}

TEST_F(DefinitionTest, TakesDrawingsAway) {
    form.Load();
    form.drawing.push_back(TextStep{{0, 0}, "north"});
    form.picMap.drawing.push_back(LineStep{{0, 0}, {10, 10}});

    Reload();

    EXPECT_THAT(form.drawing, IsEmpty());
    EXPECT_THAT(form.picMap.drawing, IsEmpty());
}

TEST_F(DefinitionTest, DragThatTheUnloadCutShortIsForgotten) {
    form.Load();
    form.hsDepr.UserDrag(20);
    Reload();
    form.hsDepr.SetValue(19);
    form.hsDepr.onChange = Note("bar");

    form.hsDepr.UserSlide(18);

    EXPECT_THAT(events, ElementsAre("bar"));
}

}  // namespace
}  // namespace horavex
