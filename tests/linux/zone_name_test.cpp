#include "linux/zone_name.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "support/temporary_folder.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

namespace fs = std::filesystem;

/// A zone database of three zones, one of them under a former name too.
class ZoneNameTest : public testing::Test {
protected:
    ZoneNameTest() {
        for (const char* zone : {"Europe/Oslo", "Asia/Kolkata", "UTC"}) {
            const fs::path path = Database() / zone;
            fs::create_directories(path.parent_path());
            std::ofstream(path) << "TZif";
        }
        fs::create_symlink("Kolkata", Database() / "Asia/Calcutta");
    }

    fs::path Database() const { return fs::path(folder.Path()) / "zoneinfo"; }

    std::vector<std::string> NamesBy(const std::optional<std::string>& variable) const {
        return ZoneNamesIn({variable, folder.Path() + "/localtime", folder.Path() + "/timezone",
                            Database().string()});
    }

    void Link(const std::string& zone) const {
        fs::create_symlink(Database() / zone, folder.Path() + "/localtime");
    }

    TemporaryFolder folder;
};

TEST_F(ZoneNameTest, VariableComesFirst) {
    Link("UTC");
    EXPECT_THAT(NamesBy("Europe/Oslo"), ElementsAre("Europe/Oslo"));
    EXPECT_THAT(NamesBy(":Europe/Oslo"), ElementsAre("Europe/Oslo"));
    EXPECT_THAT(NamesBy("/usr/share/zoneinfo/Europe/Oslo"), ElementsAre("Europe/Oslo"));
    EXPECT_THAT(NamesBy(":/usr/share/zoneinfo/posix/Europe/Oslo"), ElementsAre("Europe/Oslo"));
}

TEST_F(ZoneNameTest, VariableOfRulesOrOfNothingHasNoName) {
    Link("Europe/Oslo");
    for (const char* variable : {"EET-2EEST,M4.5.5/0,M10.5.4/24", "", ":", "Nowhere/Else",
                                 "/etc/localtime", "Europe", "../zoneinfo"}) {
        EXPECT_THAT(NamesBy(variable), IsEmpty()) << variable;
    }
}

TEST_F(ZoneNameTest, WithoutItTheLinkTells) {
    Link("Europe/Oslo");
    std::ofstream(folder.Path() + "/timezone") << "UTC\n";
    EXPECT_THAT(NamesBy(std::nullopt), ElementsAre("Europe/Oslo"));
}

TEST_F(ZoneNameTest, CopyInThePlaceOfTheLinkLeavesItToTheFile) {
    std::ofstream(folder.Path() + "/localtime") << "TZif";
    EXPECT_THAT(NamesBy(std::nullopt), IsEmpty());
    std::ofstream(folder.Path() + "/timezone") << "Europe/Oslo\n";
    EXPECT_THAT(NamesBy(std::nullopt), ElementsAre("Europe/Oslo"));
}

TEST_F(ZoneNameTest, FormerNameIsFollowedByThePresentOne) {
    EXPECT_THAT(NamesBy("Asia/Calcutta"), ElementsAre("Asia/Calcutta", "Asia/Kolkata"));
}

}  // namespace
}  // namespace horavex
