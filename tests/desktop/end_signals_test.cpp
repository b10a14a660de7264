#include "desktop/end_signals.h"

#include <gtest/gtest.h>

#include <csignal>

#include "desktop/application.h"

namespace horavex {
namespace {

class EndSignalsTest : public testing::TestWithParam<int> {};

TEST_P(EndSignalsTest, SignalAsksForTheEndInATurnOfTheLoop) {
    auto& application = *static_cast<Application*>(QCoreApplication::instance());
    bool ended = false;
    application.onEnd = [&] { ended = true; };
    std::signal(GetParam(), SIG_DFL);
    const EndSignals signals;
    std::raise(GetParam());
    EXPECT_FALSE(ended);
    while (!ended) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    application.onEnd = nullptr;
}

TEST_P(EndSignalsTest, IgnoredSignalStaysIgnored) {
    std::signal(GetParam(), SIG_IGN);
    {
        const EndSignals signals;
        std::raise(GetParam());
    }
    EXPECT_EQ(std::signal(GetParam(), SIG_DFL), SIG_IGN);
}

INSTANTIATE_TEST_SUITE_P(Each, EndSignalsTest, testing::Values(SIGTERM, SIGINT, SIGHUP));

}  // namespace
}  // namespace horavex
