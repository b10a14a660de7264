// The program folder on a real file system.

#include "platform/program_folder.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "base/fault.h"
#include "linux/posix_files.h"
#include "support/temporary_folder.h"

namespace horavex {
namespace {

TEST(ProgramFolderOnDisk, LinkToItselfCountsAsMissingAndIsNeverReplaced) {
    const TemporaryFolder user;
    const TemporaryFolder installed;
    PosixFiles files;
    const ProgramFolder folder(files, user / "", installed / "");
    ASSERT_EQ(::symlink("sound", (user / "sound").c_str()), 0);
    EXPECT_FALSE(folder.Exists("sound"));
    files.WriteWhole(installed / "sound", BytesOf("installed"));
    EXPECT_EQ(StringOf(folder.ReadWhole("sound")), "installed");
    EXPECT_THROW(folder.WriteWhole("sound", BytesOf("own")), FileFault);
    EXPECT_EQ(StringOf(folder.ReadWhole("sound")), "installed");
}

}  // namespace
}  // namespace horavex
