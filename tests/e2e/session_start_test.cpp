#include <csignal>
#include <optional>

#include "e2e/harness/program_fixture.h"
#include "e2e/harness/wait_until.h"

namespace horavex {
namespace {

using SessionStartTest = ProgramFixture;

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
