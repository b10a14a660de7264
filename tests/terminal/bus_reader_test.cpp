#include "terminal/ports/bus_reader.h"

#include <gtest/gtest.h>

#include <chrono>
#include <optional>

#include "e2e/harness/wait_until.h"
#include "linux/bus/bus_names.h"
#include "support/bus_configuration.h"
#include "support/child_process.h"
#include "support/scoped_variable.h"
#include "support/temporary_folder.h"

namespace horavex {
namespace {

/// A bus that can be ended and begun again at its address.
struct BusReaderTest : testing::Test {
    BusReaderTest() { Begin(); }

    void Begin() {
        daemon.emplace(
            std::vector<std::string>{"dbus-daemon", "--nofork", "--print-address=1",
                                     "--config-file=" + WriteBusConfiguration(folder.Path())},
            Environment(), folder / "out", folder / "err");
        EXPECT_TRUE(
            WaitUntil("the bus", [this] { return ContentOf(folder / "out").ends_with('\n'); }));
    }

    bool Until(const std::function<bool()>& isSo) {
        return WaitUntil("it", [&] {
            loop.Pump();
            return isSo();
        });
    }

    bool IsAnswered() {
        ChildProcess asking({"gdbus", "introspect", "--address", "unix:path=" + folder / "bus",
                             "--dest", kBusName, "--object-path", kBusPath},
                            {}, folder / "told", folder / "complaint");
        return Until([&] { return !asking.IsRunning(); }) && asking.Wait() == 0;
    }

    TemporaryFolder folder;
    std::optional<ChildProcess> daemon;
    const std::string path = "unix:path=" + folder / "bus";
    ScopedVariable address{"DBUS_SESSION_BUS_ADDRESS", path.c_str()};
    PollEventLoop loop;
    SessionBroadcast broadcast{[](const std::function<void()>&) {}};
    BusReader reader{loop, broadcast};
};

TEST_F(BusReaderTest, AnswersFromTheFirstStateOn) {
    broadcast.Publish({});
    EXPECT_TRUE(IsAnswered());
}

TEST_F(BusReaderTest, LetsTheLoopSleepWhenTheBusHasEndedAndAnswersOnTheNext) {
    using std::chrono::steady_clock;
    constexpr std::chrono::milliseconds kRest(50);
    broadcast.Publish({});
    daemon.reset();
    EXPECT_TRUE(Until([&] { return broadcast.Descriptor() == -1; }));
    const auto start = steady_clock::now();
    loop.Rest(static_cast<int>(kRest.count()));
    EXPECT_GE(steady_clock::now() - start, kRest) << "something is ready for ever";
    Begin();
    for (int second = 0; second < 60; ++second) {
        broadcast.Publish({});
    }
    EXPECT_TRUE(IsAnswered());
}

}  // namespace
}  // namespace horavex
