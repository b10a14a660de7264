#include "platform/memory_files.h"

#include <limits>

#include "base/fault.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(MemoryFiles, WrittenBytesAreReadBack) {
    MemoryFiles files;
    files.WriteWhole("/a/b", BytesOf("first"));
    files.WriteWhole("/a/b", BytesOf("second"));
    EXPECT_EQ(StringOf(ReadWhole(files, "/a/b")), "second");
}

TEST(MemoryFiles, ReadEndsWithTheFile) {
    MemoryFiles files;
    files.WriteWhole("/a", BytesOf("0123456789"));
    const auto file = files.OpenForReading("/a");
    EXPECT_EQ(StringOf(file->ReadAt(2, 3)), "234");
    EXPECT_EQ(StringOf(file->ReadAt(8, 100)), "89");
    EXPECT_THAT(file->ReadAt(10, 1), IsEmpty());
    EXPECT_THAT(file->ReadAt(std::numeric_limits<std::int64_t>::max(), 1), IsEmpty());
    EXPECT_EQ(file->ReadAt(0, std::numeric_limits<std::size_t>::max()).size(), 10U);
    EXPECT_THROW(file->ReadAt(-1, 1), FileFault);
}

TEST(MemoryFiles, OpenFileKeepsTheOldContentThroughAWrite) {
    MemoryFiles files;
    files.WriteWhole("/a", BytesOf("old"));
    const auto file = files.OpenForReading("/a");
    files.WriteWhole("/a", BytesOf("newer"));
    EXPECT_EQ(file->Size(), 3);
    files.Delete("/a");
    EXPECT_EQ(StringOf(file->ReadAt(0, 9)), "old");
}

TEST(MemoryFiles, OpenFileSeesAChangeInPlace) {
    MemoryFiles files;
    files.WriteWhole("/a", BytesOf("0123456789"));
    const auto file = files.OpenForReading("/a");
    files.Contents("/a").resize(4);
    EXPECT_EQ(file->Size(), 4);
    EXPECT_EQ(StringOf(file->ReadAt(2, 8)), "23");
    EXPECT_THAT(file->ReadAt(8, 1), IsEmpty());
}

TEST(MemoryFiles, MissingFileIsAFaultThatNamesThePath) {
    MemoryFiles files;
    EXPECT_THROW(files.OpenForReading("/a"), FileFault);
    EXPECT_THROW(files.Contents("/a"), FileFault);
    try {
        files.Delete("/a");
        FAIL() << "deleted a missing file";
    } catch (const FileFault& fault) {
        EXPECT_EQ(fault.Path(), "/a");
    }
}

TEST(MemoryFiles, ListGivesNamesOfFilesAndFoldersInTheOrderOfTheirBytes) {
    MemoryFiles files;
    for (const char* path : {"/p/b/2", "/p/a", "/p/b/1", "/p/b.txt", "/p/\xC3\xA9", "/p/Z", "/q"}) {
        files.WriteWhole(path, {});
    }
    EXPECT_THAT(files.List("/p"), ElementsAre("Z", "a", "b", "b.txt", "\xC3\xA9"));
    EXPECT_THAT(files.List("/p/b"), ElementsAre("1", "2"));
    EXPECT_THAT(files.List("/missing"), IsEmpty());
}

TEST(MemoryFiles, FolderGoesWithItsLastFile) {
    MemoryFiles files;
    files.WriteWhole("/p/q/a", {});
    EXPECT_TRUE(files.Exists("/p"));
    EXPECT_TRUE(files.Exists("/p/q"));
    files.Delete("/p/q/a");
    EXPECT_FALSE(files.Exists("/p/q/a"));
    EXPECT_FALSE(files.Exists("/p"));
}

TEST(MemoryFiles, FolderIsNoFile) {
    MemoryFiles files;
    files.WriteWhole("/p/a", {});
    EXPECT_THROW(files.OpenForReading("/p"), FileFault);
    EXPECT_THROW(files.WriteWhole("/p", {}), FileFault);
    EXPECT_THROW(files.Delete("/p"), FileFault);
}

TEST(MemoryFiles, FileIsNoFolder) {
    MemoryFiles files;
    files.WriteWhole("/p/a", {});
    EXPECT_THROW(files.WriteWhole("/p/a/b", {}), FileFault);
    EXPECT_THROW(files.WriteWhole("/p/a/b/c", {}), FileFault);
    EXPECT_FALSE(files.Exists("/p/a/b"));
}

}  // namespace
}  // namespace horavex
