#include "ctl/damaged_folder.h"

#include <algorithm>

#include "ctl/ctl_json.h"

namespace horavex {
namespace {

constexpr const char* kMeccaAtNoon = "today --json --at 2026-11-21T12:00:00 --city-index 5183";

/// Calls that between them read every file.
constexpr const char* kCallsOfAllFiles[] = {
    "today --json --at 2026-11-21T12:00:00",
    kMeccaAtNoon,
    "text --entry 77 --language 6",
    "lang --section other --key 9 --language Arabic",
    "year --json --latitude 50 --longitude 0 --zone 0 --fajr 18 --isha 18 --asr 1 --year 2026",
};

/// One that reads every city besides.
constexpr const char* kSearch = "today --json --at 2026-11-21T12:00:00 --city Cairo,Cairo,Egypt";

/// A program that reads damaged data does its work, with a word at most on the file that it goes on
/// without, or ends with one line or with the failure of a year that cannot be calculated; no
/// signal and no sanitizer ends it.
void ExpectOrderlyEnd(const Ctl& ctl, const char* call) {
    SCOPED_TRACE(call);
    const ProgramRun run = ctl.Run(call);
    if (run.status == 0) {
        EXPECT_THAT(run.err, testing::AnyOf("", testing::HasSubstr("Dat")));
        EXPECT_NE(run.out, "");
    } else if (run.out.empty()) {
        EXPECT_LE(run.status, 2) << run.err;
        EXPECT_THAT(run.err, testing::StartsWith("horavexctl: "));
        EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
    } else {
        EXPECT_EQ(run.status, 1);
        EXPECT_FALSE(Json::parse(run.out)["failure"].is_null());
    }
}

void ExpectOrderlyEnds(const Ctl& ctl) {
    for (const char* call : kCallsOfAllFiles) {
        ExpectOrderlyEnd(ctl, call);
    }
}

class DamagedFile : public testing::TestWithParam<const char*> {
protected:
    DamagedFolder folder;
};

TEST_P(DamagedFile, OfNoBytesEndsNoCallOutOfOrder) {
    folder.Truncate(GetParam(), 0);
    ExpectOrderlyEnds(folder.ctl);
}

TEST_P(DamagedFile, CutShortEndsNoCallOutOfOrder) {
    folder.Truncate(GetParam(), folder.SizeOf(GetParam()) / 2 + 1);
    ExpectOrderlyEnds(folder.ctl);
}

TEST_P(DamagedFile, OfRandomBytesEndsNoCallOutOfOrder) {
    folder.Randomize(GetParam());
    ExpectOrderlyEnds(folder.ctl);
}

TEST_P(DamagedFile, TooLongEndsNoCallOutOfOrder) {
    folder.Append(GetParam(), 2000, 0xFF);
    ExpectOrderlyEnds(folder.ctl);
}

TEST_P(DamagedFile, ThatIsMissingEndsNoCallOutOfOrder) {
    folder.Remove(GetParam());
    ExpectOrderlyEnds(folder.ctl);
}

INSTANTIATE_TEST_SUITE_P(Files, DamagedFile, testing::ValuesIn(kDataFiles), TestName);

class DamagedLocationFile : public DamagedFile {};

TEST_P(DamagedLocationFile, OfRandomBytesEndsNoSearchOutOfOrder) {
    folder.Randomize(GetParam());
    ExpectOrderlyEnd(folder.ctl, kSearch);
}

TEST_P(DamagedLocationFile, CutShortEndsNoSearchOutOfOrder) {
    folder.Truncate(GetParam(), folder.SizeOf(GetParam()) / 2 + 1);
    ExpectOrderlyEnd(folder.ctl, kSearch);
}

TEST_P(DamagedLocationFile, TooLongEndsNoSearchOutOfOrder) {
    folder.Append(GetParam(), 2000, 0xFF);
    ExpectOrderlyEnd(folder.ctl, kSearch);
}

INSTANTIATE_TEST_SUITE_P(Files, DamagedLocationFile,
                         testing::Values("Dat/SI.DAt", "Dat/S.DAT", "Dat/CI.DAT", "Dat/C.DAt",
                                         "Dat/PI.DAT", "Dat/P.DAT", "Dat/RI.DAT", "Dat/N.DAT"),
                         TestName);

TEST(DamagedFolder, FileThatIsAFolderIsOneClearLine) {
    const DamagedFolder folder;
    folder.Remove("Dat/T.DAT");
    std::filesystem::create_directory(folder.path + "/Dat/T.DAT");
    const ProgramRun run = folder.ctl.Run("text --entry 1 --language 1");
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, testing::HasSubstr("T.DAT"));
    ExpectOrderlyEnds(folder.ctl);
}

TEST(DamagedFolder, DayGoesOnWithoutTheZonesAndThePublishedMonths) {
    const DamagedFolder folder;
    folder.Truncate("Dat/Z.DAT", folder.SizeOf("Dat/Z.DAT") - 1);
    folder.Truncate("Dat/UQ.DAT", folder.SizeOf("Dat/UQ.DAT") - 1);
    const ProgramRun run = folder.ctl.Run(std::string(kMeccaAtNoon) + " --hijri umm-al-qura");
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.err, testing::AllOf(testing::HasSubstr("Z.DAT: the last line is cut short"),
                                        testing::HasSubstr("UQ.DAT: a record is cut short")));
}

TEST(DamagedRegistry, StoredAngleThatIsNoneCountsAsAFirstRun) {
    const Ctl ctl;
    const Json day = JsonOf(ctl, "today --at 2026-11-21");
    for (const char* angle : {"\xFF\xFE=[", "nan", "1E999", ""}) {
        ctl.StoreRegistryValue("Isha Dep Angle", angle);
        EXPECT_EQ(JsonOf(ctl, "today --at 2026-11-21"), day) << angle;
    }
}

}  // namespace
}  // namespace horavex
