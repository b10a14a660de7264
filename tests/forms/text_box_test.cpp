#include "forms/text_box.h"

#include "sample_form.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TextBoxTest : public FormTest {
protected:
    TextBoxTest() {
        form.txtZone.onChange = [this] { events.push_back("change " + form.txtZone.Text()); };
        form.txtZone.onKeyUp = Note("key up");
    }
};

TEST_F(TextBoxTest, AnotherTextFiresChange) {
    form.txtZone.SetText("3");

    EXPECT_THAT(events, ElementsAre("change 3"));
}

TEST_F(TextBoxTest, SameTextFiresNothing) {
    form.txtZone.SetText("+2.00");

    EXPECT_THAT(events, IsEmpty());
}

TEST_F(TextBoxTest, TypedKeyFiresChangeThenKeyUp) {
    form.txtZone.UserType("+2.0");

    EXPECT_THAT(events, ElementsAre("change +2.0", "key up"));
}

TEST_F(TextBoxTest, KeyThatLeavesTheTextFiresKeyUpAlone) {
    form.txtZone.UserType("+2.00");

    EXPECT_THAT(events, ElementsAre("key up"));
}

TEST_F(TextBoxTest, EditLeavesTheKeyToTheFrontEnd) {
    form.txtZone.UserEdit("4");

    EXPECT_THAT(events, ElementsAre("change 4"));
}

TEST_F(TextBoxTest, KeyUpHandlerPutsTheTextBack) {
    form.txtZone.onKeyUp = [this] { form.txtZone.SetText("+2.00"); };

    form.txtZone.UserType("-");

    EXPECT_EQ(form.txtZone.Text(), "+2.00");
    EXPECT_THAT(events, ElementsAre("change -", "change +2.00"));
}

TEST_F(TextBoxTest, AssignmentInTheHandlerFiresBeforeTheOuterReturns) {
    form.txtZone.onChange = [this] {
        events.push_back("begin " + form.txtZone.Text());
        if (form.txtZone.Text() != "back") {
            form.txtZone.SetText("back");
            events.push_back("outer ends");
        }
    };

    form.txtZone.SetText("new");

    EXPECT_THAT(events, ElementsAre("begin new", "begin back", "outer ends"));
}

TEST_F(TextBoxTest, DisabledBoxIgnoresTyping) {
    form.txtZone.SetEnabled(false);
    form.txtZone.UserType("9");

    EXPECT_EQ(form.txtZone.Text(), "+2.00");
    EXPECT_THAT(events, IsEmpty());
}

}  // namespace
}  // namespace horavex
