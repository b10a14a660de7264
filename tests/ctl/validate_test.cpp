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

TEST(CtlValidate, HelpIsLookedThrough) {
    const DamagedFolder folder;
    folder.Remove("help/English/qibla.html");
    EXPECT_THAT(ProblemsOf(folder), Contains("help/English/qibla.html: is missing"));
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
    // An odd length cuts a record too.
    folder.Truncate(GetParam(), folder.SizeOf(GetParam()) / 2 | 1);
    ExpectToBeNamed();
}

TEST_P(FilesOfAFolder, OneCutToAByteIsNamed) {
    folder.Truncate(GetParam(), 1);
    ExpectToBeNamed();
}

INSTANTIATE_TEST_SUITE_P(Files, FilesOfAFolder, testing::ValuesIn(kDataFiles), TestName);

/// Every file but the records and the packs, without which the program runs.
class FilesThatCannotBeMissing : public FilesOfAFolder {};

TEST_P(FilesThatCannotBeMissing, MissingOneIsNamed) {
    folder.Remove(GetParam());
    ExpectToBeNamed();
}

INSTANTIATE_TEST_SUITE_P(Files, FilesThatCannotBeMissing,
                         testing::Values("Dat/SI.DAt", "Dat/S.DAT", "Dat/CI.DAT", "Dat/C.DAt",
                                         "Dat/PI.DAT", "Dat/P.DAT", "Dat/RI.DAT", "Dat/A.dat",
                                         "Dat/UQ.DAT", "Dat/TI.DAT", "Dat/T.DAT", "Dat/ZI.DAT",
                                         "Dat/Z.DAT", "Dat/N.DAT"),
                         TestName);

struct Damage {
    const char* file;
    const char* problem;  // how it begins
};

void PrintTo(const Damage& damage, std::ostream* out) {
    *out << damage.file;
}

class RandomFiles : public testing::TestWithParam<Damage> {};

TEST_P(RandomFiles, AreNamedWithTheRecord) {
    const DamagedFolder folder;
    folder.Randomize(GetParam().file);
    EXPECT_THAT(ProblemsOf(folder), Contains(StartsWith(GetParam().problem)));
}

INSTANTIATE_TEST_SUITE_P(Files, RandomFiles,
                         testing::Values(Damage{"Dat/SI.DAt", "Dat/SI.DAt: record "},
                                         Damage{"Dat/S.DAT", "Dat/SI.DAt: record "},
                                         Damage{"Dat/CI.DAT", "Dat/CI.DAT: record "},
                                         Damage{"Dat/C.DAt", "Dat/CI.DAT: record "},
                                         Damage{"Dat/PI.DAT", "Dat/PI.DAT: record "},
                                         Damage{"Dat/P.DAT", "Dat/PI.DAT: record "},
                                         Damage{"Dat/A.dat", "Dat/A.dat: record "},
                                         Damage{"Dat/UQ.DAT", "Dat/UQ.DAT: record "},
                                         Damage{"Dat/TI.DAT", "Dat/TI.DAT: record "},
                                         Damage{"Dat/T.DAT", "Dat/TI.DAT: record "},
                                         Damage{"Dat/AI.DAT", "Dat/AI.DAT: record 1: "},
                                         Damage{"Dat/Settings.DAT", "Dat/Settings.DAT: record 1: "},
                                         Damage{"lang/English.ini", "lang/English.ini: "}));

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
        Flip{"Dat/AI.DAT", 61, -1, "Dat/AI.DAT: record 1: FajrAngle"},
        Flip{"Dat/AI.DAT", 91, 32767, "Dat/AI.DAT: record 1: TimeZone"}));

TEST(CtlValidate, DaysOfDaylightSavingCountWhereItApplies) {
    const DamagedFolder folder;
    folder.PutNumber("Dat/AI.DAT", 73, 367);
    EXPECT_EQ(folder.ctl.Run("validate").status, 0);
    folder.PutNumber("Dat/AI.DAT", 71, 1);
    EXPECT_THAT(ProblemsOf(folder),
                Contains(StartsWith("Dat/AI.DAT: record 1: a day of daylight saving")));
}

