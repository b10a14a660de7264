#include "platform/program_folder.h"

#include "base/fault.h"
#include "platform/failing_files.h"
#include "platform/memory_files.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ProgramFolderTest : public testing::Test {
protected:
    void Put(const std::string& path, const std::string& text = "x") {
        files.WriteWhole(path, BytesOf(text));
    }

    std::string Read(const std::string& path) const { return StringOf(folder.ReadWhole(path)); }

    MemoryFiles files;
    ProgramFolder folder{files, "/user", "/installed"};
};

TEST_F(ProgramFolderTest, BackslashSlashAndMixedReachTheSameFile) {
    Put("/installed/lang/flags/Arabic.bmp", "flag");
    for (const char* path :
         {"lang\\flags\\Arabic.bmp", "lang/flags/Arabic.bmp", "lang\\flags/Arabic.bmp"}) {
        EXPECT_EQ(Read(path), "flag") << path;
    }
}

TEST_F(ProgramFolderTest, LeadingDoubledAndTrailingSeparatorsDoNotCount) {
    Put("/installed/lang/Arabic.ini", "pack");
    EXPECT_EQ(Read("\\lang\\\\Arabic.ini"), "pack");
    EXPECT_EQ(Read("//lang/./Arabic.ini"), "pack");
    EXPECT_THAT(folder.List("\\Lang\\"), ElementsAre("Arabic.ini"));
}

TEST_F(ProgramFolderTest, LetterCaseOfEveryComponentIsIgnored) {
    Put("/installed/Dat/Sub/AI.DAT", "record");
    EXPECT_EQ(Read("dAT\\SUB\\ai.dat"), "record");
    EXPECT_EQ(folder.RealPath("dAT\\SUB\\ai.dat"), "/installed/Dat/Sub/AI.DAT");
}

TEST_F(ProgramFolderTest, ExactSpellingWinsAmongNamesThatDifferInLetterCase) {
    Put("/user/Dat/AI.DAT", "upper");
    Put("/user/Dat/ai.dat", "lower");
    EXPECT_EQ(Read("Dat/AI.DAT"), "upper");
    EXPECT_EQ(Read("Dat/ai.dat"), "lower");
    EXPECT_EQ(Read("Dat/Ai.Dat"), "upper") << "first in the order of bytes";
}

TEST_F(ProgramFolderTest, FoldersThatDifferInLetterCaseAreAllSearched) {
    Put("/user/LANG/Arabic.ini", "upper");
    Put("/user/lang/Bengali.ini", "lower");
    EXPECT_EQ(Read("lang/arabic.ini"), "upper");
    EXPECT_EQ(Read("LANG/bengali.ini"), "lower");
}

TEST_F(ProgramFolderTest, UsersFileHidesTheInstalledOne) {
    Put("/installed/Dat/AI.DAT", "installed");
    EXPECT_EQ(Read("Dat/AI.DAT"), "installed");
    Put("/user/dat/ai.dat", "user");
    EXPECT_EQ(Read("Dat/AI.DAT"), "user");
    EXPECT_EQ(folder.RealPath("Dat/AI.DAT"), "/user/dat/ai.dat");
}

TEST_F(ProgramFolderTest, OpenGivesTheFileThatReadWholeReads) {
    Put("/installed/Dat/AI.DAT", "0123456789");
    const auto file = folder.OpenForReading("DAT\\AI.DAT");
    EXPECT_EQ(file->Size(), 10);
    EXPECT_EQ(StringOf(file->ReadAt(4, 3)), "456");
}

TEST_F(ProgramFolderTest, MissingFileIsAFaultAndIsNotCreated) {
    EXPECT_THROW(folder.OpenForReading("Dat/AI.DAT"), FileFault);
    EXPECT_THROW(folder.ReadWhole("Dat/AI.DAT"), FileFault);
    EXPECT_FALSE(folder.Exists("Dat/AI.DAT"));
    EXPECT_FALSE(files.Exists("/user"));
}

TEST_F(ProgramFolderTest, FolderIsNoFileToRead) {
    Put("/installed/Dat/AI.DAT");
    EXPECT_THROW(folder.ReadWhole("Dat"), FileFault);
}

