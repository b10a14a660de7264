#include "base/program_version.h"

#include <gtest/gtest.h>

namespace horavex {
namespace {

TEST(ProgramVersion, TextForPeopleHasFourFieldsWithAFixedZero) {
    EXPECT_EQ(FullVersionText(), "4.1.0.1");
}

TEST(ProgramVersion, TextForTheComparisonHasThree) {
    EXPECT_EQ(RunningVersionText(), "4.1.1");
}

}  // namespace
}  // namespace horavex
