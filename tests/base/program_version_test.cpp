#include "base/program_version.h"

#include <gtest/gtest.h>

namespace horavex {
namespace {

TEST(ProgramVersion, TextForTheComparisonIsThatOfTheRelease) {
    EXPECT_EQ(RunningVersionText(), HORAVEX_VERSION);
}

TEST(ProgramVersion, TextForPeopleHasAZeroBeforeItsLastField) {
    std::string expected = RunningVersionText();
    expected.insert(expected.rfind('.'), ".0");
    EXPECT_EQ(FullVersionText(), expected);
}

}  // namespace
}  // namespace horavex
