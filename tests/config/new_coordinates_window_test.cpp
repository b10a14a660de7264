#include "config/new_coordinates_window.h"

#include "support/program_test.h"
#include "windows/new_coordinates.h"

namespace horavex {
namespace {

using NewCoordinatesTest = ProgramTest;

TEST_F(NewCoordinatesTest, OkOnlySaysThatNothingIsBehindIt) {
    NewCoordinates->Show();
    NewCoordinates->Text3.UserType("30");
    const SettingsRecord before = Settings;
    NewCoordinates->cmdOK.UserClick();
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(platform.dialogs.messages[0].text,
              "This operation is not yet available in this Beta release");
    EXPECT_EQ(platform.dialogs.messages[0].icon, MessageIcon::kInformation);
    EXPECT_EQ(Settings, before);
    EXPECT_EQ(NewCoordinates->Text3.Text(), "30");
}

TEST_F(NewCoordinatesTest, ClearKeepsTheNameAndNothingElse) {
    NewCoordinatesForm& form = *NewCoordinates;
    form.Show();
    TextBox* const boxes[] = {&form.Text1, &form.Text2, &form.Text3, &form.Text4,
                              &form.Text5, &form.Text6, &form.Text7, &form.Text8};
    for (TextBox* box : boxes) {
        box->UserType("1");
    }
    form.cmdClear.UserClick();
    std::string texts;
    for (const TextBox* box : boxes) {
        texts += box->Text() + "/";
    }
    EXPECT_EQ(texts, "1////////");
}

TEST_F(NewCoordinatesTest, HemispheresAreTwoPairs) {
    NewCoordinatesForm& form = *NewCoordinates;
    form.Show();
    form.Option2.UserClick();
    EXPECT_FALSE(form.Option1.Value());
    EXPECT_TRUE(form.Option3.Value());
    form.Option4.UserClick();
    EXPECT_FALSE(form.Option3.Value());
    EXPECT_TRUE(form.Option2.Value());
}

}  // namespace
}  // namespace horavex
