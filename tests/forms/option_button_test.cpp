#include "forms/option_button.h"

#include "sample_form.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OptionButtonTest : public FormTest {
protected:
    OptionButtonTest() {
        form.optAsrRatio.Bind([this](OptionButton& option) {
            option.onClick = Note("option " + std::to_string(option.Index()));
        });
        form.optAlone.onClick = Note("alone");
    }
};

TEST_F(OptionButtonTest, SettingClearsTheGroupAndFiresOnceOnTheOneSet) {
    form.optAsrRatio(2).SetValue(true);

    EXPECT_TRUE(form.optAsrRatio(2).Value());
    EXPECT_FALSE(form.optAsrRatio(1).Value());
    EXPECT_THAT(events, ElementsAre("option 2"));
}

TEST_F(OptionButtonTest, SettingTheSetOneFiresNothing) {
    form.optAsrRatio(1).SetValue(true);
    form.optAsrRatio(1).UserClick();

    EXPECT_THAT(events, IsEmpty());
}

TEST_F(OptionButtonTest, ClearingFiresNothingAndSetsNoOther) {
    form.optAsrRatio(1).SetValue(false);

    EXPECT_FALSE(form.optAsrRatio(1).Value());
    EXPECT_FALSE(form.optAsrRatio(2).Value());
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(OptionButtonTest, OptionsOfAnotherParentStay) {
    form.optAlone.UserClick();

    EXPECT_TRUE(form.optAlone.Value());
    EXPECT_TRUE(form.optAsrRatio(1).Value());
    EXPECT_THAT(events, ElementsAre("alone"));
}

TEST_F(OptionButtonTest, OptionThatItsHandlerClearsCanBeSetAgain) {
    form.optAlone.onClick = [this] {
        events.push_back("refused");
        form.optAlone.SetValue(false);
    };

    form.optAlone.UserClick();
    form.optAlone.UserClick();

    EXPECT_FALSE(form.optAlone.Value());
    EXPECT_THAT(events, ElementsAre("refused", "refused"));
}

TEST_F(OptionButtonTest, HandlerThatSetsAnotherFiresItBeforeItReturns) {
    form.optAsrRatio(2).onClick = [this] {
        events.push_back("2 begins");
        form.optAsrRatio(1).SetValue(true);
        events.push_back("2 ends");
    };

    form.optAsrRatio(2).UserClick();

    EXPECT_THAT(events, ElementsAre("2 begins", "option 1", "2 ends"));
    EXPECT_TRUE(form.optAsrRatio(1).Value());
    EXPECT_FALSE(form.optAsrRatio(2).Value());
}

}  // namespace
}  // namespace horavex
