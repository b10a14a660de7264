#include <gmock/gmock.h>

#include "ctl/years_run.h"

namespace horavex {
namespace {

/// Runs one task of the script for arrays of tasks as a scheduler does; count 0 without one.
ProgramRun RunTask(const YearsRun& years, int task, int count) {
    const std::string variables = count == 0
                                      ? ""
                                      : "SLURM_ARRAY_TASK_ID=" + std::to_string(task) +
                                            " SLURM_ARRAY_TASK_COUNT=" + std::to_string(count) +
                                            " SLURM_CPUS_PER_TASK=2 ";
    return years.Shell("export PATH=$(dirname \"$ctl\"):/usr/bin:/bin && mkdir -p years && " +
                       variables + SourcePath("tools/scale/years_array.sh") + " places 2026 years");
}

TEST(CtlYearsArray, TasksGiveTheYearsOfOneRun) {
    YearsRun years;
    years.Write("city\nCairo\nOslo\nParis\nSydney\nJakarta\n");
    const std::string whole = years.Printed("--year 2026");
    constexpr int kTasks = 4;  // the last of which has no line
    for (int task = kTasks - 1; task >= 0; --task) {
        EXPECT_EQ(RunTask(years, task, kTasks).err, "");
    }
    EXPECT_EQ(RunTask(years, 1, kTasks).status, 0);  // again
    EXPECT_TRUE(years.Shell("cat years/years-*.jsonl").out == whole);
}

TEST(CtlYearsArray, OneTaskTakesAllLines) {
    YearsRun years;
    years.Write("city\nCairo\nOslo\n");
    EXPECT_EQ(RunTask(years, 0, 0).status, 0);
    EXPECT_TRUE(years.Content("years/years-0000.jsonl") == years.Printed("--year 2026"));
}

}  // namespace
}  // namespace horavex
