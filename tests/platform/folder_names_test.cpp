#include "platform/folder_names.h"

#include "base/fault.h"
#include "platform/memory_files.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Files whose folders are counted as they are read.
struct CountingFiles : MemoryFiles {
    std::vector<std::string> List(const std::string& folder) override {
        ++lists;
        if (areShut) {
            throw FileFault(folder, "shut");
        }
        return MemoryFiles::List(folder);
    }

    std::string StampOf(const std::string& folder) override {
        std::string stamp;
        for (const std::string& name : MemoryFiles::List(folder)) {
            stamp += name + "/";
        }
        return areStamped ? stamp : "";
    }

    int lists = 0;
    bool areShut = false;
    bool areStamped = true;
};

struct FolderNamesTest : testing::Test {
    FolderNamesTest() { files.WriteWhole("/lang/English.ini", BytesOf("x")); }

    CountingFiles files;
    FolderNames names{files};
};

TEST_F(FolderNamesTest, FolderIsReadAgainOnlyWhenItHasChanged) {
    EXPECT_THAT(names.In("/lang"), ElementsAre("English.ini"));
    EXPECT_THAT(names.In("/lang"), ElementsAre("English.ini"));
    EXPECT_EQ(files.lists, 1);
    files.WriteWhole("/lang/French.ini", BytesOf("x"));
    EXPECT_THAT(names.In("/lang"), ElementsAre("English.ini", "French.ini"));
    EXPECT_EQ(files.lists, 2);
}

TEST_F(FolderNamesTest, FolderWithoutAStampIsReadEachTime) {
    files.areStamped = false;
    names.In("/lang");
    EXPECT_THAT(names.In("/lang"), ElementsAre("English.ini"));
    EXPECT_EQ(files.lists, 2);
}

TEST_F(FolderNamesTest, FolderThatCannotBeLookedIntoIsEmptyUntilItCan) {
    files.areShut = true;
    EXPECT_THAT(names.In("/lang"), IsEmpty());
    files.areShut = false;
    EXPECT_THAT(names.In("/lang"), ElementsAre("English.ini"));
}

}  // namespace
}  // namespace horavex
