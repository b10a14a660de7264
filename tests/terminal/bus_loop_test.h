#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <functional>

#include "e2e/harness/wait_until.h"
#include "support/bus_configuration.h"
#include "support/child_process.h"
#include "support/scoped_variable.h"
#include "support/temporary_folder.h"
#include "support/test_platform.h"
#include "terminal/ports/poll_event_loop.h"

namespace horavex {

/// A bus of the test's own, and a loop without a toolkit beside it.
class BusLoopTest : public testing::Test {
protected:
    /// variable: what names the bus, of the session or of the system.
    explicit BusLoopTest(const char* variable)
        : address(variable, ("unix:path=" + folder / "bus").c_str()) {
        WaitUntil("the bus", [this] { return ContentOf(folder / "out").ends_with('\n'); });
    }

    /// Runs the loop until something is so, within a limit.
    bool Until(const std::function<bool()>& isSo) {
        bool isLate = false;
        PollEventLoop::Alarm limit(loop, [&] { isLate = true; });
        limit.Set(std::chrono::seconds(20));
        loop.RunWhile([&] { return !isSo() && !isLate; });
        return isSo();
    }

    TestPlatform platform;
    TemporaryFolder folder;
    ChildProcess daemon{{"dbus-daemon", "--nofork", "--print-address=1",
                         "--config-file=" + WriteBusConfiguration(folder.Path())},
                        {},
                        folder / "out",
                        folder / "err"};
    const ScopedVariable address;
    PollEventLoop loop;
};

}  // namespace horavex
