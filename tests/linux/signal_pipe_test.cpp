#include "linux/signal_pipe.h"

#include <gtest/gtest.h>
#include <poll.h>

namespace horavex {
namespace {

bool CanBeRead(const SignalPipe& pipe) {
    pollfd descriptor{pipe.Number(), POLLIN, 0};
    return ::poll(&descriptor, 1, 0) == 1;
}

class SignalPipeTest : public testing::TestWithParam<int> {};

TEST_P(SignalPipeTest, SignalsAreReadInTheirOrder) {
    std::signal(GetParam(), SIG_DFL);
    const SignalPipe pipe({GetParam(), SIGUSR1});
    EXPECT_FALSE(CanBeRead(pipe));
    std::raise(GetParam());
    std::raise(SIGUSR1);
    EXPECT_TRUE(CanBeRead(pipe));
    EXPECT_EQ(pipe.Take(), GetParam());
    EXPECT_EQ(pipe.Take(), SIGUSR1);
    EXPECT_EQ(pipe.Take(), std::nullopt);
    EXPECT_FALSE(CanBeRead(pipe));
}

TEST_P(SignalPipeTest, IgnoredSignalStaysIgnored) {
    std::signal(GetParam(), SIG_IGN);
    {
        const SignalPipe pipe;
        std::raise(GetParam());
        EXPECT_EQ(pipe.Take(), std::nullopt);
    }
    EXPECT_EQ(std::signal(GetParam(), SIG_DFL), SIG_IGN);
}

TEST_P(SignalPipeTest, SignalDoesAgainWhatItDidOnceThePipeIsGone) {
    std::signal(GetParam(), SIG_DFL);
    { const SignalPipe pipe; }
    EXPECT_EQ(std::signal(GetParam(), SIG_DFL), SIG_DFL);
}

INSTANTIATE_TEST_SUITE_P(Each, SignalPipeTest, testing::ValuesIn(kEndSignals));

}  // namespace
}  // namespace horavex
