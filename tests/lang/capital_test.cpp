#include "lang/capital.h"

#include <gtest/gtest.h>

namespace horavex {
namespace {

TEST(CapitalTest, BeginsAWordOfSmallLetters) {
    EXPECT_EQ(WithCapital("samedi"), "Samedi");
    EXPECT_EQ(WithCapital("s\u00e1bado"), "S\u00e1bado");
}

TEST(CapitalTest, LeavesAllElse) {
    EXPECT_EQ(WithCapital("Samstag"), "Samstag");
    EXPECT_EQ(WithCapital("\u0627\u0644\u0633\u0628\u062a"), "\u0627\u0644\u0633\u0628\u062a");
    EXPECT_EQ(WithCapital(""), "");
}

}  // namespace
}  // namespace horavex
