#include <csignal>
#include <filesystem>
#include <fstream>
#include <optional>

#include "e2e/harness/program_fixture.h"
#include "e2e/harness/wait_until.h"

namespace horavex {
namespace {

using SessionStartTest = ProgramFixture;

TEST_F(SessionStartTest, TemporaryNamesOfACrashAreClearedAtTheStart) {
    const std::string left = desktop / "config/horavex/.horavex-2147483646-0";  // no such process
    std::filesystem::create_directories(desktop / "config/horavex");
    std::ofstream(left) << "half of a regist";
    const ChildProcess program = StartProgram();
    desktop.WaitForWindow(program, kFaceTitle);
    EXPECT_FALSE(std::filesystem::exists(left));
}

// As a session does it: the entry that a first run has left is launched with nothing else known.
TEST_F(SessionStartTest, EntryOfTheFirstRunIsValidAndStartsTheProgram) {
    {
        ChildProcess first = StartProgram();
        desktop.WaitForWindow(first, kFaceTitle);
        first.Signal(SIGTERM);
        EXPECT_EQ(first.Wait(), 0);
    }
    const std::string entry = desktop / "config/autostart/ZORIT.desktop";
    EXPECT_EQ(desktop.Use({"desktop-file-validate", entry}), "");
    desktop.Use({"gio", "launch", entry});
    const std::string face =
        WaitUntil("a face", [&]() -> std::optional<std::string> {
            const ProgramRun found = RunCommand(
                {"xdotool", "search", "--onlyvisible", "--name", "^Horavex$"}, desktop.variables);
            return found.status == 0 ? std::optional(found.out.substr(0, found.out.find('\n')))
                                     : std::nullopt;
        }).value();
    const pid_t program = std::stoi(desktop.Use({"xdotool", "getwindowpid", face}));
    ::kill(program, SIGTERM);
    EXPECT_TRUE(WaitUntil("its end", [&] {
        return RunCommand({"xdotool", "search", "--onlyvisible", "--name", "^Horavex$"},
                          desktop.variables)
                   .status != 0;
    }));
}

}  // namespace
}  // namespace horavex
