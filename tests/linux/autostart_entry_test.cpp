#include "linux/autostart_entry.h"

#include <filesystem>
#include <fstream>

#include "base/fault.h"
#include "e2e/harness/wait_until.h"
#include "linux/posix_files.h"
#include "platform/memory_files.h"
#include "support/run_program.h"
#include "support/scoped_variable.h"
#include "support/temporary_folder.h"

namespace horavex {
namespace {

class AutostartEntriesTest : public testing::Test {
protected:
    std::string Exec(const std::string& executable) {
        AutostartEntries(files, executable).Write("Prayer");
        const Bytes bytes = ReadWhole(files, "/home/me/.config/autostart/Prayer.desktop");
        const std::string text(bytes.begin(), bytes.end());
        const std::size_t begin = text.find("Exec=") + 5;
        return text.substr(begin, text.find('\n', begin) - begin);
    }

    ScopedVariable config{"XDG_CONFIG_HOME", "/home/me/.config"};
    MemoryFiles files;
    AutostartEntries entries{files, "/usr/bin/horavex"};
};

TEST_F(AutostartEntriesTest, EntryIsADesktopFileOfItsNameInTheUsersFolder) {
    EXPECT_EQ(entries.Path("Prayer"), "/home/me/.config/autostart/Prayer.desktop");
    entries.Write("Prayer");
    const Bytes bytes = ReadWhole(files, entries.Path("Prayer"));
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()),
              "[Desktop Entry]\nType=Application\nName=Horavex\nExec=\"/usr/bin/horavex\"\n"
              "Terminal=false\n");
}

TEST_F(AutostartEntriesTest, EntryIsThereFromItsWriteToItsDelete) {
    EXPECT_FALSE(entries.Has("Prayer"));
    entries.Write("Prayer");
    EXPECT_TRUE(entries.Has("Prayer"));
    EXPECT_FALSE(entries.Has("Other"));
    entries.Delete("Prayer");
    EXPECT_FALSE(entries.Has("Prayer"));
}

TEST_F(AutostartEntriesTest, WritingAgainNamesTheProgramWhereItIsNow) {
    EXPECT_EQ(Exec("/usr/bin/horavex"), "\"/usr/bin/horavex\"");
    EXPECT_EQ(Exec("/opt/horavex/bin/horavex"), "\"/opt/horavex/bin/horavex\"");
}

TEST_F(AutostartEntriesTest, SpecialCharactersOfThePathAreEscapedForBothReaders) {
    EXPECT_EQ(Exec("/my programs/horavex"), "\"/my programs/horavex\"");
    EXPECT_EQ(Exec("/100%/horavex"), "\"/100%%/horavex\"");
    EXPECT_EQ(Exec("/$a`b\"/horavex"), R"("/\\$a\\`b\\"/horavex")");
    EXPECT_EQ(Exec("/a\\b/horavex"), R"("/a\\\\b/horavex")");
}

TEST_F(AutostartEntriesTest, DeletingAMissingEntryIsAFault) {
    EXPECT_THROW(entries.Delete("Prayer"), FileFault);
}

/// A folder whose name needs every escape that launchers agree on. (GLib 2.74 looks for a program
/// before it turns "%%" into "%".)
class RealAutostartEntriesTest : public testing::Test {
protected:
    RealAutostartEntriesTest() {
        std::filesystem::create_directories(programs);
        std::ofstream(program) << "#!/bin/sh\nprintf started > " << folder / "mark"
                               << "\n";
        std::filesystem::permissions(program, std::filesystem::perms::owner_all);
        entries.Write("ZORIT");
    }

    TemporaryFolder folder;
    ScopedVariable config{"XDG_CONFIG_HOME", folder.Path().c_str()};
    std::string programs = folder / R"("$HOME" `a` \b 'c')";
    std::string program = programs + "/horavex";
    PosixFiles files;
    AutostartEntries entries{files, program};
};

TEST_F(RealAutostartEntriesTest, EntryThatNamesTheProgramAlreadyIsNotWrittenAgain) {
    const std::string written = files.StampOf(entries.Path("ZORIT"));
    entries.Write("ZORIT");
    EXPECT_EQ(files.StampOf(entries.Path("ZORIT")), written);
}

TEST_F(RealAutostartEntriesTest, EntryThatCannotBeReadIsWrittenAnew) {
    std::filesystem::resize_file(entries.Path("ZORIT"), std::uintmax_t{kLargestTable} + 1);
    entries.Write("ZORIT");
    EXPECT_LT(std::filesystem::file_size(entries.Path("ZORIT")), 1000);
}

TEST_F(RealAutostartEntriesTest, DesktopsOwnToolFindsTheEntryValid) {
    const ProgramRun run = RunCommand({"desktop-file-validate", entries.Path("ZORIT")}, {});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out + run.err, "");
}

TEST_F(RealAutostartEntriesTest, DesktopsLauncherStartsTheProgram) {
    const ProgramRun run =
        RunCommand({"gio", "launch", entries.Path("ZORIT")}, {{"PATH", "/bin:/usr/bin"}});
    EXPECT_EQ(run.status, 0) << run.err;
    WaitUntil("the program", [&] { return ContentOf(folder / "mark") == "started"; });
}

}  // namespace
}  // namespace horavex