TEST_F(ProgramFolderTest, ExistsSeesFilesAndFoldersOfBoth) {
    Put("/user/Dat/AI.DAT");
    Put("/installed/lang/Arabic.ini");
    EXPECT_TRUE(folder.Exists("dat"));
    EXPECT_TRUE(folder.Exists("DAT\\ai.dat"));
    EXPECT_TRUE(folder.Exists("Lang\\arabic.ini"));
    EXPECT_FALSE(folder.Exists("Lang\\ai.dat"));
    EXPECT_FALSE(folder.Exists("Dat\\AI.DAT\\more"));
}

TEST_F(ProgramFolderTest, EmptyPathIsTheFolderItself) {
    EXPECT_FALSE(folder.Exists(""));
    EXPECT_EQ(folder.RealPath("\\"), "/user");
    Put("/installed/Dat/AI.DAT");
    EXPECT_TRUE(folder.Exists(""));
    EXPECT_EQ(folder.RealPath("\\"), "/installed");
    EXPECT_THAT(folder.List("\\"), ElementsAre("Dat"));
}

TEST_F(ProgramFolderTest, ListPutsTheUsersNamesFirstAndEachNameOnce) {
    Put("/user/lang/Zulu.ini");
    Put("/user/lang/arabic.ini");
    Put("/installed/Lang/Arabic.ini");
    Put("/installed/Lang/English.ini");
    Put("/installed/Lang/Bengali.ini");
    EXPECT_THAT(folder.List("LANG"),
                ElementsAre("Zulu.ini", "arabic.ini", "Bengali.ini", "English.ini"));
}

TEST_F(ProgramFolderTest, ListOfAMissingFolderOrOfAFileIsEmpty) {
    EXPECT_THAT(folder.List("lang"), IsEmpty());
    Put("/user/lang");
    EXPECT_THAT(folder.List("lang"), IsEmpty());
}

TEST_F(ProgramFolderTest, WriteGoesToTheUsersFolderAlone) {
    Put("/installed/Dat/AI.DAT", "installed");
    folder.WriteWhole("Dat\\AI.DAT", BytesOf("mine"));
    EXPECT_EQ(StringOf(files.Contents("/user/Dat/AI.DAT")), "mine");
    EXPECT_EQ(StringOf(files.Contents("/installed/Dat/AI.DAT")), "installed");
}

TEST_F(ProgramFolderTest, WriteKeepsTheUsersSpelling) {
    Put("/user/dat/ai.dat", "old");
    Put("/installed/Dat/AI.DAT", "installed");
    folder.WriteWhole("DAT\\AI.dat", BytesOf("new"));
    EXPECT_EQ(StringOf(files.Contents("/user/dat/ai.dat")), "new");
    EXPECT_THAT(files.List("/user/dat"), ElementsAre("ai.dat"));
}

TEST_F(ProgramFolderTest, NewFileTakesTheInstalledSpelling) {
    Put("/installed/Dat/AI.DAT");
    EXPECT_EQ(folder.RealPath("dat\\new.dat"), "/user/Dat/new.dat");
    folder.WriteWhole("dat\\ai.dat", BytesOf("x"));
    EXPECT_TRUE(files.Exists("/user/Dat/AI.DAT"));
}

TEST_F(ProgramFolderTest, NewFileInAUsersFolderTakesItsNameFromTheInstalledOne) {
    Put("/user/dat/other");
    Put("/installed/Dat/AI.DAT");
    folder.WriteWhole("DAT\\ai.dat", BytesOf("x"));
    EXPECT_THAT(files.List("/user/dat"), ElementsAre("AI.DAT", "other"));
}

TEST_F(ProgramFolderTest, NewFileOfUnknownNameIsSpelledAsGiven) {
    folder.WriteWhole("\\Athan\\fagr_Athan.mp3", BytesOf("sound"));
    EXPECT_EQ(StringOf(files.Contents("/user/Athan/fagr_Athan.mp3")), "sound");
}

TEST_F(ProgramFolderTest, DeleteUncoversTheInstalledFile) {
    Put("/user/dat/update.txt", "user");
    Put("/installed/Dat/update.txt", "installed");
    folder.Delete("Dat\\UPDATE.txt");
    EXPECT_EQ(Read("Dat\\update.txt"), "installed");
}

TEST_F(ProgramFolderTest, DeleteNeverReachesTheInstalledFile) {
    Put("/installed/Dat/update.txt");
    EXPECT_THROW(folder.Delete("Dat\\update.txt"), FileFault);
    EXPECT_TRUE(files.Exists("/installed/Dat/update.txt"));
}

TEST_F(ProgramFolderTest, DeleteOfAMissingFileIsAFault) {
    EXPECT_THROW(folder.Delete("Dat\\update.txt"), FileFault);
}