class OversizedFiles : public testing::TestWithParam<Damage> {};

TEST_P(OversizedFiles, AreNamed) {
    const DamagedFolder folder;
    folder.Append(GetParam().file, 3000, 0);
    EXPECT_THAT(ProblemsOf(folder), Contains(StartsWith(GetParam().problem)));
}

INSTANTIATE_TEST_SUITE_P(Files, OversizedFiles,
                         testing::Values(Damage{"Dat/SI.DAt", "Dat/SI.DAt: record 247: "},
                                         Damage{"Dat/S.DAT", "Dat/SI.DAt: record 246: "},
                                         Damage{"Dat/CI.DAT", "Dat/CI.DAT: record 53251: "},
                                         Damage{"Dat/C.DAt", "Dat/CI.DAT: record 53250: "},
                                         Damage{"Dat/PI.DAT", "Dat/PI.DAT: record "},
                                         Damage{"Dat/P.DAT", "Dat/PI.DAT: record "},
                                         Damage{"Dat/RI.DAT", "Dat/RI.DAT: not one rank"},
                                         Damage{"Dat/ZI.DAT", "Dat/ZI.DAT: not one zone"},
                                         Damage{"Dat/Z.DAT", "Dat/Z.DAT: the last line"},
                                         Damage{"Dat/N.DAT", "Dat/N.DAT: the last line"},
                                         Damage{"Dat/A.dat", "Dat/A.dat: record 20: "}));

/// Where the numbered texts end, whose number grows with every new one.
TEST(CtlValidate, OversizedTextFilesAreNamed) {
    const DamagedFolder folder;
    const std::size_t last = folder.SizeOf("Dat/TI.DAT") / 2;
    folder.Append("Dat/T.DAT", 3000, 0);
    EXPECT_THAT(ProblemsOf(folder),
                Contains(StartsWith("Dat/TI.DAT: record " + std::to_string(last) + ": ")));
    folder.Append("Dat/TI.DAT", 3000, 0);
    EXPECT_THAT(ProblemsOf(folder),
                Contains(StartsWith("Dat/TI.DAT: record " + std::to_string(last + 1) + ": ")));
}

struct LostRecord {
    const char* file;
    std::size_t length;   // of a record
    const char* problem;  // how it begins
};

void PrintTo(const LostRecord& lost, std::ostream* out) {
    *out << lost.file;
}

class LostRecords : public testing::TestWithParam<LostRecord> {};

TEST_P(LostRecords, AtTheEndAreMissed) {
    const DamagedFolder folder;
    folder.Truncate(GetParam().file, folder.SizeOf(GetParam().file) - GetParam().length);
    EXPECT_THAT(ProblemsOf(folder), Contains(StartsWith(GetParam().problem)));
}

INSTANTIATE_TEST_SUITE_P(
    Files, LostRecords,
    testing::Values(LostRecord{"Dat/SI.DAt", 6, "Dat/SI.DAt: the countries do not hold all cities"},
                    LostRecord{"Dat/CI.DAT", 10,
                               "Dat/SI.DAt: the countries do not hold all cities"},
                    LostRecord{"Dat/PI.DAT", 2, "Dat/CI.DAT: record "},
                    LostRecord{"Dat/RI.DAT", 2, "Dat/RI.DAT: not one rank"},
                    LostRecord{"Dat/ZI.DAT", 2, "Dat/ZI.DAT: not one zone"},
                    LostRecord{"Dat/Z.DAT", 1, "Dat/Z.DAT: the last line is cut short"},
                    LostRecord{"Dat/N.DAT", 1, "Dat/N.DAT: the last line is cut short"},
                    LostRecord{"Dat/TI.DAT", 2, "Dat/TI.DAT: fewer than "}));

}  // namespace
}  // namespace horavex
