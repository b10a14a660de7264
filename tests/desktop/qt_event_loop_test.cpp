#include "desktop/ports/qt_event_loop.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <cstdio>

#include "linux/shared_looks.h"

namespace horavex {
namespace {

TEST(QtEventLoop, PumpDeliversWhatIsPendingAndReturns) {
    QtEventLoop loop;
    int delivered = 0;
    QTimer::singleShot(0, [&] { ++delivered; });
    QTimer later;  // ends with the test
    QObject::connect(&later, &QTimer::timeout, [&] { ++delivered; });
    later.start(60000);
    loop.Pump();
    EXPECT_EQ(delivered, 1);
}

TEST(QtEventLoop, PumpsInQuickSuccessionDeliverOnceInAWhile) {
    QtEventLoop loop;
    int delivered = 0;
    QTimer always;
    QObject::connect(&always, &QTimer::timeout, [&] { ++delivered; });
    always.start(0);
    QElapsedTimer elapsed;
    elapsed.start();
    int pumps = 0;
    while (elapsed.elapsed() < 50 || delivered < 2) {
        loop.Pump();
        ++pumps;
    }
    EXPECT_GT(pumps, 10 * delivered);
    EXPECT_LE(delivered, elapsed.elapsed() / 5 + 1);
}

TEST(QtEventLoop, RestReturnsWithTheNextEvent) {
    QtEventLoop loop;
    loop.Pump();
    bool delivered = false;
    QTimer::singleShot(1, [&] { delivered = true; });
    QElapsedTimer elapsed;
    elapsed.start();
    while (!delivered) {
        loop.Rest(60000);
    }
    EXPECT_LT(elapsed.elapsed(), 60000);
}

TEST(QtEventLoop, RestWithoutEventsLastsItsTimeAtMost) {
    QtEventLoop loop;
    loop.Pump();
    QElapsedTimer elapsed;
    elapsed.start();
    while (elapsed.elapsed() < 20) {
        loop.Rest(20);
    }
    EXPECT_LT(elapsed.elapsed(), 5000);
}

TEST(QtEventLoop, SleepDeliversNothing) {
    QtEventLoop loop;
    bool delivered = false;
    QTimer::singleShot(0, [&] { delivered = true; });
    loop.Sleep(2);
    EXPECT_FALSE(delivered);
    loop.Pump();
    EXPECT_TRUE(delivered);
}

TEST(QtEventLoopDeathTest, EndOfTheProcessRunsNoDestructor) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(
        {
            struct Loud {
                ~Loud() { std::abort(); }
            };
            static const Loud loud;
            QtEventLoop().EndProcess();
        },
        testing::ExitedWithCode(0), "");
}

TEST(QtEventLoopDeathTest, EndOfTheProcessIsToldBeforeIt) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(QtEventLoop([] { std::fputs("farewell", stderr); }).EndProcess(),
                testing::ExitedWithCode(0), "farewell");
}

int looks = 0;

std::string Count(const std::string&) {
    return std::to_string(++looks);
}

TEST(QtEventLoop, EachTurnAndEachSleepLooksAnew) {
    const SharedLooks shared;
    QtEventLoop loop;
    looks = 0;
    SharedLooks::Of(Count, "a");
    SharedLooks::Of(Count, "a");
    EXPECT_EQ(looks, 1);
    loop.Rest(1);
    SharedLooks::Of(Count, "a");
    EXPECT_EQ(looks, 2);
    QTimer::singleShot(0, [] { SharedLooks::Of(Count, "a"); });
    loop.Pump();
    EXPECT_EQ(looks, 3);
    SharedLooks::Of(Count, "a");
    const int before = looks;
    loop.Sleep(1);
    SharedLooks::Of(Count, "a");
    EXPECT_EQ(looks, before + 1);
}

}  // namespace
}  // namespace horavex
