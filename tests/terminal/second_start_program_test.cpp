// The built program beside one that runs in a terminal already, in one session with a bus.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "e2e/harness/service.h"
#include "support/bus_configuration.h"
#include "support/registry_values.h"
#include "support/temporary_folder.h"
#include "terminal/virtual_terminal.h"

namespace horavex {
namespace {

using testing::EndsWith;
using testing::HasSubstr;

class SecondStartProgramTest : public testing::Test {
protected:
    SecondStartProgramTest() {
        for (const char* folder : {"config", "data", "run"}) {
            std::filesystem::create_directories(home / folder);
        }
        StoreUsersRegistryValue(home / "config", "Isha Dep Angle", "18");
        std::ofstream(home / "config/horavex/registry.ini", std::ios::app)
            << "[Software\\\\Horavex\\\\Options]\nShow Running=1\n";
        variables["DBUS_SESSION_BUS_ADDRESS"] = bus.FirstLine();
        first.emplace(std::vector<std::string>(), variables);
        first->WaitFor("Next Athan: ");
        while (Ctl("status").status != 0) {
            first->WaitForSilence();
        }
    }

    ProgramRun Ctl(const std::string& command) const {
        return RunProgram("horavexctl", {command}, variables);
    }

    TemporaryFolder home;
    Environment variables = {{"HOME", home.Path()},
                             {"PATH", std::getenv("PATH")},
                             {"XDG_CONFIG_HOME", home / "config"},
                             {"XDG_DATA_HOME", home / "data"},
                             {"XDG_CONFIG_DIRS", home / "machine"},
                             {"XDG_RUNTIME_DIR", home / "run"},
                             {"TERM", "screen-256color"},
                             {"LC_ALL", "C.UTF-8"},
                             {"TZ", "Asia/Riyadh"}};
    const Service bus{{"dbus-daemon", "--nofork", "--print-address=1",
                       "--config-file=" + WriteBusConfiguration(home / "run")},
                      variables};
    std::optional<VirtualTerminal> first;
};

TEST_F(SecondStartProgramTest, TerminalIsToldWhyNothingIsToBeSeen) {
    VirtualTerminal second({}, variables);
    EXPECT_EQ(second.Wait(), 0);
    EXPECT_FALSE(second.IsOnOtherScreen());
    EXPECT_THAT(second.Text(), HasSubstr("Horavex is already running."));
}

TEST_F(SecondStartProgramTest, ServiceAsksForNoFaceAndFails) {
    const ProgramRun second = RunProgram("horavex-terminal", {"--no-face"}, variables);
    EXPECT_EQ(second.status, 2);
    EXPECT_THAT(second.err, EndsWith("Horavex is already running in this session\n"));
}

TEST_F(SecondStartProgramTest, FaceOfATerminalCannotBeHidden) {
    const ProgramRun run = Ctl("hide");
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, HasSubstr("it runs in a terminal, which it cannot hide"));
    EXPECT_EQ(Ctl("show").status, 0);
}

}  // namespace
}  // namespace horavex
