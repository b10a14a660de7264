#include <filesystem>
#include <fstream>
#include <iterator>

#include "ctl/ctl_json.h"
#include "support/build_folder.h"

namespace horavex {
namespace {

namespace fs = std::filesystem;

struct Entry {
    std::string content;  // of a file
    fs::file_time_type changed;

    bool operator==(const Entry&) const = default;
};

/// Every file and folder below one, by path.
std::map<std::string, Entry> TreeOf(const std::string& folder) {
    std::map<std::string, Entry> tree;
    for (const auto& item : fs::recursive_directory_iterator(folder)) {
        Entry& entry = tree[item.path()];
        entry.changed = item.last_write_time();
        if (item.is_regular_file()) {
            std::ifstream in(item.path(), std::ios::binary);
            entry.content = {std::istreambuf_iterator<char>(in), {}};
        }
    }
    return tree;
}

/// Every subcommand, some of them failing.
constexpr const char* kCallsOfAllKinds[] = {
    "year --latitude 30.05 --longitude 31.25 --zone 2 --fajr 19.5 --isha 17.5 --asr 1 --year 2001",
    "year --latitude 51.5 --longitude 0 --zone 0 --fajr 18 --isha 17 --asr 1 --year 2001",
    "today",
    "today --city Cairo",
    "today --at 2026-12-31T23:00:00",
    "qibla --latitude 30.05 --longitude 31.25",
    "dst --year 2026",
    "zones --longitude 31.25",
    "cities --search Cairo",
    "text --entry 12 --language 4",
    "lang --section msg --key 1",
    "lang --section msg --key 1 --language Arabic",
    "moon --year 2026 --zone 2",
    "eclipses --year 2026 --zone 2",
    "moonrise --date 2026-11-21 --latitude 30:3N --longitude 31:15E --zone 2",
    "moonrise --date 2026-11-21 --latitude 90:0N --longitude 31:15E --zone 2",
    "hijri --date 2026-11-21",
    "gregorian --date 1448-6-11",
    "distance --from 30:3:0N,31:15:0E --to mecca --unit km",
    "export --city Cairo --year 2026 --format json --output /dev/null/year.json",
    "validate",
    "--help",
};

void RunAll(const Ctl& ctl) {
    for (const char* call : kCallsOfAllKinds) {
        EXPECT_LE(ctl.Run(call).status, 2) << call;
    }
}

TEST(CtlReadOnly, FreshHomeStaysEmpty) {
    const Ctl ctl;
    RunAll(ctl);
    EXPECT_TRUE(fs::is_empty(ctl / ""));
}

TEST(CtlReadOnly, InstalledFolderStaysAsItIs) {
    const auto before = TreeOf(BuiltProgramFolder());
    ASSERT_GT(before.size(), 10U);
    RunAll(Ctl());
    EXPECT_TRUE(TreeOf(BuiltProgramFolder()) == before);
}

TEST(CtlReadOnly, PortableFolderAndRegistryStayAsTheyAre) {
    Ctl ctl;
    ctl.UseFolderCopy();
    ctl.StoreRegistryValue("Isha Dep Angle", "-1");
    const auto before = TreeOf(ctl / "");
    RunAll(ctl);
    EXPECT_TRUE(TreeOf(ctl / "") == before);
}

TEST(CtlReadOnly, FolderWithoutRecordsGetsNone) {
    Ctl ctl;
    const std::string folder = ctl.UseFolderCopy();
    fs::remove(folder + "/Dat/AI.DAT");
    fs::remove(folder + "/Dat/Settings.DAT");
    const auto before = TreeOf(ctl / "");
    RunAll(ctl);
    EXPECT_TRUE(TreeOf(ctl / "") == before);
}

}  // namespace
}  // namespace horavex
