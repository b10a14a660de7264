#include "forms/control_array.h"

#include "sample_form.h"

namespace horavex {
namespace {

using testing::ElementsAre;

class ControlArrayTest : public FormTest {
protected:
    std::vector<std::string> CaptionsOfTheMenu() const {
        std::vector<std::string> captions;
        for (const MenuItem* entry : form.mnuFile.Entries()) {
            captions.push_back(entry->Caption());
        }
        return captions;
    }
};

TEST_F(ControlArrayTest, MembersKeepTheOrderOfTheDefinition) {
    EXPECT_EQ(form.optAsrRatio(1).Caption(), "Shafaii");
    EXPECT_EQ(form.optAsrRatio(2).Caption(), "Hanafi");
    EXPECT_EQ(form.Controls()[3], &form.optAsrRatio(1));
    EXPECT_EQ(form.Controls()[4], &form.optAsrRatio(2));
}

TEST_F(ControlArrayTest, IndexWithoutAMemberFails) {
    EXPECT_FALSE(form.optAsrRatio.Contains(0));
    EXPECT_THROW(form.optAsrRatio(0), BoundsFault);
}

TEST_F(ControlArrayTest, MemberMadeAtRunTimeStartsAsTheFirstIsDefined) {
    form.mnuL(0).SetCaption("Arabic");

    MenuItem& made = form.mnuL.Load(1);

    EXPECT_EQ(made.Index(), 1);
    EXPECT_EQ(made.Name(), "mnuL");
    EXPECT_EQ(made.Caption(), "-");
    EXPECT_EQ(form.Controls().back(), &made);
    EXPECT_THAT(CaptionsOfTheMenu(), ElementsAre("E&xit", "Arabic", "-"));
}

TEST_F(ControlArrayTest, IndexThatIsTakenCannotBeMade) {
    EXPECT_THROW(form.mnuL.Load(0), BoundsFault);
}

TEST_F(ControlArrayTest, HandlersReachLaterMembersToo) {
    form.mnuL.Bind([this](MenuItem& entry) {
        entry.onClick = Note("language " + std::to_string(entry.Index()));
    });
    form.mnuL.Load(1);

    form.mnuL(1).UserClick();
    form.mnuL(0).UserClick();

    EXPECT_THAT(events, ElementsAre("language 1", "language 0"));
}

TEST_F(ControlArrayTest, UnloadDropsMembersMadeAtRunTime) {
    form.Load();
    form.mnuL.Load(1);
    const std::size_t defined = form.Controls().size() - 1;

    form.Unload();

    EXPECT_FALSE(form.mnuL.Contains(1));
    EXPECT_TRUE(form.mnuL.Contains(0));
    EXPECT_EQ(form.Controls().size(), defined);
}

TEST_F(ControlArrayTest, MemberThatUnloadsItsFormFromItsOwnClickIsSafe) {
    form.Load();
    form.mnuL.Bind([this](MenuItem& entry) {
        entry.onClick = [this, &entry] {
            form.Unload();
            events.push_back(entry.Caption());
        };
    });
    form.mnuL.Load(1).SetCaption("Arabic");

    form.mnuL(1).UserClick();

    EXPECT_THAT(events, ElementsAre("Arabic"));
    EXPECT_FALSE(form.mnuL.Contains(1));
}

TEST_F(ControlArrayTest, MenuEntriesCarryCheckMarkAndPicture) {
    form.mnuL(0).SetChecked(true);
    form.mnuL(0).SetPicture("Arabic.bmp");

    EXPECT_TRUE(form.mnuL(0).Checked());
    EXPECT_EQ(form.mnuL(0).Picture(), "Arabic.bmp");
}

}  // namespace
}  // namespace horavex
