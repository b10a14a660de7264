// A second start on a real bus, as the program that runs already meets it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

#include "e2e/harness/wait_until.h"
#include "support/bus_configuration.h"
#include "support/child_process.h"
#include "support/scoped_variable.h"
#include "support/temporary_folder.h"
#include "support/test_platform.h"
#include "terminal/ports/bus_reader.h"

namespace horavex {
namespace {

class ShowRunningTest : public testing::Test {
protected:
    ShowRunningTest() {
        WaitUntil("the bus", [this] { return ContentOf(folder / "out").ends_with('\n'); });
    }

    /// The answer to a second start, while the first program goes on.
    bool Ask() {
        bool isAnswered = false;
        bool isOver = false;
        std::thread second([&] {
            isAnswered = SessionBroadcast([](const auto&) {}).ShowRunning();
            loop.Post([&] { isOver = true; });
        });
        loop.RunWhile([&] { return !isOver; });
        second.join();
        return isAnswered;
    }

    TestPlatform platform;
    TemporaryFolder folder;
    ChildProcess daemon{{"dbus-daemon", "--nofork", "--print-address=1",
                         "--config-file=" + WriteBusConfiguration(folder.Path())},
                        {},
                        folder / "out",
                        folder / "err"};
    const ScopedVariable address{"DBUS_SESSION_BUS_ADDRESS",
                                 ("unix:path=" + folder / "bus").c_str()};
    PollEventLoop loop;
};

/// A program that runs already.
struct RunningFirst {
    explicit RunningFirst(PollEventLoop& loop)
        : broadcast([&loop](std::function<void()> event) { loop.Post(std::move(event)); }),
          reader(loop, broadcast) {
        broadcast.Publish({});
    }

    SessionBroadcast broadcast;
    BusReader reader;
};

TEST_F(ShowRunningTest, RunningProgramIsAskedToShowItself) {
    RunningFirst first(loop);
    int shown = 0;
    first.broadcast.onShow = [&] { ++shown; };
    EXPECT_TRUE(Ask());
    loop.Pump();
    EXPECT_EQ(shown, 1);
}

TEST_F(ShowRunningTest, NobodyAnswersWhereNoneRuns) {
    EXPECT_FALSE(Ask());
}

TEST_F(ShowRunningTest, ProgramWithoutAFaceCannotShowItself) {
    const RunningFirst first(loop);
    EXPECT_FALSE(Ask());
}

TEST_F(ShowRunningTest, NobodyAnswersWithoutABus) {
    const ScopedVariable nowhere("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus");
    EXPECT_FALSE(Ask());
}

}  // namespace
}  // namespace horavex
