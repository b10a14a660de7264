#include "linux/registry_file.h"

#include "linux/file_status.h"
#include "linux/posix_files.h"
#include "platform/failing_files.h"
#include "platform/memory_files.h"
#include "support/temporary_folder.h"

namespace horavex {
namespace {

const std::string kKey = "Software\\Horavex\\Settings";
const std::string kUser = "/home/me/.config/horavex/registry.ini";
const std::string kMachine = "/etc/xdg/horavex/registry.ini";

class RegistryFileTest : public testing::Test {
protected:
    void PutMachine(const std::string& values) {
        files.WriteWhole(kMachine, BytesOf("[Software\\\\Horavex\\\\Settings]\n" + values));
    }

    std::string Query(const std::string& name) {
        std::string value = "untouched";
        code = registry.QueryValue(kKey, name, value);
        return value;
    }

    MemoryFiles files;
    FailingFiles failing{files};
    RegistryFile registry{failing, kUser, kMachine};
    std::int32_t code = kRegistrySuccess;
};

TEST_F(RegistryFileTest, WithoutFilesNothingIsFoundAndNothingIsMade) {
    EXPECT_EQ(registry.OpenKey(kKey, kRegistryAllAccess), kRegistryNotFound);
    EXPECT_EQ(registry.SetValue(kKey, "a", "b"), kRegistryNotFound);
    EXPECT_EQ(registry.DeleteValue(kKey, "a"), kRegistryNotFound);
    EXPECT_EQ(registry.DeleteKey(kKey), kRegistryNotFound);
    EXPECT_EQ(Query("a"), "untouched");
    EXPECT_EQ(code, kRegistryNotFound);
    EXPECT_FALSE(files.Exists(kUser));
}

TEST_F(RegistryFileTest, WrittenValueIsReadByAnotherStoreOnTheSameFiles) {
    EXPECT_EQ(registry.CreateKey(kKey), kRegistrySuccess);
    EXPECT_EQ(registry.SetValue(kKey, "Isha Dep Angle", "18"), kRegistrySuccess);
    EXPECT_EQ(registry.SetValue(kKey, "", "default"), kRegistrySuccess);
    RegistryFile another(files, kUser, kMachine);
    std::string value;
    EXPECT_EQ(another.QueryValue(kKey, "ISHA DEP ANGLE", value), kRegistrySuccess);
    EXPECT_EQ(value, "18");
    EXPECT_EQ(Query(""), "default");
    EXPECT_EQ(StringOf(files.Contents(kUser)),
              "[Software\\\\Horavex\\\\Settings]\nIsha Dep Angle=18\n@=default\n");
}

TEST_F(RegistryFileTest, EmptyTextIsAValue) {
    registry.CreateKey(kKey);
    registry.SetValue(kKey, "Language", "");
    EXPECT_EQ(Query("Language"), "");
    EXPECT_EQ(code, kRegistrySuccess);
}

TEST_F(RegistryFileTest, ExistingKeyOpensWithBothMasks) {
    registry.CreateKey(kKey);
    EXPECT_EQ(registry.OpenKey(kKey, kRegistryAllAccess), kRegistrySuccess);
    EXPECT_EQ(registry.OpenKey(kKey, kRegistryRead), kRegistrySuccess);
}

TEST_F(RegistryFileTest, MachineWideValueIsTheDefaultBehindTheUsers) {
    PutMachine("Language=Bengali\nOther=1\n");
    EXPECT_EQ(registry.OpenKey(kKey, kRegistryAllAccess), kRegistrySuccess);
    EXPECT_EQ(Query("Language"), "Bengali");
    EXPECT_EQ(registry.SetValue(kKey, "Language", "Arabic"), kRegistrySuccess);
    EXPECT_EQ(Query("Language"), "Arabic");
    EXPECT_EQ(Query("Other"), "1");
    EXPECT_EQ(StringOf(files.Contents(kUser)),
              "[Software\\\\Horavex\\\\Settings]\nLanguage=Arabic\n");
}

TEST_F(RegistryFileTest, MachineWideFileIsNeverWritten) {
    PutMachine("Language=Bengali\n");
    const Bytes before = files.Contents(kMachine);
    registry.CreateKey(kKey);
    EXPECT_FALSE(files.Exists(kUser)) << "the key is there already";
    registry.SetValue(kKey, "Language", "Arabic");
    registry.DeleteValue(kKey, "Language");
    registry.DeleteKey(kKey);
    EXPECT_EQ(files.Contents(kMachine), before);
}

TEST_F(RegistryFileTest, WhatOnlyTheMachineHasCannotBeDeleted) {
    PutMachine("Language=Bengali\n");
    EXPECT_EQ(registry.DeleteValue(kKey, "Language"), kRegistryAccessDenied);
    EXPECT_EQ(registry.DeleteValue(kKey, "Other"), kRegistryNotFound);
    EXPECT_EQ(registry.DeleteKey(kKey), kRegistryAccessDenied);
    EXPECT_EQ(registry.DeleteKey("other"), kRegistryNotFound);
    EXPECT_EQ(Query("Language"), "Bengali");
}

TEST_F(RegistryFileTest, DeletingTheUsersUncoversTheMachineWide) {
    PutMachine("Language=Bengali\n");
    registry.SetValue(kKey, "Language", "Arabic");
    EXPECT_EQ(registry.DeleteValue(kKey, "Language"), kRegistrySuccess);
    EXPECT_EQ(Query("Language"), "Bengali");
    EXPECT_EQ(registry.DeleteKey(kKey), kRegistrySuccess);
    EXPECT_EQ(registry.OpenKey(kKey, kRegistryRead), kRegistrySuccess);
}

TEST_F(RegistryFileTest, DeletedValueAndKeyAreGone) {
    registry.CreateKey(kKey);
    registry.SetValue(kKey, "a", "1");
    EXPECT_EQ(registry.DeleteValue(kKey, "A"), kRegistrySuccess);
    EXPECT_EQ(Query("a"), "untouched");
    EXPECT_EQ(registry.DeleteKey(kKey), kRegistrySuccess);
    EXPECT_EQ(registry.OpenKey(kKey, kRegistryRead), kRegistryNotFound);
}

TEST_F(RegistryFileTest, ChangeFromOutsideCounts) {
    registry.CreateKey(kKey);
    registry.SetValue(kKey, "a", "1");
    std::string text = StringOf(files.Contents(kUser));
    text.replace(text.find("a=1"), 3, "a=2");
    files.WriteWhole(kUser, BytesOf(text));
    EXPECT_EQ(Query("a"), "2");
}

TEST_F(RegistryFileTest, DamagedLinesSurviveAWrite) {
    files.WriteWhole(kUser, BytesOf("rubbish \xFF\n[" + kKey + "]\nmore\n"));
    EXPECT_EQ(registry.SetValue(kKey, "a", "1"), kRegistrySuccess);
    EXPECT_EQ(StringOf(files.Contents(kUser)), "rubbish \xFF\n[" + kKey + "]\nmore\na=1\n");
}

TEST_F(RegistryFileTest, SameValueAgainWritesNothing) {
    registry.CreateKey(kKey);
    registry.SetValue(kKey, "a", "1");
    failing.FailCall(3);  // open, read, and then the write
    EXPECT_EQ(registry.SetValue(kKey, "a", "1"), kRegistrySuccess);
}

TEST_F(RegistryFileTest, TextThatIsNoUtf8IsRefused) {
    registry.CreateKey(kKey);
    EXPECT_EQ(registry.SetValue(kKey, "a", "\xFF"), kRegistryWriteFault);
    EXPECT_EQ(registry.SetValue(kKey, "\xFF", "a"), kRegistryWriteFault);
    EXPECT_EQ(registry.CreateKey("\xFF"), kRegistryWriteFault);
    EXPECT_EQ(Query("a"), "untouched");
}

TEST_F(RegistryFileTest, UnreadableUsersFileDeniesEverythingAndIsNotWrittenOver) {
    files.WriteWhole(kUser + "/in the way", {});  // a folder where the file should be
    PutMachine("Language=Bengali\n");
    EXPECT_EQ(registry.OpenKey(kKey, kRegistryAllAccess), kRegistryAccessDenied);
    EXPECT_EQ(registry.OpenKey(kKey, kRegistryRead), kRegistryAccessDenied);
    EXPECT_EQ(registry.CreateKey(kKey), kRegistryAccessDenied);
    EXPECT_EQ(registry.SetValue(kKey, "a", "1"), kRegistryAccessDenied);
    EXPECT_EQ(registry.DeleteValue(kKey, "a"), kRegistryAccessDenied);
    EXPECT_EQ(registry.DeleteKey(kKey), kRegistryAccessDenied);
    EXPECT_EQ(Query("Language"), "untouched");
    EXPECT_EQ(code, kRegistryAccessDenied);
}

TEST_F(RegistryFileTest, UnreadableMachineWideFileCountsAsEmpty) {
    files.WriteWhole(kMachine + "/in the way", {});
    EXPECT_EQ(registry.CreateKey(kKey), kRegistrySuccess);
    EXPECT_EQ(registry.SetValue(kKey, "a", "1"), kRegistrySuccess);
    EXPECT_EQ(Query("a"), "1");
    EXPECT_EQ(Query("b"), "untouched");
    EXPECT_EQ(code, kRegistryNotFound);
}

// Every call below the store fails once, both ways: the value is the old or the new one, its
// neighbour stays, and the code tells which.
TEST_F(RegistryFileTest, FailureOfAnyCallLeavesTheOldOrTheNewValue) {
    for (const WriteFailure failure : {WriteFailure::kAtStart, WriteFailure::kHalfWay}) {
        registry.CreateKey(kKey);
        registry.SetValue(kKey, "neighbour", "kept");
        int n = 0;
        do {
            failing.FailCall(0);
            registry.SetValue(kKey, "a", "old");
            failing.FailCall(++n, failure);
            const std::int32_t result = registry.SetValue(kKey, "a", "new");
            const bool failed = failing.Calls() >= n;
            failing.FailCall(0);
            EXPECT_EQ(result == kRegistrySuccess, !failed) << n;
            EXPECT_EQ(Query("a"), failed ? "old" : "new") << n;
            EXPECT_EQ(Query("neighbour"), "kept") << n;
        } while (Query("a") == "old");
        EXPECT_EQ(n, 4) << "open, read and write can fail";
    }
}

TEST_F(RegistryFileTest, FailedReadOfTheMachineWideFileDoesNotStopAWrite) {
    PutMachine("Language=Bengali\n");
    registry.SetValue(kKey, "a", "old");
    for (int n = 3; n <= 4; ++n) {  // behind the user's open and read
        failing.FailCall(n);
        EXPECT_EQ(registry.SetValue(kKey, "a", std::to_string(n)), kRegistrySuccess);
        EXPECT_EQ(Query("a"), std::to_string(n));
    }
}

TEST_F(RegistryFileTest, FailedWriteOfAKeyOrOfADeletionIsAWriteFault) {
    failing.FailCall(1);
    EXPECT_EQ(registry.CreateKey(kKey), kRegistryWriteFault);
    EXPECT_EQ(registry.OpenKey(kKey, kRegistryRead), kRegistryNotFound);
    failing.FailCall(0);
    registry.CreateKey(kKey);
    registry.SetValue(kKey, "a", "1");
    failing.FailCall(3);
    EXPECT_EQ(registry.DeleteValue(kKey, "a"), kRegistryWriteFault);
    failing.FailCall(3);
    EXPECT_EQ(registry.DeleteKey(kKey), kRegistryWriteFault);
    EXPECT_EQ(Query("a"), "1");
}

TEST(RegistryFileOnDisk, MakesItsFolderAndKeepsValues) {
    const TemporaryFolder folder;
    PosixFiles files;
    RegistryFile registry(files, folder / "config/horavex/registry.ini", folder / "none.ini");
    EXPECT_EQ(registry.CreateKey(kKey), kRegistrySuccess);
    EXPECT_EQ(registry.SetValue(kKey, "Language", "\xD8\xB9 =\\\n "), kRegistrySuccess);
    std::string value;
    EXPECT_EQ(registry.QueryValue(kKey, "Language", value), kRegistrySuccess);
    EXPECT_EQ(value, "\xD8\xB9 =\\\n ");
    EXPECT_THAT(files.List(folder / "config/horavex"), testing::ElementsAre("registry.ini"));
}

TEST(RegistryFileOnDisk, FolderThatCannotBeMadeIsAWriteFault) {
    const TemporaryFolder folder;
    PosixFiles files;
    files.WriteWhole(folder / "config", BytesOf("a file"));
    RegistryFile registry(files, folder / "config/registry.ini", folder / "none.ini");
    EXPECT_EQ(registry.CreateKey(kKey), kRegistryWriteFault);
    EXPECT_EQ(registry.OpenKey(kKey, kRegistryRead), kRegistryNotFound);
}

TEST(RegistryFileOnDisk, UnchangedFileIsReadOnceAndAChangedOneAnew) {
    const TemporaryFolder folder;
    PosixFiles disk;
    FailingFiles files(disk);
    const std::string path = folder / "registry.ini";
    RegistryFile registry(files, path, folder / "none.ini", StampOfFile);
    const auto query = [&](const char* name) {
        std::string value = "nothing";
        registry.QueryValue(kKey, name, value);
        return value;
    };
    registry.CreateKey(kKey);
    registry.SetValue(kKey, "a", "1");
    EXPECT_EQ(query("a"), "1");
    const int calls = files.Calls();
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(query("a"), "1");
        EXPECT_EQ(query("b"), "nothing");
    }
    EXPECT_EQ(files.Calls(), calls);
    PosixFiles outside;
    RegistryFile(outside, path, folder / "none.ini").SetValue(kKey, "a", "2");
    EXPECT_EQ(query("a"), "2");
    registry.SetValue(kKey, "a", "3");
    EXPECT_EQ(query("a"), "3");
    disk.Delete(path);
    EXPECT_EQ(query("a"), "nothing");
}

TEST(StampOfFileTest, ChangesWithTheFileAndIsTheSameForNamesThatAreFree) {
    const TemporaryFolder folder;
    PosixFiles files;
    EXPECT_EQ(StampOfFile(folder / "a"), StampOfFile(folder / "b"));
    files.WriteWhole(folder / "a", BytesOf("1"));
    const std::string first = StampOfFile(folder / "a");
    EXPECT_NE(first, StampOfFile(folder / "b"));
    EXPECT_EQ(first, StampOfFile(folder / "a"));
    files.WriteWhole(folder / "a", BytesOf("2"));
    EXPECT_NE(first, StampOfFile(folder / "a"));
}

TEST(SettledStampTest, OnlyWhatHasRestedForAWhileHasOne) {
    const TemporaryFolder folder;
    EXPECT_EQ(SettledStamp("/proc/version/none"), "");  // no folder
    EXPECT_EQ(SettledStamp(folder / "free"), StampOfFile(folder / "free"));
    EXPECT_EQ(SettledStamp("/bin/sh"), StampOfFile("/bin/sh"));
    EXPECT_NE(SettledStamp("/bin/sh"), "");
    PosixFiles files;
    files.WriteWhole(folder / "new", BytesOf("1"));
    EXPECT_EQ(SettledStamp(folder / "new"), "");
    EXPECT_EQ(files.StampOf(folder / "new"), "");
    EXPECT_EQ(files.StampOf("/bin/sh"), StampOfFile("/bin/sh"));
}

TEST_F(RegistryFileTest, FileOfMoreThanAMegabyteIsNoneAndNoneIsWritten) {
    files.WriteWhole(kUser, Bytes(kLargestText, '#'));
    EXPECT_EQ(registry.CreateKey(kKey), kRegistryWriteFault);
    files.Contents(kUser).push_back('#');
    EXPECT_EQ(registry.OpenKey(kKey, kRegistryRead), kRegistryAccessDenied);
    EXPECT_EQ(files.Contents(kUser).size(), std::size_t{kLargestText} + 1);
}

}  // namespace
}  // namespace horavex
