#include "forms/control.h"

#include "sample_form.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using ControlTest = FormTest;

TEST_F(ControlTest, ClickReachesLabelsPicturesButtonsAndMenus) {
    form.lblCity.onClick = Note("label");
    form.SkinLabel1.onClick = Note("skin label");
    form.picMap.onClick = Note("picture");
    form.cmdOK.onClick = Note("button");
    form.mnuExit.onClick = Note("menu");

    form.lblCity.UserClick();
    form.SkinLabel1.UserClick();
    form.picMap.UserClick();
    form.cmdOK.UserClick();
    form.mnuExit.UserClick();

    EXPECT_THAT(events, ElementsAre("label", "skin label", "picture", "button", "menu"));
}

TEST_F(ControlTest, DisabledControlIgnoresUsers) {
    form.cmdOK.onClick = Note("button");
    form.chkAlarm.onClick = Note("check");
    form.mnuExit.onClick = Note("menu");
    form.cmdOK.SetEnabled(false);
    form.chkAlarm.SetEnabled(false);
    form.mnuExit.SetEnabled(false);

    form.cmdOK.UserClick();
    form.chkAlarm.UserClick();
    form.mnuExit.UserClick();

    EXPECT_THAT(events, IsEmpty());
    EXPECT_EQ(form.chkAlarm.Value(), 1);
}

TEST_F(ControlTest, DisabledControlStillObeysCode) {
    form.chkAlarm.onClick = Note("check");
    form.chkAlarm.SetEnabled(false);

    form.chkAlarm.SetValue(0);

    EXPECT_THAT(events, ElementsAre("check"));
}

TEST_F(ControlTest, ControlInADisabledOrHiddenFrameIgnoresUsers) {
    form.frameAsr.SetEnabled(false);
    form.optAsrRatio(2).UserClick();
    EXPECT_FALSE(form.optAsrRatio(2).Value());

    form.frameAsr.SetEnabled(true);
    form.frameAsr.SetVisible(false);
    form.optAsrRatio(2).UserClick();
    EXPECT_FALSE(form.optAsrRatio(2).Value());
}

TEST_F(ControlTest, DisabledFormShutsAllItsControls) {
    form.cmdOK.onClick = Note("button");
    form.SetEnabled(false);

    form.cmdOK.UserClick();

    EXPECT_THAT(events, IsEmpty());
}

TEST_F(ControlTest, EntryOfADisabledMenuCanBeChosen) {
    form.mnuExit.onClick = Note("exit");
    ASSERT_FALSE(form.mnuFile.Enabled());

    form.mnuExit.UserClick();

    EXPECT_THAT(events, ElementsAre("exit"));
}

TEST_F(ControlTest, CaptionFiresNothing) {
    form.lblCity.onClick = Note("label");

    form.lblCity.SetCaption("Cairo");

    EXPECT_EQ(form.lblCity.Caption(), "Cairo");
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(ControlTest, ControlBroughtToFrontLiesAboveAllOthers) {
    form.cmdOK.BringToFront();
    form.frameAsr.BringToFront();

    EXPECT_GT(form.frameAsr.Stacking(), form.cmdOK.Stacking());
    EXPECT_GT(form.cmdOK.Stacking(), form.lblCity.Stacking());
}

TEST_F(ControlTest, HandlerMayReplaceItself) {
    form.cmdOK.onClick = [this, kept = std::string("first")] {
        form.cmdOK.onClick = Note("second");
        events.push_back(kept);
    };

    form.cmdOK.UserClick();
    form.cmdOK.UserClick();

    EXPECT_THAT(events, ElementsAre("first", "second"));
}

}  // namespace
}  // namespace horavex
