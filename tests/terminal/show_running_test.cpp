// A second start on a real bus, as the program that runs already meets it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

#include "terminal/bus_loop_test.h"
#include "terminal/ports/bus_reader.h"

namespace horavex {
namespace {

class ShowRunningTest : public BusLoopTest {
protected:
    ShowRunningTest() : BusLoopTest("DBUS_SESSION_BUS_ADDRESS") {}

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
