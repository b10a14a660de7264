#include "base/program_state.h"

#include <gtest/gtest.h>

namespace horavex {
namespace {

constexpr int kFreshCount = 0;
constexpr double kFreshAngle = 18.0;  // degrees

int count = kFreshCount;
double angle = kFreshAngle;
int resetRuns = 0;

const ProgramStateReset resetOfCount([] {
    count = kFreshCount;
    ++resetRuns;
});
const ProgramStateReset resetOfAngle([] { angle = kFreshAngle; });

TEST(ResetProgramState, BringsEveryRegisteredModuleBack) {
    count = 7;
    angle = -1.0;
    ResetProgramState();
    EXPECT_EQ(count, kFreshCount);
    EXPECT_EQ(angle, kFreshAngle);
}

TEST(ResetProgramState, RunsEachResetOnceEveryTime) {
    resetRuns = 0;
    ResetProgramState();
    EXPECT_EQ(resetRuns, 1);
    ResetProgramState();
    EXPECT_EQ(resetRuns, 2);
}

}  // namespace
}  // namespace horavex
