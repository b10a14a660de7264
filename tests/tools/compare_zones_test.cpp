#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/build_folder.h"
#include "support/run_program.h"

namespace horavex {
namespace {

// Years that are over, whose rules nobody changes any more.

TEST(CompareZones, RecordGivesEveryHundredthCityItsClock) {
    const ProgramRun run = RunProgram("compare_zones", {BuiltProgramFolder(), "2025", "100"}, {});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "533 cities compared, 0 differ\n");
}

TEST(CompareZones, ZoneThatMovesForGoodIsMoreThanARecordHolds) {
    const ProgramRun run = RunProgram("compare_zones", {BuiltProgramFolder(), "2024", "100"}, {});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.out, testing::ContainsRegex("Kazakhstan: Asia/[A-Z][a-z]+: 7-15: 6.0* hours in "
                                                "place of 5.0*\n"));
}

TEST(CompareZones, MissingFolderIsAClearError) {
    const ProgramRun run = RunProgram("compare_zones", {"/nowhere", "2025", "100"}, {});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, testing::HasSubstr("/nowhere/Dat/"));
}

TEST(CompareZones, StepBelowOneIsAClearError) {
    const ProgramRun run = RunProgram("compare_zones", {BuiltProgramFolder(), "2025", "0"}, {});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, testing::HasSubstr("the step is 1 or more, not 0"));
}

}  // namespace
}  // namespace horavex
