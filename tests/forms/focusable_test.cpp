#include "forms/focusable.h"

#include "sample_form.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FocusTest : public FormTest {
protected:
    FocusTest() {
        form.txtZone.onGotFocus = Note("box got");
        form.txtZone.onLostFocus = Note("box lost");
        form.cmdOK.onGotFocus = Note("button got");
        form.cmdOK.onLostFocus = Note("button lost");
        form.Show();
    }
};

TEST_F(FocusTest, MovesFromOneControlToAnother) {
    form.txtZone.UserFocus();
    form.cmdOK.SetFocus();

    EXPECT_THAT(events, ElementsAre("box got", "box lost", "button got"));
    EXPECT_TRUE(form.cmdOK.HasFocus());
    EXPECT_FALSE(form.txtZone.HasFocus());
}

TEST_F(FocusTest, OnItsHolderFiresNothing) {
    form.txtZone.SetFocus();
    events.clear();

    form.txtZone.SetFocus();

    EXPECT_THAT(events, IsEmpty());
}

TEST_F(FocusTest, IsTakenBeforeTheUsersAction) {
    form.cmdOK.onClick = Note("click");
    form.txtZone.UserFocus();
    events.clear();

    form.cmdOK.UserClick();

    EXPECT_THAT(events, ElementsAre("box lost", "button got", "click"));
}

TEST_F(FocusTest, HandlerOfTheFocusCanShutTheControlBeforeTheAction) {
    form.cmdOK.onClick = Note("click");
    form.cmdOK.onGotFocus = [this] { form.cmdOK.SetEnabled(false); };

    form.cmdOK.UserClick();

    EXPECT_THAT(events, IsEmpty());
}

TEST_F(FocusTest, LossHandlerMaySendTheFocusElsewhere) {
    form.chkAlarm.onGotFocus = Note("check got");
    form.txtZone.SetFocus();
    form.txtZone.onLostFocus = [this] { form.chkAlarm.SetFocus(); };
    events.clear();

    form.cmdOK.SetFocus();

    EXPECT_THAT(events, ElementsAre("button lost", "check got"));
    EXPECT_TRUE(form.chkAlarm.HasFocus());
}

TEST_F(FocusTest, LeavesForNoOtherControl) {
    form.txtZone.UserFocus();
    form.cmdOK.UserLeave();
    EXPECT_THAT(events, ElementsAre("box got"));

    form.txtZone.UserLeave();
    EXPECT_THAT(events, ElementsAre("box got", "box lost"));
    EXPECT_EQ(form.FocusHolder(), nullptr);
}

TEST_F(FocusTest, IsLostWhenTheFormHidesAndComesAnew) {
    form.txtZone.UserFocus();
    form.Hide();
    form.Show();
    form.txtZone.UserFocus();

    EXPECT_THAT(events, ElementsAre("box got", "box lost", "box got"));
}

TEST_F(FocusTest, IsRefusedByDisabledControlsAndHiddenForms) {
    form.cmdOK.SetEnabled(false);
    form.cmdOK.SetFocus();
    form.Hide();
    form.txtZone.SetFocus();

    EXPECT_THAT(events, IsEmpty());
    EXPECT_EQ(form.FocusHolder(), nullptr);
}

TEST_F(FocusTest, ReleasedKeyReachesTheControlUnlessDisabled) {
    form.txtZone.onKeyUp = Note("key up");
    form.txtZone.UserKeyUp();
    form.txtZone.SetEnabled(false);
    form.txtZone.UserKeyUp();

    EXPECT_THAT(events, ElementsAre("key up"));
}

}  // namespace
}  // namespace horavex
