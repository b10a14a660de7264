#include <gmock/gmock.h>

#include <filesystem>

#include "ctl/years_run.h"

namespace horavex {
namespace {

namespace fs = std::filesystem;

/// Lines that give no record stand between those that do.
constexpr const char* kLines =
    "city,latitude,longitude,zone,fajr,isha,asr\n,91,31,2,18,18,1\nCairo,,,,,,\n,60,10,1,18,18,1\n"
    ",91,31,2,18,18,1\nOslo,,,,,,\n,30,31,2,18,18,1\n,91,31,2,18,18,1\nParis,,,,,,\n,60,10,1,18,18,"
    "1\n";

class CtlYearsResume : public testing::TestWithParam<const char*> {
protected:
    CtlYearsResume() {
        years.Write(kLines);
        whole = years.Printed(Format(), 1);
    }

    std::string Format() const { return std::string("--year 2026 --format ") + GetParam(); }

    void ExpectResumed(const std::string& what) const {
        const ProgramRun run = years.Run(Format() + " --jobs 3 --resume --output " + file);
        EXPECT_EQ(run.status, 1) << what << run.err;
        EXPECT_TRUE(years.Content("out") == whole) << what;
    }

    YearsRun years;
    const std::string file = years.ctl / "out";
    std::string whole;
};

TEST_P(CtlYearsResume, FileThatIsCutAnywhereBecomesWhole) {
    for (const std::size_t part : {0U, 1U, 33U, 70U, 100U}) {
        const std::size_t bytes = whole.size() * part / 100;
        std::ofstream(file, std::ios::binary) << whole.substr(0, bytes);
        ExpectResumed(std::to_string(bytes) + " bytes");
    }
}

TEST_P(CtlYearsResume, FileThatIsCutBesideAnEndOfALineBecomesWhole) {
    const std::size_t end = whole.find('\n', whole.size() / 2);
    for (const std::size_t bytes : {end, end + 1, whole.size() - 1}) {
        std::ofstream(file, std::ios::binary) << whole.substr(0, bytes);
        ExpectResumed(std::to_string(bytes) + " bytes");
    }
}

TEST_P(CtlYearsResume, RunThatIsKilledGoesOn) {
    // The system kills what writes more than so many blocks.
    for (const char* blocks : {"1", "61", "500"}) {
        fs::remove(file);
        const ProgramRun killed = years.Shell(std::string("ulimit -f ") + blocks +
                                              " && exec \"$ctl\" years --from places " + Format() +
                                              " --jobs 3 --output out");
        EXPECT_TRUE(killed.status != 1 || years.Content("out") == whole) << blocks;
        ExpectResumed(std::string(blocks) + " blocks");
    }
}

TEST_P(CtlYearsResume, RunWithoutItBeginsAnew) {
    std::ofstream(file) << "something else\n";
    years.Run(Format() + " --output " + file);
    EXPECT_TRUE(years.Content("out") == whole);
}

INSTANTIATE_TEST_SUITE_P(Streams, CtlYearsResume, testing::Values("jsonl", "csv"));

TEST(CtlYearsResumeInFolder, WritesTheFilesThatAreMissing) {
    YearsRun years;
    years.Write("city\nCairo\nOslo\n");
    const std::string folder = years.ctl / "files";
    fs::create_directory(folder);
    const std::string run = "--year 2026 --format csv --output " + folder;
    years.Run(run);
    const std::string oslo = ContentOf(folder + "/000003-Oslo.csv");
    fs::remove(folder + "/000003-Oslo.csv");
    std::ofstream(folder + "/000002-Cairo.csv") << "mine";
    EXPECT_EQ(years.Run(run + " --resume").status, 0);
    EXPECT_EQ(ContentOf(folder + "/000002-Cairo.csv"), "mine");
    EXPECT_EQ(ContentOf(folder + "/000003-Oslo.csv"), oslo);
    years.Run(run);
    EXPECT_NE(ContentOf(folder + "/000002-Cairo.csv"), "mine");
}

}  // namespace
}  // namespace horavex
