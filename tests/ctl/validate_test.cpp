#include "ctl/ctl_json.h"
#include "ctl/damaged_folder.h"
#include "support/build_folder.h"

namespace horavex {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::StartsWith;

/// What the check of a damaged folder complains about.
std::vector<std::string> ProblemsOf(const DamagedFolder& folder) {
    const Json report = JsonOf(folder.ctl, "validate", {}, 1);
    EXPECT_EQ(report["failed"], report["problems"].size());
    EXPECT_GT(report["failed"], 0);
    return report["problems"];
}

TEST(CtlValidate, ObjectHasTheAgreedKeysAndTypes) {
    const Json report = JsonOf(Ctl(), "validate");
    EXPECT_THAT(KeysOf(report), testing::ElementsAre("passed", "failed", "problems"));
    EXPECT_TRUE(report["passed"].is_number_integer());
    EXPECT_TRUE(report["failed"].is_number_integer());
    EXPECT_TRUE(report["problems"].is_array());
}

TEST(CtlValidate, BuiltFolderPasses) {
    const Json report = JsonOf(Ctl(), "validate");
    EXPECT_EQ(report["problems"], Json::array());
    EXPECT_GT(report["passed"].get<int>(), 100000);
    EXPECT_EQ(report, JsonOf(Ctl(), "validate", {BuiltProgramFolder()}));
}

TEST(CtlValidate, NamedFolderCountsAndNotTheProgramsOwn) {
    const DamagedFolder folder;
    folder.Truncate("Dat/CI.DAT", 0);
    EXPECT_EQ(JsonOf(folder.ctl, "validate", {BuiltProgramFolder()})["failed"], 0);
    EXPECT_GT(JsonOf(Ctl(), "validate", {folder.path}, 1)["failed"], 0);
}

TEST(CtlValidate, TextForPeopleHasOneLineAProblemAndTheCounts) {
    const DamagedFolder folder;
    folder.Append("Dat/RI.DAT", 1, 0);
    const ProgramRun run = folder.ctl.Run("validate");
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.out, testing::MatchesRegex("Dat/RI.DAT: record [0-9]+: it is cut short\n"
                                               "[0-9]+ checks passed, 1 failed\n"));
    EXPECT_THAT(Ctl().Run("validate").out,
                testing::MatchesRegex("[0-9]+ checks passed, 0 failed\n"));
}

TEST(CtlValidate, NameOfAPackThatIsNoUtf8IsToldAllTheSame) {
    const DamagedFolder folder;
    folder.Write("lang/\xFF.ini", {});
    EXPECT_THAT(ProblemsOf(folder), Contains(StartsWith("lang/\xEF\xBF\xBD.ini: ")));
}

class FilesOfAFolder : public testing::TestWithParam<const char*> {
protected:
    /// A problem in a packed text is told at the index that points to it.
    void ExpectToBeNamed() {
        const std::string file = GetParam();
        EXPECT_THAT(ProblemsOf(folder), Contains(HasSubstr(file)));
    }

    DamagedFolder folder;
};

TEST_P(FilesOfAFolder, EmptyOneIsNamed) {
    folder.Truncate(GetParam(), 0);
    ExpectToBeNamed();
}

TEST_P(FilesOfAFolder, OneCutInHalfIsNamed) {
    folder.Truncate(GetParam(), folder.SizeOf(GetParam()) / 2 - 1);
    ExpectToBeNamed();
}

TEST_P(FilesOfAFolder, OneCutToAByteIsNamed) {
    folder.Truncate(GetParam(), 1);
    ExpectToBeNamed();
}

INSTANTIATE_TEST_SUITE_P(Files, FilesOfAFolder, testing::ValuesIn(kDataFiles), TestName);

/// Files of which no half can be missing, and whose bytes all count.
class FilesThatCannotBeMissing : public FilesOfAFolder {};

TEST_P(FilesThatCannotBeMissing, MissingOneIsNamed) {
    folder.Remove(GetParam());
    ExpectToBeNamed();
}

INSTANTIATE_TEST_SUITE_P(Files, FilesThatCannotBeMissing,
                         testing::Values("Dat/SI.DAt", "Dat/S.DAT", "Dat/CI.DAT", "Dat/C.DAt",
                                         "Dat/PI.DAT", "Dat/P.DAT", "Dat/RI.DAT", "Dat/A.dat",
                                         "Dat/TI.DAT", "Dat/T.DAT"),
                         TestName);

struct RandomFile {
    const char* file;
    const char* problem;  // how a problem begins
};

void PrintTo(const RandomFile& random, std::ostream* out) {
    *out << random.file;
}

class RandomFiles : public testing::TestWithParam<RandomFile> {};

TEST_P(RandomFiles, AreNamedWithTheRecord) {
    const DamagedFolder folder;
    folder.Randomize(GetParam().file);
    EXPECT_THAT(ProblemsOf(folder), Contains(StartsWith(GetParam().problem)));
}

