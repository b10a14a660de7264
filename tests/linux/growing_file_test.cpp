#include "linux/growing_file.h"

#include <gtest/gtest.h>

#include <fstream>

#include "support/run_program.h"
#include "support/temporary_folder.h"

namespace horavex {
namespace {

TEST(GrowingFile, GrowsBehindWhatIsKept) {
    const TemporaryFolder folder;
    const std::string path = folder / "file";
    GrowingFile(path, 0).Append("new");
    EXPECT_EQ(ContentOf(path), "new");
    const GrowingFile file(path, 2);
    file.Append("xt");
    EXPECT_EQ(ContentOf(path), "next");
    file.Append(" line");
    EXPECT_EQ(ContentOf(path), "next line");
}

TEST(GrowingFile, FolderAndDeviceAreFaults) {
    const TemporaryFolder folder;
    EXPECT_THROW(GrowingFile(folder.Path(), 0), FileFault);
    EXPECT_THROW(GrowingFile(folder / "no/file", 0), FileFault);
    EXPECT_THROW(GrowingFile("/dev/null", 0), FileFault);
}

}  // namespace
}  // namespace horavex
