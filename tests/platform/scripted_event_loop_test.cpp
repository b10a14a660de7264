#include "platform/scripted_event_loop.h"

#include <string>

namespace horavex {
namespace {

class ScriptedEventLoopTest : public testing::Test {
protected:
    ScriptedEventLoop::Event Log(const std::string& text) {
        return [this, text] { log += text; };
    }

    ManualClock clock;
    ScriptedEventLoop loop{clock};
    std::string log;
};

TEST_F(ScriptedEventLoopTest, PumpDeliversWhatIsDueInOrder) {
    loop.After(1.0, Log("c"));
    loop.After(0.0, Log("a"));
    loop.After(0.0, Log("b"));
    loop.Pump();
    EXPECT_EQ(log, "ab");
    EXPECT_EQ(clock.SteadySeconds(), 0.0);
    clock.Advance(0.999);
    loop.Pump();
    EXPECT_EQ(log, "ab");
    clock.Advance(0.001);
    loop.Pump();
    EXPECT_EQ(log, "abc");
    EXPECT_EQ(loop.Pumps(), 3);
}

TEST_F(ScriptedEventLoopTest, EventOfAnEventWaitsForTheNextPump) {
    loop.After(0.0, [this] { loop.After(0.0, Log("b")); });
    loop.Pump();
    EXPECT_EQ(log, "");
    loop.Pump();
    EXPECT_EQ(log, "b");
}

TEST_F(ScriptedEventLoopTest, EventMayPumpInItsTurn) {
    loop.After(0.0, [this] {
        log += "(";
        loop.Pump();
        log += ")";
    });
    loop.After(0.0, Log("a"));
    loop.Pump();
    EXPECT_EQ(log, "(a)");
    EXPECT_EQ(loop.Pumps(), 2);
}

TEST_F(ScriptedEventLoopTest, ScriptedPumpComesBehindTheDueEventsAndOnce) {
    loop.AtPump(2, Log("second"));
    loop.Pump();
    EXPECT_EQ(log, "");
    loop.After(0.0, Log("due "));
    loop.Pump();
    loop.Pump();
    EXPECT_EQ(log, "due second");
}

TEST_F(ScriptedEventLoopTest, RestMovesTheClockByItsWholeTimeWithoutEvents) {
    loop.After(1.0, Log("a"));
    for (int i = 0; i < 99; ++i) {
        loop.Rest(10);
    }
    EXPECT_EQ(log, "");
    EXPECT_EQ(clock.SteadySeconds(), 0.99);
    EXPECT_EQ(loop.Rests(), 99);
    EXPECT_EQ(loop.Pumps(), 0);
    loop.Rest(10);
    EXPECT_EQ(log, "a");
}

TEST_F(ScriptedEventLoopTest, RestStopsAtTheNextEventAndDeliversThatOne) {
    loop.After(0.004, Log("a"));
    loop.After(0.004, Log("b"));
    loop.Rest(10);
    EXPECT_EQ(log, "a");
    EXPECT_EQ(clock.SteadySeconds(), 0.004);
    loop.Rest(10);
    EXPECT_EQ(log, "ab");
    EXPECT_EQ(clock.SteadySeconds(), 0.004);
}

TEST_F(ScriptedEventLoopTest, RestDeliversAnOverdueEventAtOnce) {
    loop.After(0.0, Log("a"));
    clock.Advance(5.0);
    loop.Rest(10);
    EXPECT_EQ(log, "a");
    EXPECT_EQ(clock.SteadySeconds(), 5.0);
}

TEST_F(ScriptedEventLoopTest, SleepMovesTheClockAndDeliversNothing) {
    clock.Set(46000.0);
    loop.After(0.5, Log("a"));
    loop.Sleep(1000);
    loop.Sleep(500);
    EXPECT_EQ(log, "");
    EXPECT_EQ(loop.SleptMilliseconds(), 1500);
    EXPECT_EQ(clock.SteadySeconds(), 1.5);
    EXPECT_EQ(SecondOfDay(clock.Now()), 2) << "1.5 s rounds to even";
}

TEST_F(ScriptedEventLoopTest, EndOfTheProcessUnwindsToTheTest) {
    bool wentOn = false;
    loop.After(0.0, [this] { loop.EndProcess(); });
    EXPECT_THROW(
        {
            loop.Pump();
            wentOn = true;
        },
        ProcessEnded);
    EXPECT_FALSE(wentOn);
}

}  // namespace
}  // namespace horavex
