#include <gmock/gmock.h>

#include <chrono>
#include <csignal>
#include <filesystem>

#include "e2e/harness/program_fixture.h"
#include "e2e/harness/wait_until.h"

namespace horavex {
namespace {

using std::chrono::steady_clock;
using testing::IsEmpty;

/// The program in a Wayland session, whose compositor shows its screen in a window.
class WaylandTest : public ProgramFixture {
protected:
    WaylandTest() {
        programVariables["WAYLAND_DISPLAY"] = "horavex-test";
        programVariables["XDG_SESSION_TYPE"] = "wayland";
        const std::string socket = desktop / "run/horavex-test";
        WaitUntil("a compositor", [&] { return std::filesystem::exists(socket); });
    }

    Service compositor{{"weston", "--backend=x11-backend.so", "--socket=horavex-test",
                        "--width=1024", "--height=768", "--idle-time=0"},
                       desktop.variables};
};

TEST_F(WaylandTest, FaceComesUpKeepsTimeAndEnds) {
    const auto start = steady_clock::now();
    ChildProcess program = StartProgram();
    // The progress window is gone by then; only the face's clock still changes the picture.
    WaitUntil("the face", [&] { return steady_clock::now() - start > std::chrono::seconds(7); });
    LetSecondsPass(3);
    EXPECT_THAT(desktop.WindowsOf(program), IsEmpty());  // they are the compositor's alone
    desktop.SaveScreen("wayland");
    program.Signal(SIGTERM);
    EXPECT_EQ(program.Wait(), 0);
    EXPECT_THAT(desktop.ErrorsOf("horavex"), IsEmpty());
}

}  // namespace
}  // namespace horavex
