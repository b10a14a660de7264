#include "forms/list.h"

#include "sample_form.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ListTest : public FormTest {
protected:
    ListTest() {
        form.lstLanguage.onClick = Note("click");
        form.lstLanguage.onDblClick = Note("double click");
    }
};

TEST_F(ListTest, AnotherIndexFiresClick) {
    form.lstLanguage.SetListIndex(2);

    EXPECT_EQ(form.lstLanguage.Text(), "German");
    EXPECT_THAT(events, ElementsAre("click"));
}

TEST_F(ListTest, SameIndexFiresNothing) {
    form.lstLanguage.SetListIndex(0);
    form.lstLanguage.UserSelect(0);

    EXPECT_THAT(events, IsEmpty());
}

TEST_F(ListTest, IndexWithoutAnItemFails) {
    EXPECT_THROW(form.lstLanguage.SetListIndex(3), BoundsFault);
    EXPECT_THROW(form.lstLanguage.SetListIndex(-2), BoundsFault);
    EXPECT_THROW(form.lstLanguage.ListItem(-1), BoundsFault);
    EXPECT_EQ(form.lstLanguage.ListIndex(), 0);
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(ListTest, NoSelectionHasAnEmptyText) {
    form.lstLanguage.SetListIndex(-1);

    EXPECT_EQ(form.lstLanguage.Text(), "");
    EXPECT_THAT(events, ElementsAre("click"));
}

TEST_F(ListTest, ClearTakesTheSelectionInSilence) {
    form.lstLanguage.Clear();

    EXPECT_EQ(form.lstLanguage.ListCount(), 0);
    EXPECT_EQ(form.lstLanguage.ListIndex(), -1);
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(ListTest, AddedItemComesLastAndKeepsTheSelection) {
    form.lstLanguage.AddItem("Arabic");

    EXPECT_EQ(form.lstLanguage.ListItem(3), "Arabic");
    EXPECT_EQ(form.lstLanguage.ListIndex(), 0);
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(ListTest, UserSelectsAndDoubleClicks) {
    form.lstLanguage.UserSelect(1);
    form.lstLanguage.UserDoubleClick();

    EXPECT_THAT(events, ElementsAre("click", "double click"));
}

TEST_F(ListTest, DisabledListIgnoresUsers) {
    form.lstLanguage.SetEnabled(false);
    form.lstLanguage.UserSelect(1);
    form.lstLanguage.UserDoubleClick();

    EXPECT_EQ(form.lstLanguage.ListIndex(), 0);
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(ListTest, TabStripStartsOnItsFirstPageAndChangesLikeAList) {
    form.tabs.onClick = Note("page");
    EXPECT_EQ(form.tabs.ListIndex(), 0);

    form.tabs.UserSelect(1);

    EXPECT_EQ(form.tabs.ListIndex(), 1);
    EXPECT_THAT(events, ElementsAre("page"));
}

TEST_F(ListTest, TabCaptionCanBeReplaced) {
    form.tabs.SetTabCaption(1, "Pleine lune");

    EXPECT_THAT(form.tabs.Items(), ElementsAre("New Moon", "Pleine lune"));
    EXPECT_THROW(form.tabs.SetTabCaption(2, "x"), BoundsFault);
}

TEST_F(ListTest, RefusedItemIsNotForUsers) {
    form.Show();
    form.lstLanguage.SetItemRefusal(1, "no pack");
    EXPECT_EQ(form.lstLanguage.ItemRefusal(1), "no pack");
    EXPECT_EQ(form.lstLanguage.ItemRefusal(2), "");
    form.lstLanguage.UserSelect(1);
    EXPECT_EQ(form.lstLanguage.ListIndex(), 0);
    form.lstLanguage.SetListIndex(1);
    EXPECT_EQ(form.lstLanguage.ListIndex(), 1) << "code may";
    form.lstLanguage.SetItemRefusal(2, "");
    form.lstLanguage.UserSelect(2);
    EXPECT_EQ(form.lstLanguage.ListIndex(), 2);
}

TEST_F(ListTest, RefusalNeedsAnItemAndGoesWithIt) {
    EXPECT_THROW(form.lstLanguage.SetItemRefusal(3, "no"), BoundsFault);
    form.lstLanguage.SetItemRefusal(0, "no");
    form.lstLanguage.Clear();
    form.lstLanguage.AddItem("new");
    EXPECT_EQ(form.lstLanguage.ItemRefusal(0), "");
}

TEST_F(ListTest, ClearingsCountWhatTookItemsAway) {
    const int before = form.lstLanguage.Clearings();
    form.lstLanguage.AddItem("Dutch");
    EXPECT_EQ(form.lstLanguage.Clearings(), before);
    form.lstLanguage.Clear();
    EXPECT_EQ(form.lstLanguage.Clearings(), before + 1);
    form.Load();
    form.Unload();
    EXPECT_EQ(form.lstLanguage.Clearings(), before + 2) << "the definition's items came back";
}

}  // namespace
}  // namespace horavex
