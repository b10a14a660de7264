#include "linux/posix_files.h"

#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <filesystem>
#include <limits>

#include "base/fault.h"
#include "support/temporary_folder.h"

namespace horavex {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class PosixFilesTest : public testing::Test {
protected:
    void Put(const std::string& name, const std::string& text) {
        files.WriteWhole(folder / name, BytesOf(text));
    }

    TemporaryFolder folder;
    PosixFiles files;
};

TEST_F(PosixFilesTest, ReadsAtPositions) {
    Put("a", "0123456789");
    const auto file = files.OpenForReading(folder / "a");
    EXPECT_EQ(file->Size(), 10);
    EXPECT_EQ(StringOf(file->ReadAt(7, 2)), "78");
    EXPECT_EQ(StringOf(file->ReadAt(0, 3)), "012");
    EXPECT_THAT(file->ReadAt(0, 0), IsEmpty());
}

TEST_F(PosixFilesTest, OutputReplacesTheFileWithItsCommitAlone) {
    Put("a", "0123456789");
    {
        const auto file = files.OpenForWriting(folder / "a");
        file->Append(BytesOf("ab"));
        file->Append({});
        file->Append(BytesOf("cd"));
        EXPECT_EQ(StringOf(ReadWhole(files, folder / "a")), "0123456789");
        file->Commit();
        EXPECT_EQ(StringOf(ReadWhole(files, folder / "a")), "abcd");
    }
    EXPECT_THAT(files.List(folder.Path()), ElementsAre("a"));
}

TEST_F(PosixFilesTest, OutputWithoutACommitLeavesNothing) {
    Put("a", "old");
    files.OpenForWriting(folder / "a")->Append(BytesOf("new"));
    files.OpenForWriting(folder / "b")->Append(BytesOf("new"));
    EXPECT_THAT(files.List(folder.Path()), ElementsAre("a"));
    EXPECT_EQ(StringOf(ReadWhole(files, folder / "a")), "old");
}

TEST_F(PosixFilesTest, OutputMakesTheFileButNoFolder) {
    WriteChosenFile(files, folder / "new", BytesOf("x"));
    EXPECT_EQ(StringOf(ReadWhole(files, folder / "new")), "x");
    EXPECT_THROW(files.OpenForWriting(folder / "missing/new"), FileFault);
    EXPECT_FALSE(files.Exists(folder / "missing"));
}

TEST_F(PosixFilesTest, OutputIntoAFolderOrAPipeIsAFaultAtOnce) {
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_THROW(files.OpenForWriting(folder / "pipe"), FileFault);
    EXPECT_THROW(files.OpenForWriting(folder / "."), FileFault);
    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
}

TEST_F(PosixFilesTest, FileLargerThanItsKindIsAFaultBeforeAByteIsRead) {
    Put("a", "0123456789");
    EXPECT_EQ(ReadWhole(files, folder / "a", 10).size(), 10U);
    EXPECT_THROW(ReadWhole(files, folder / "a", 9), FileFault);
    fs::resize_file(folder / "a", kLargestTable + 1);  // a file of holes
    EXPECT_THROW(ReadWhole(files, folder / "a"), FileFault);
}

TEST_F(PosixFilesTest, LinkToADeviceIsAFaultThatLeavesTheDevice) {
    if (::mknod((folder / "device").c_str(), S_IFCHR | 0600, makedev(1, 3)) != 0) {
        // Only root makes devices; anybody else can do no harm to one of the system.
        fs::create_symlink("/dev/null", folder / "device");
    }
    fs::create_symlink("device", folder / "link");
    for (const char* name : {"device", "link"}) {
        EXPECT_THROW(files.OpenForWriting(folder / name), FileFault);
        EXPECT_THROW(files.WriteWhole(folder / name, BytesOf("x")), FileFault);
        EXPECT_THROW(files.OpenForReading(folder / name), FileFault);
    }
    EXPECT_TRUE(fs::is_character_file(folder / "device"));
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
}

TEST_F(PosixFilesTest, ReadEndsWithTheFile) {
    Put("a", "0123456789");
    const auto file = files.OpenForReading(folder / "a");
    EXPECT_EQ(StringOf(file->ReadAt(8, 100)), "89");
    EXPECT_THAT(file->ReadAt(10, 1), IsEmpty());
    EXPECT_THAT(file->ReadAt(std::numeric_limits<std::int64_t>::max(), 1), IsEmpty());
    EXPECT_EQ(file->ReadAt(0, std::numeric_limits<std::size_t>::max()).size(), 10U);
}

TEST_F(PosixFilesTest, NegativeOffsetIsAFault) {
    Put("a", "0123456789");
    const auto file = files.OpenForReading(folder / "a");
    EXPECT_THROW(file->ReadAt(-1, 1), FileFault);
    EXPECT_THROW(file->ReadAt(std::numeric_limits<std::int64_t>::min(), 1), FileFault);
}

TEST_F(PosixFilesTest, FileThatShrinksUnderItsReaderEndsEarlier) {
    Put("a", "0123456789");
    const auto file = files.OpenForReading(folder / "a");
    fs::resize_file(folder / "a", 4);
    EXPECT_EQ(file->Size(), 4);
    EXPECT_EQ(StringOf(file->ReadAt(2, 8)), "23");
    EXPECT_THAT(file->ReadAt(8, 1), IsEmpty());
}

TEST_F(PosixFilesTest, FileThatGrowsUnderItsReaderIsReadOn) {
    Put("a", "0123");
    const auto file = files.OpenForReading(folder / "a");
    fs::resize_file(folder / "a", 6);
    EXPECT_EQ(file->ReadAt(2, 8).size(), 4U);
}

TEST_F(PosixFilesTest, OpenFileKeepsTheOldContentThroughAWrite) {
    Put("a", "old");
    const auto file = files.OpenForReading(folder / "a");
    Put("a", "newer");
    EXPECT_EQ(StringOf(file->ReadAt(0, 9)), "old");
    EXPECT_EQ(StringOf(ReadWhole(files, folder / "a")), "newer");
}

TEST_F(PosixFilesTest, MissingFileIsAFaultThatNamesThePathAndIsNotCreated) {
    try {
        files.OpenForReading(folder / "missing");
        FAIL() << "opened a missing file";
    } catch (const FileFault& fault) {
        EXPECT_EQ(fault.Path(), folder / "missing");
        EXPECT_THAT(fault.what(), testing::HasSubstr("No such file"));
    }
    EXPECT_FALSE(files.Exists(folder / "missing"));
}

TEST_F(PosixFilesTest, FolderPipeAndDeviceAreFaultsAtOnce) {
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_THROW(files.OpenForReading(folder.Path()), FileFault);
    EXPECT_THROW(files.OpenForReading(folder / "pipe"), FileFault);
    EXPECT_THROW(files.OpenForReading("/dev/null"), FileFault);
}

TEST_F(PosixFilesTest, PathWithAZeroCharacterIsNotCutShort) {
    Put("a", "text");
    const std::string path = folder / std::string("a\0.ini", 6);
    EXPECT_THROW(files.OpenForReading(path), FileFault);
    EXPECT_THROW(files.WriteWhole(path, {}), FileFault);
    EXPECT_THROW(files.Delete(path), FileFault);
    EXPECT_THROW(files.Exists(path), FileFault);
    EXPECT_THROW(files.List(path), FileFault);
    EXPECT_EQ(StringOf(ReadWhole(files, folder / "a")), "text");
}

TEST_F(PosixFilesTest, DeleteRemovesAFileAndNothingElse) {
    Put("p/a", "");
    files.Delete(folder / "p/a");
    EXPECT_FALSE(files.Exists(folder / "p/a"));
    EXPECT_THROW(files.Delete(folder / "p/a"), FileFault);
    EXPECT_THROW(files.Delete(folder / "p"), FileFault);
    EXPECT_TRUE(files.Exists(folder / "p"));
}

TEST_F(PosixFilesTest, ExistsFollowsLinks) {
    fs::create_symlink(folder / "nothing", folder / "link");
    EXPECT_FALSE(files.Exists(folder / "link"));
    Put("nothing", "");
    EXPECT_TRUE(files.Exists(folder / "link"));
    EXPECT_FALSE(files.Exists(folder / "nothing/below")) << "a file is no folder";
}

TEST_F(PosixFilesTest, WhatTheSystemCannotTellIsAFault) {
    fs::create_symlink(folder / "loop", folder / "loop");
    EXPECT_THROW(files.Exists(folder / "loop"), FileFault);
    EXPECT_THROW(files.List(folder / "loop"), FileFault);
    EXPECT_THROW(files.Exists(folder / std::string(300, 'x')), FileFault);
}

TEST_F(PosixFilesTest, ListIsInTheOrderOfBytesWithoutDots) {
    for (const char* name : {"b", "Z", "\xC3\xA9", ".hidden", "p/inner"}) {
        Put(name, "");
    }
    EXPECT_THAT(files.List(folder.Path()), ElementsAre(".hidden", "Z", "b", "p", "\xC3\xA9"));
}

TEST_F(PosixFilesTest, ListOfAMissingFolderOrOfAFileIsEmpty) {
    Put("a", "");
    EXPECT_THAT(files.List(folder / "missing"), IsEmpty());
    EXPECT_THAT(files.List(folder / "a"), IsEmpty());
}

}  // namespace
}  // namespace horavex
