#include "terminal/ports/poll_event_loop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <stdexcept>
#include <thread>

#include "support/test_platform.h"

namespace horavex {
namespace {

using std::chrono::hours;
using std::chrono::milliseconds;
using testing::ElementsAre;

/// A pipe that a test writes into.
class Pipe {
public:
    Pipe() {
        int ends[2];
        EXPECT_EQ(::pipe(ends), 0);
        readEnd_ = Descriptor(ends[0]);
        writeEnd_ = Descriptor(ends[1]);
    }

    int Number() const { return readEnd_.Number(); }
    void Write() const { EXPECT_EQ(::write(writeEnd_.Number(), "x", 1), 1); }
    void Read() const {
        char byte = 0;
        EXPECT_EQ(::read(Number(), &byte, 1), 1);
    }
    void End() { writeEnd_ = Descriptor(); }

private:
    Descriptor readEnd_;
    Descriptor writeEnd_;
};

class PollEventLoopTest : public testing::Test {
protected:
    auto Note(std::string what) {
        return [this, what = std::move(what)] { noted.push_back(what); };
    }

    void RunUntilNoted(std::size_t count) {
        loop.RunWhile([&] { return noted.size() < count; });
    }

    TestPlatform platform;
    PollEventLoop loop;
    std::vector<std::string> noted;
};

TEST_F(PollEventLoopTest, PumpDeliversWhatIsPendingAndReturns) {
    PollEventLoop::Alarm soon(loop, Note("soon"));
    PollEventLoop::Alarm late(loop, Note("late"));
    soon.Set(milliseconds(0));
    late.Set(hours(1));
    loop.Post(Note("first"));
    loop.Post(Note("second"));
    loop.Pump();
    EXPECT_THAT(noted, ElementsAre("first", "second", "soon"));
    loop.Pump();
    EXPECT_EQ(noted.size(), 3U) << "each once";
}

TEST_F(PollEventLoopTest, RestReturnsWithTheNextEvent) {
    PollEventLoop::Alarm alarm(loop, Note("alarm"));
    alarm.Set(milliseconds(1));
    loop.Rest(3'600'000);
    EXPECT_THAT(noted, ElementsAre("alarm"));
}

TEST_F(PollEventLoopTest, RestWithoutEventsLastsItsTime) {
    const auto start = std::chrono::steady_clock::now();
    loop.Rest(20);
    EXPECT_GE(std::chrono::steady_clock::now() - start, milliseconds(20));
}

TEST_F(PollEventLoopTest, SleepDeliversNothing) {
    loop.Post(Note("posted"));
    loop.Sleep(2);
    EXPECT_TRUE(noted.empty());
}

TEST_F(PollEventLoopTest, AnotherThreadWakesTheLoop) {
    std::thread other([&] { loop.Post(Note("posted")); });
    RunUntilNoted(1);
    other.join();
    EXPECT_THAT(noted, ElementsAre("posted"));
}

TEST_F(PollEventLoopTest, WhatPostsItselfDoesNotKeepAPumpFromReturning) {
    std::function<void()> again = [&] {
        noted.push_back("again");
        loop.Post(again);
    };
    loop.Post(again);
    loop.Pump();
    EXPECT_EQ(noted.size(), 1U);
    loop.Pump();
    EXPECT_EQ(noted.size(), 2U);
}

TEST_F(PollEventLoopTest, LoopInsideAnActionGoesOnWithTheOthers) {
    PollEventLoop::Alarm alarm(loop, Note("alarm"));
    loop.Post([&] {
        alarm.Set(milliseconds(0));
        RunUntilNoted(2);
        noted.push_back("outer");
    });
    loop.Post(Note("inner"));
    loop.Pump();
    EXPECT_THAT(noted, ElementsAre("inner", "alarm", "outer"));
}

TEST_F(PollEventLoopTest, AlarmComesOnceAndNotBeforeItsTime) {
    PollEventLoop::Alarm alarm(loop, Note("alarm"));
    const auto start = std::chrono::steady_clock::now();
    alarm.Set(hours(1));
    alarm.Set(milliseconds(20));
    RunUntilNoted(1);
    EXPECT_GE(std::chrono::steady_clock::now() - start, milliseconds(20));
    loop.Pump();
    EXPECT_EQ(noted.size(), 1U);
}

TEST_F(PollEventLoopTest, StoppedAlarmStaysAway) {
    PollEventLoop::Alarm alarm(loop, Note("alarm"));
    alarm.Set(milliseconds(0));
    alarm.Stop();
    loop.Pump();
    EXPECT_TRUE(noted.empty());
}

TEST_F(PollEventLoopTest, AlarmMayEndItselfAndAnother) {
    auto other = std::make_unique<PollEventLoop::Alarm>(loop, Note("other"));
    std::unique_ptr<PollEventLoop::Alarm> alarm;
    alarm = std::make_unique<PollEventLoop::Alarm>(loop, [&, what = std::string(100, 'x')] {
        alarm.reset();
        other.reset();
        noted.push_back(what);
    });
    other->Set(milliseconds(1));
    alarm->Set(milliseconds(0));
    loop.Sleep(2);
    loop.Pump();
    EXPECT_LE(noted.size(), 2U);
    EXPECT_EQ(noted.back(), std::string(100, 'x'));
    loop.Pump();
}

TEST_F(PollEventLoopTest, ReaderIsCalledAsLongAsThereIsSomething) {
    const Pipe pipe;
    const PollEventLoop::Reader reader(loop, pipe.Number(), [&] {
        pipe.Read();
        noted.emplace_back("read");
    });
    loop.Pump();
    EXPECT_TRUE(noted.empty());
    pipe.Write();
    pipe.Write();
    loop.Pump();
    loop.Pump();
    loop.Pump();
    EXPECT_THAT(noted, ElementsAre("read", "read"));
}

TEST_F(PollEventLoopTest, ReaderThatEndsIsTold) {
    Pipe pipe;
    const PollEventLoop::Reader reader(loop, pipe.Number(), Note("end"));
    pipe.End();
    loop.Pump();
    EXPECT_THAT(noted, ElementsAre("end"));
}

TEST_F(PollEventLoopTest, ReaderThatIsGoneIsCalledNoMore) {
    const Pipe pipe;
    std::optional<PollEventLoop::Reader> second;
    const PollEventLoop::Reader first(loop, pipe.Number(), [&] {
        pipe.Read();
        second.reset();
    });
    second.emplace(loop, pipe.Number(), Note("second"));
    pipe.Write();
    loop.Pump();
    EXPECT_TRUE(noted.empty());
}

TEST_F(PollEventLoopTest, FaultIsToldAndTheOthersGoOn) {
    loop.Post([] { throw std::runtime_error("the disk is full"); });
    loop.Post(Note("next"));
    loop.Pump();
    EXPECT_THAT(noted, ElementsAre("next"));
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(platform.dialogs.messages[0].text, "the disk is full");
}

TEST(PollEventLoopDeathTest, EndOfTheProcessIsToldBeforeItAndRunsNoDestructor) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(
        {
            struct Loud {
                ~Loud() { std::abort(); }
            };
            static const Loud loud;
            PollEventLoop loop([] { std::fputs("farewell", stderr); });
            loop.SetStatus(3);
            loop.EndProcess();
        },
        testing::ExitedWithCode(3), "farewell");
}

}  // namespace
}  // namespace horavex
