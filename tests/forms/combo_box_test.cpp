#include "forms/combo_box.h"

#include "sample_form.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ComboBoxTest : public FormTest {
protected:
    ComboBoxTest() {
        form.cboDay.onClick = [this] { events.push_back("click " + form.cboDay.Text()); };
        form.cboDay.onChange = [this] { events.push_back("change " + form.cboDay.Text()); };
    }
};

TEST_F(ComboBoxTest, ChosenItemGivesItsTextAndFiresClickAlone) {
    form.cboDay.SetListIndex(1);

    EXPECT_EQ(form.cboDay.Text(), "2");
    EXPECT_THAT(events, ElementsAre("click 2"));
}

TEST_F(ComboBoxTest, ChoosingTheSameItemFiresNothing) {
    form.cboDay.SetListIndex(1);
    events.clear();

    form.cboDay.UserSelect(1);

    EXPECT_THAT(events, IsEmpty());
}

TEST_F(ComboBoxTest, AnotherTextFiresChangeAlone) {
    form.cboDay.SetText("17");

    EXPECT_THAT(events, ElementsAre("change 17"));
    EXPECT_EQ(form.cboDay.ListIndex(), -1);
}

TEST_F(ComboBoxTest, TextThatEqualsAnItemSelectsItInSilence) {
    form.cboDay.SetText("3");

    EXPECT_EQ(form.cboDay.ListIndex(), 2);
    EXPECT_THAT(events, ElementsAre("change 3"));
}

TEST_F(ComboBoxTest, SameTextFiresNothing) {
    form.cboDay.SetText("");

    EXPECT_THAT(events, IsEmpty());
}

TEST_F(ComboBoxTest, NoItemChosenEmptiesTheText) {
    form.cboDay.SetListIndex(1);
    form.cboDay.SetListIndex(-1);

    EXPECT_EQ(form.cboDay.Text(), "");
    EXPECT_THAT(events, ElementsAre("click 2", "click "));
}

TEST_F(ComboBoxTest, ClearEmptiesItemsSelectionAndText) {
    form.cboDay.SetListIndex(0);
    events.clear();

    form.cboDay.Clear();

    EXPECT_EQ(form.cboDay.ListCount(), 0);
    EXPECT_EQ(form.cboDay.ListIndex(), -1);
    EXPECT_THAT(events, ElementsAre("change "));
}

TEST_F(ComboBoxTest, UserTypesAndAGuardPutsTheLastGoodTextBack) {
    form.cboDay.SetText("2");
    events.clear();
    form.cboDay.onChange = [this] {
        events.push_back("change " + form.cboDay.Text());
        if (form.cboDay.Text() == "2x") {
            form.cboDay.SetText("2");
        }
    };

    form.cboDay.UserType("2x");

    EXPECT_EQ(form.cboDay.Text(), "2");
    EXPECT_THAT(events, ElementsAre("change 2x", "change 2"));
}

TEST(UntypedComboBox, TakesItsTextFromTheListAlone) {
    Form form("frmChoice");
    ComboBox choice(form, "cboChoice", {.items = {"a", "b"}, .typed = false});
    form.Show();
    choice.UserType("b");
    choice.UserEdit("b");
    EXPECT_EQ(choice.Text(), "");
    choice.UserSelect(1);
    EXPECT_EQ(choice.Text(), "b");
}

}  // namespace
}  // namespace horavex
