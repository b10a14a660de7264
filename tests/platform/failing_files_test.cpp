#include "platform/failing_files.h"

#include "base/fault.h"
#include "platform/memory_files.h"

namespace horavex {
namespace {

using testing::ElementsAre;

class FailingFilesTest : public testing::Test {
protected:
    // One of each counted operation: write, open, read, delete.
    void RunAll() {
        failing.WriteWhole("/p/new", BytesOf("abcd"));
        failing.OpenForReading("/p/new")->ReadAt(0, 1);
        failing.Delete("/p/new");
    }

    MemoryFiles files;
    FailingFiles failing{files};
};

TEST_F(FailingFilesTest, HandsEverythingOnWhileNothingIsPicked) {
    failing.WriteWhole("/p/a", BytesOf("abcd"));
    EXPECT_TRUE(files.Exists("/p/a"));
    EXPECT_TRUE(failing.Exists("/p/a"));
    EXPECT_THAT(failing.List("/p"), ElementsAre("a"));
    EXPECT_EQ(failing.OpenForReading("/p/a")->Size(), 4);
    EXPECT_EQ(StringOf(ReadWhole(failing, "/p/a")), "abcd");
    failing.Delete("/p/a");
    EXPECT_FALSE(files.Exists("/p/a"));
}

TEST_F(FailingFilesTest, EachOfTheFourOperationsCanFail) {
    for (int n = 1; n <= 4; ++n) {
        failing.FailCall(n);
        EXPECT_THROW(RunAll(), FileFault) << n;
        EXPECT_EQ(failing.Calls(), n);
    }
    failing.FailCall(5);
    EXPECT_NO_THROW(RunAll());
}

TEST_F(FailingFilesTest, OutputFailsAtItsOpenAtEachAppendAndAtItsCommit) {
    for (int n = 1; n <= 4; ++n) {
        failing.FailCall(n);
        EXPECT_THROW(
            {
                const auto file = failing.OpenForWriting("/p/out");
                file->Append(BytesOf("ab"));
                file->Append(BytesOf("cd"));
                file->Commit();
            },
            FileFault)
            << n;
        EXPECT_FALSE(files.Exists("/p/out"));
    }
}

TEST_F(FailingFilesTest, CallsBehindTheFailedOnePassAgain) {
    failing.FailCall(1);
    EXPECT_THROW(failing.WriteWhole("/a", {}), FileFault);
    EXPECT_NO_THROW(failing.WriteWhole("/a", {}));
}

TEST_F(FailingFilesTest, ExistsAndListDoNotCount) {
    failing.FailCall(1);
    failing.Exists("/a");
    failing.List("/");
    EXPECT_EQ(failing.Calls(), 0);
}

TEST_F(FailingFilesTest, FailedWriteAndDeleteKeepTheFile) {
    files.WriteWhole("/p/a", BytesOf("old"));
    failing.FailCall(1);
    EXPECT_THROW(failing.WriteWhole("/p/a", BytesOf("new")), FileFault);
    failing.FailCall(1);
    EXPECT_THROW(failing.Delete("/p/a"), FileFault);
    EXPECT_EQ(StringOf(files.Contents("/p/a")), "old");
    EXPECT_THAT(files.List("/p"), ElementsAre("a"));
}

TEST_F(FailingFilesTest, WriteThatFailsHalfWayKeepsTheFileAndLeavesATemporaryName) {
    files.WriteWhole("/p/a", BytesOf("old"));
    failing.FailCall(1, WriteFailure::kHalfWay);
    EXPECT_THROW(failing.WriteWhole("/p/a", BytesOf("newer!")), FileFault);
    EXPECT_EQ(StringOf(files.Contents("/p/a")), "old");
    EXPECT_THAT(files.List("/p"), ElementsAre(".half-written", "a"));
    EXPECT_EQ(StringOf(files.Contents("/p/.half-written")), "new");
}

TEST_F(FailingFilesTest, HalfWayConcernsTheFailedWriteAlone) {
    failing.FailCall(2, WriteFailure::kHalfWay);
    failing.WriteWhole("/p/a", BytesOf("whole"));
    EXPECT_THAT(files.List("/p"), ElementsAre("a"));
}

}  // namespace
}  // namespace horavex
