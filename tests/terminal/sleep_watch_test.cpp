// A computer's sleeps on a real bus, with a login manager of the test.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sdbus-c++/sdbus-c++.h>

#include "terminal/bus_loop_test.h"
#include "terminal/ports/terminal_session_watch.h"

namespace horavex {
namespace {

constexpr const char* kManagerInterface = "org.freedesktop.login1.Manager";

/// Tells of sleeps.
class LoginManager {
public:
    LoginManager()
        : bus_(sdbus::createSystemBusConnection()),
          object_(sdbus::createObject(*bus_, "/org/freedesktop/login1")) {
        object_->registerSignal("PrepareForSleep")
            .onInterface(kManagerInterface)
            .withParameters<bool>("start");
        object_->finishRegistration();
        bus_->requestName("org.freedesktop.login1");
    }

    void Tell(bool isAhead) {
        object_->emitSignal("PrepareForSleep")
            .onInterface(kManagerInterface)
            .withArguments(isAhead);
    }

    /// Returns once the bus has handed on what was told.
    void Flush() { bus_->requestName("org.horavex.Flushed"); }

private:
    std::unique_ptr<sdbus::IConnection> bus_;
    std::unique_ptr<sdbus::IObject> object_;
};

class SleepWatchTest : public BusLoopTest {
protected:
    SleepWatchTest() : BusLoopTest("DBUS_SYSTEM_BUS_ADDRESS") {}
};

TEST_F(SleepWatchTest, EndOfASleepIsToldAndNotItsBeginning) {
    LoginManager manager;
    TerminalSessionWatch watch(loop);
    int resumed = 0;
    watch.onResume = [&] { ++resumed; };
    manager.Tell(true);
    manager.Flush();
    loop.Pump();  // reads it
    loop.Pump();  // delivers what that has posted
    EXPECT_EQ(resumed, 0);
    manager.Tell(false);
    EXPECT_TRUE(Until([&] { return resumed > 0; }));
    EXPECT_EQ(resumed, 1);
}

TEST_F(SleepWatchTest, BusThatEndsWakesNobody) {
    TerminalSessionWatch watch(loop);
    daemon.Signal(SIGTERM);
    daemon.Wait();
    EXPECT_TRUE(Until([&] { return watch.Descriptor() == -1; }));
}

TEST_F(SleepWatchTest, WithoutABusNothingFails) {
    const ScopedVariable nowhere("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nowhere/bus");
    const TerminalSessionWatch watch(loop);
    EXPECT_EQ(watch.Descriptor(), -1);
}

}  // namespace
}  // namespace horavex