INSTANTIATE_TEST_SUITE_P(Files, RandomFiles,
                         testing::Values(RandomFile{"Dat/SI.DAt", "Dat/SI.DAt: record "},
                                         RandomFile{"Dat/S.DAT", "Dat/SI.DAt: record "},
                                         RandomFile{"Dat/CI.DAT", "Dat/CI.DAT: record "},
                                         RandomFile{"Dat/C.DAt", "Dat/CI.DAT: record "},
                                         RandomFile{"Dat/PI.DAT", "Dat/PI.DAT: record "},
                                         RandomFile{"Dat/P.DAT", "Dat/PI.DAT: record "},
                                         RandomFile{"Dat/A.dat", "Dat/A.dat: record "},
                                         RandomFile{"Dat/TI.DAT", "Dat/TI.DAT: record "},
                                         RandomFile{"Dat/T.DAT", "Dat/TI.DAT: record "},
                                         RandomFile{"Dat/AI.DAT", "Dat/AI.DAT: record 1: "},
                                         RandomFile{"Dat/Settings.DAT",
                                                    "Dat/Settings.DAT: record 1: "},
                                         RandomFile{"lang/English.ini", "lang/English.ini: "}));

struct Flip {
    const char* file;
    std::size_t offset;  // of a field of 16 bits
    std::int16_t value;
    const char* problem;
};

void PrintTo(const Flip& flip, std::ostream* out) {
    *out << flip.file << " at " << flip.offset << " to " << flip.value;
}

class FlippedNumbers : public testing::TestWithParam<Flip> {};

TEST_P(FlippedNumbers, AreNamedWithTheRecord) {
    const DamagedFolder folder;
    folder.PutNumber(GetParam().file, GetParam().offset, GetParam().value);
    EXPECT_THAT(ProblemsOf(folder), Contains(StartsWith(GetParam().problem)));
}

// Record n of an index begins at (n - 1) times the length of its records.
INSTANTIATE_TEST_SUITE_P(
    Fields, FlippedNumbers,
    testing::Values(
        Flip{"Dat/SI.DAt", 6 * 9, 0, "Dat/SI.DAt: record 10: no text"},
        Flip{"Dat/SI.DAt", 6 * 9, -1, "Dat/SI.DAt: record 10: no text"},
        Flip{"Dat/SI.DAt", 6 * 9, 32767, "Dat/SI.DAt: record 10: no text"},
        Flip{"Dat/SI.DAt", 6 * 9 + 2, 7, "Dat/SI.DAt: record 10: its cities do not follow"},
        Flip{"Dat/SI.DAt", 6 * 9 + 4, -7, "Dat/SI.DAt: record 10: its cities do not follow"},
        Flip{"Dat/CI.DAT", 10 * 41999 + 2, 32767, "Dat/CI.DAT: record 42000: no text"},
        Flip{"Dat/CI.DAT", 10 * 41999 + 2, -1, "Dat/CI.DAT: record 42000: no text"},
        Flip{"Dat/CI.DAT", 10 * 41999 + 4, 9001, "Dat/CI.DAT: record 42000: its coordinates"},
        Flip{"Dat/CI.DAT", 10 * 41999 + 6, -18001, "Dat/CI.DAT: record 42000: its coordinates"},
        Flip{"Dat/CI.DAT", 10 * 41999 + 8, 32767, "Dat/CI.DAT: record 42000: there is no province"},
        Flip{"Dat/CI.DAT", 10 * 41999 + 8, -1, "Dat/CI.DAT: record 42000: there is no province"},
        Flip{"Dat/PI.DAT", 2 * 99, 0, "Dat/PI.DAT: record 100: no text"},
        Flip{"Dat/PI.DAT", 2 * 99, 32767, "Dat/PI.DAT: record 100: no text"},
        Flip{"Dat/TI.DAT", 2 * 99, -32768, "Dat/TI.DAT: record 100: no text"},
        Flip{"Dat/TI.DAT", 2 * 99, 32767, "Dat/TI.DAT: record 100: no text"},
        Flip{"Dat/A.dat", 0, 0, "Dat/A.dat: record 1: its limit"},
        Flip{"Dat/A.dat", 5 * 3, 100, "Dat/A.dat: record 4: its limit"},
        Flip{"Dat/A.dat", 5 * 3 + 2, 0, "Dat/A.dat: record 4: its angles"},
        Flip{"Dat/AI.DAT", 81, 7, "Dat/AI.DAT: record 1: Language"},
        Flip{"Dat/AI.DAT", 93, 288, "Dat/AI.DAT: record 1: AlarmTime"},
        Flip{"Dat/AI.DAT", 71, 1, "Dat/AI.DAT: record 1: a day of daylight saving"},
        Flip{"Dat/AI.DAT", 61, -1, "Dat/AI.DAT: record 1: FajrAngle"},
        Flip{"Dat/AI.DAT", 91, 32767, "Dat/AI.DAT: record 1: TimeZone"}));

class OversizedFiles : public testing::TestWithParam<const char*> {};

TEST_P(OversizedFiles, AreNamed) {
    const DamagedFolder folder;
    folder.Append(GetParam(), 3000, 0);
    EXPECT_THAT(ProblemsOf(folder), Contains(HasSubstr(GetParam())));
}

INSTANTIATE_TEST_SUITE_P(Files, OversizedFiles,
                         testing::Values("Dat/SI.DAt", "Dat/S.DAT", "Dat/CI.DAT", "Dat/C.DAt",
                                         "Dat/PI.DAT", "Dat/P.DAT", "Dat/RI.DAT", "Dat/A.dat",
                                         "Dat/TI.DAT", "Dat/T.DAT"),
                         TestName);

}  // namespace
}  // namespace horavex
