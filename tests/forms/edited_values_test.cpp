#include "forms/edited_values.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "forms/form.h"

namespace horavex {
namespace {

struct EditedValuesTest : testing::Test {
    Form form{"frmEdit"};
    CheckBox box{form, "chkEdit"};
    bool value = false;
};

TEST_F(EditedValuesTest, UsersClickChangesTheValueAndShowsItAnew) {
    int shown = 0;
    EditedValues values([&] { ++shown; });
    values.BindCheck(box, value);
    box.UserClick();
    EXPECT_TRUE(value);
    EXPECT_EQ(shown, 1);
}

TEST_F(EditedValuesTest, WhatTheProgramMovesWhileItShowsChangesNothing) {
    EditedValues values([&] { box.SetValue(1); });
    values.BindCheck(box, value);
    values.Show();
    EXPECT_FALSE(value);
}

TEST_F(EditedValuesTest, FaultWhileItShowsLeavesTheControlsToTheUser) {
    bool isFaulty = true;
    EditedValues values([&] {
        if (isFaulty) {
            throw std::runtime_error("no times");
        }
    });
    values.BindCheck(box, value);
    EXPECT_THROW(values.Show(), std::runtime_error);
    isFaulty = false;
    box.UserClick();
    EXPECT_TRUE(value);
}

}  // namespace
}  // namespace horavex
