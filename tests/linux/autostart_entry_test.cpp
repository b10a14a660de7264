#include "linux/autostart_entry.h"

#include "base/fault.h"
#include "platform/memory_files.h"
#include "support/scoped_variable.h"

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

}  // namespace
}  // namespace horavex
