#include "forms/check_box.h"

#include "sample_form.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CheckBoxTest : public FormTest {
protected:
    CheckBoxTest() { form.chkAlarm.onClick = Note("click"); }
};

TEST_F(CheckBoxTest, AnotherValueFiresClick) {
    form.chkAlarm.SetValue(0);

    EXPECT_THAT(events, ElementsAre("click"));
    EXPECT_EQ(form.chkAlarm.Value(), 0);
}

TEST_F(CheckBoxTest, SameValueAsTheDefinitionFiresNothing) {
    form.chkAlarm.SetValue(1);

    EXPECT_THAT(events, IsEmpty());
}

TEST_F(CheckBoxTest, ValueBeyondTickedIsTicked) {
    form.chkAlarm.SetValue(7);
    EXPECT_THAT(events, IsEmpty());

    form.chkAlarm.SetValue(-3);
    EXPECT_EQ(form.chkAlarm.Value(), 0);
    EXPECT_THAT(events, ElementsAre("click"));
}

TEST_F(CheckBoxTest, UserTogglesIt) {
    form.chkAlarm.UserClick();
    EXPECT_EQ(form.chkAlarm.Value(), 0);
    form.chkAlarm.UserClick();
    EXPECT_EQ(form.chkAlarm.Value(), 1);

    EXPECT_THAT(events, ElementsAre("click", "click"));
}

TEST_F(CheckBoxTest, HandlerSeesTheNewValueAndMayPutBackTheOld) {
    form.chkAlarm.onClick = [this] {
        events.push_back(std::to_string(form.chkAlarm.Value()));
        form.chkAlarm.SetValue(1);
    };

    form.chkAlarm.UserClick();

    EXPECT_THAT(events, ElementsAre("0", "1"));
    EXPECT_EQ(form.chkAlarm.Value(), 1);
}

}  // namespace
}  // namespace horavex
