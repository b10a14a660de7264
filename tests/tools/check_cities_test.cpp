#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/build_folder.h"
#include "support/run_program.h"

namespace horavex {
namespace {

TEST(CheckCities, EveryHundredthCityHasItsYearByWhatAFirstRunProposes) {
    const ProgramRun run = RunProgram("check_cities", {BuiltProgramFolder(), "2026", "100"}, {});
    EXPECT_EQ(run.status, 0) << run.out << run.err;
    EXPECT_EQ(run.out, "533 cities checked, 0 fail\n");
}

TEST(CheckCities, MissingFolderIsAClearError) {
    const ProgramRun run = RunProgram("check_cities", {"/nowhere", "2026", "100"}, {});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, testing::HasSubstr("/nowhere/Dat/"));
}

}  // namespace
}  // namespace horavex
