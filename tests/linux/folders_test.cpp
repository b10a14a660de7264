#include "linux/folders.h"

#include <pwd.h>
#include <unistd.h>

#include <filesystem>

#include "support/scoped_variable.h"

namespace horavex {
namespace {

namespace fs = std::filesystem;

TEST(Folders, VariablesNameTheUsersFolders) {
    const ScopedVariable config("XDG_CONFIG_HOME", "/my/config");
    const ScopedVariable data("XDG_DATA_HOME", "/my/data");
    EXPECT_EQ(ConfigHome(), "/my/config");
    EXPECT_EQ(DataHome(), "/my/data");
}

TEST(Folders, WithoutAnAbsoluteVariableTheyLieInTheHomeFolder) {
    const ScopedVariable home("HOME", "/home/me");
    for (const char* value : {static_cast<const char*>(nullptr), "", "relative"}) {
        const ScopedVariable config("XDG_CONFIG_HOME", value);
        const ScopedVariable data("XDG_DATA_HOME", value);
        EXPECT_EQ(ConfigHome(), "/home/me/.config");
        EXPECT_EQ(DataHome(), "/home/me/.local/share");
    }
}

TEST(Folders, HomeFolderWithoutItsVariableComesFromTheUserDatabase) {
    const ScopedVariable home("HOME", nullptr);
    const ScopedVariable config("XDG_CONFIG_HOME", nullptr);
    const passwd* user = ::getpwuid(::getuid());
    const std::string folder = user == nullptr ? "" : user->pw_dir;
    EXPECT_EQ(ConfigHome(), folder + "/.config");
}

TEST(Folders, MachineWideFolderIsTheFirstAbsoluteOne) {
    {
        const ScopedVariable folders("XDG_CONFIG_DIRS", "/first:/second");
        EXPECT_EQ(MachineConfig(), "/first");
    }
    {
        const ScopedVariable folders("XDG_CONFIG_DIRS", ":relative:/second");
        EXPECT_EQ(MachineConfig(), "/second");
    }
    for (const char* value : {static_cast<const char*>(nullptr), "", "relative"}) {
        const ScopedVariable folders("XDG_CONFIG_DIRS", value);
        EXPECT_EQ(MachineConfig(), "/etc/xdg");
    }
}

TEST(Folders, RegistryFilesLieInBothFoldersOfSettings) {
    const ScopedVariable config("XDG_CONFIG_HOME", "/my/config");
    const ScopedVariable folders("XDG_CONFIG_DIRS", "/machine");
    EXPECT_EQ(FindRegistryFiles().user, "/my/config/horavex/registry.ini");
    EXPECT_EQ(FindRegistryFiles().machine, "/machine/horavex/registry.ini");
}

TEST(Folders, ProgramFolderIsTheUsersOverTheInstalledOne) {
    const ScopedVariable portable("HORAVEX_PROGRAM_FOLDER", nullptr);
    const ScopedVariable data("XDG_DATA_HOME", "/my/data");
    const ProgramFolders folders = FindProgramFolders();
    EXPECT_EQ(folders.user, "/my/data/horavex");
    const fs::path executable = fs::canonical("/proc/self/exe");
    EXPECT_EQ(folders.installed, executable.parent_path().parent_path() / "share/horavex");
}

TEST(Folders, PortableFolderIsBoth) {
    const ScopedVariable portable("HORAVEX_PROGRAM_FOLDER", "/stick/horavex");
    EXPECT_EQ(FindProgramFolders().user, "/stick/horavex");
    EXPECT_EQ(FindProgramFolders().installed, "/stick/horavex");
}

TEST(Folders, RelativePortableFolderIsBelowTheWorkingFolder) {
    const ScopedVariable portable("HORAVEX_PROGRAM_FOLDER", "stick");
    EXPECT_EQ(FindProgramFolders().user, fs::current_path() / "stick");
}

TEST(Folders, EmptyPortableFolderIsNone) {
    const ScopedVariable portable("HORAVEX_PROGRAM_FOLDER", "");
    const ScopedVariable data("XDG_DATA_HOME", "/my/data");
    EXPECT_EQ(FindProgramFolders().user, "/my/data/horavex");
}

}  // namespace
}  // namespace horavex
