#include "terminal/session/frame_pace.h"

#include <gtest/gtest.h>

#include "support/test_platform.h"

namespace horavex {
namespace {

class FramePaceTest : public testing::Test {
protected:
    /// A list that fills: each row changes the screen and lets events come.
    int DrawingsOf(int rows, std::chrono::nanoseconds least) {
        PollEventLoop loop;
        FramePace pace(loop, least);
        int drawings = 0;
        for (int row = 0; row < rows; ++row) {
            pace.Later([&] { ++drawings; });
            loop.Pump();
        }
        return drawings;
    }

    TestPlatform platform;
};

TEST_F(FramePaceTest, ChangesThatComeTooSoonAreDrawnTogether) {
    EXPECT_EQ(DrawingsOf(100, std::chrono::hours(1)), 1) << "the first, and the last an hour later";
}

TEST_F(FramePaceTest, ChangesAfterARestAreDrawnAtOnce) {
    EXPECT_EQ(DrawingsOf(100, std::chrono::nanoseconds(0)), 100);
}

TEST_F(FramePaceTest, LastChangeIsDrawnInTheEnd) {
    PollEventLoop loop;
    FramePace pace(loop, std::chrono::milliseconds(1));
    int shown = 0;
    for (int change = 1; change <= 3; ++change) {
        pace.Later([&shown, change] { shown = change; });
    }
    loop.RunWhile([&] { return shown == 0; });
    EXPECT_EQ(shown, 3);
}

}  // namespace
}  // namespace horavex