TEST_F(ProgramFolderTest, DotsThatLeadOutAreAFaultInEveryOperation) {
    Put("/secret");
    for (const char* path : {"..", "..\\secret", "Dat\\..\\..\\secret", "/../secret"}) {
        EXPECT_THROW(folder.OpenForReading(path), FileFault) << path;
        EXPECT_THROW(folder.ReadWhole(path), FileFault) << path;
        EXPECT_THROW(folder.Exists(path), FileFault) << path;
        EXPECT_THROW(folder.List(path), FileFault) << path;
        EXPECT_THROW(folder.WriteWhole(path, {}), FileFault) << path;
        EXPECT_THROW(folder.Delete(path), FileFault) << path;
        EXPECT_THROW(folder.RealPath(path), FileFault) << path;
    }
    EXPECT_TRUE(files.Exists("/secret"));
}

TEST_F(ProgramFolderTest, NameOfDotsThatIsNoStepUpIsAName) {
    folder.WriteWhole("...", BytesOf("x"));
    EXPECT_EQ(Read("..."), "x");
}

TEST_F(ProgramFolderTest, OneFolderForBothIsReadAndWritten) {
    const ProgramFolder portable(files, "/stick", "/stick");
    Put("/stick/dat/ai.dat", "old");
    portable.WriteWhole("Dat\\AI.DAT", BytesOf("new"));
    EXPECT_EQ(StringOf(portable.ReadWhole("Dat\\AI.DAT")), "new");
    EXPECT_THAT(portable.List("Dat"), ElementsAre("ai.dat"));
    portable.Delete("DAT\\AI.DAT");
    EXPECT_FALSE(portable.Exists("Dat\\AI.DAT"));
}

/// Files of which nothing below one folder can be looked into.
class ShutFiles : public FailingFiles {
public:
    ShutFiles(Files& files, std::string shut) : FailingFiles(files), shut_(std::move(shut)) {}

    bool Exists(const std::string& path) override {
        Test(path);
        return FailingFiles::Exists(path);
    }

    std::vector<std::string> List(const std::string& folder) override {
        Test(folder);
        return FailingFiles::List(folder);
    }

private:
    void Test(const std::string& path) const {
        if (path.starts_with(shut_)) {
            throw FileFault(path, "Permission denied");
        }
    }

    std::string shut_;
};

TEST_F(ProgramFolderTest, UserFolderThatCannotBeLookedIntoCountsAsEmpty) {
    ShutFiles shut(files, "/user");
    const ProgramFolder unreadable(shut, "/user", "/installed");
    Put("/user/lang/German.ini", "own");
    Put("/installed/lang/German.ini", "shipped");
    EXPECT_TRUE(unreadable.Exists("lang\\German.ini"));
    EXPECT_FALSE(unreadable.Exists("lang\\Spanish.ini"));
    EXPECT_EQ(StringOf(unreadable.ReadWhole("lang\\German.ini")), "shipped");
    EXPECT_THAT(unreadable.List("lang"), ElementsAre("German.ini"));
    EXPECT_EQ(unreadable.RealPath("lang\\German.ini"), "/installed/lang/German.ini");
}

TEST_F(ProgramFolderTest, FileThatCannotBeLookedAtGivesWayToTheInstalledOne) {
    ShutFiles shut(files, "/user/Athan/athan.mp3");
    const ProgramFolder unreadable(shut, "/user", "/installed");
    Put("/user/Athan/athan.mp3", "own");
    EXPECT_FALSE(unreadable.Exists("Athan\\athan.mp3"));
    Put("/installed/Athan/athan.mp3", "shipped");
    EXPECT_EQ(StringOf(unreadable.ReadWhole("Athan\\athan.mp3")), "shipped");
}

TEST_F(ProgramFolderTest, FaultOfTheFilesPassesThrough) {
    FailingFiles failing(files);
    const ProgramFolder broken(failing, "/user", "/installed");
    Put("/user/Dat/AI.DAT", "old");
    failing.FailCall(1);
    EXPECT_THROW(broken.WriteWhole("Dat\\AI.DAT", BytesOf("new")), FileFault);
    failing.FailCall(2);
    EXPECT_THROW(broken.ReadWhole("Dat\\AI.DAT"), FileFault);
    EXPECT_EQ(Read("Dat\\AI.DAT"), "old");
}

}  // namespace
}  // namespace horavex
