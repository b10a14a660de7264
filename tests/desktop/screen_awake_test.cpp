#include "desktop/ports/screen_awake.h"

#include <gtest/gtest.h>

#include "desktop/screen_service.h"

namespace horavex {
namespace {

class ScreenAwakeTest : public testing::Test {
protected:
    TestBus bus;
    ScreenService service{bus.Connect("service")};
    QDBusConnection own = bus.Connect("program");
};

TEST_F(ScreenAwakeTest, RequestStandsAsLongAsTheObjectLives) {
    {
        const ScreenAwake awake("x", own);
        EXPECT_TRUE(Until([this] { return service.calls == QStringList{"Inhibit"}; }));
        QCoreApplication::processEvents();
    }
    EXPECT_TRUE(Until([this] { return service.cookies == QList<uint>{42}; }));
}

TEST_F(ScreenAwakeTest, AnswerThatComesTooLateIsTakenBack) {
    { const ScreenAwake awake("x", own); }
    EXPECT_TRUE(Until([this] { return service.cookies == QList<uint>{42}; }));
}

TEST_F(ScreenAwakeTest, ServiceThatComesLaterIsAskedThen) {
    service.GiveUpName();
    bus.Settle();
    {
        const ScreenAwake awake("x", own);
        bus.Settle();
        EXPECT_EQ(service.calls, QStringList());
        service.TakeName();
        EXPECT_TRUE(Until([this] { return service.calls == QStringList{"Inhibit"}; }));
        bus.Settle();
    }
    EXPECT_TRUE(Until([this] { return service.cookies == QList<uint>{42}; }));
}

TEST_F(ScreenAwakeTest, ServiceThatStartsAgainIsAskedAgainAndKnowsTheLastRequestAlone) {
    {
        const ScreenAwake awake("x", own);
        EXPECT_TRUE(Until([this] { return service.calls.size() == 1; }));
        bus.Settle();
        service.GiveUpName();
        bus.Settle();
        service.TakeName();
        EXPECT_TRUE(Until([this] { return service.calls.size() == 2; }));
        bus.Settle();
    }
    EXPECT_TRUE(Until([this] { return service.cookies == QList<uint>{43}; }));
    bus.Settle();
    EXPECT_EQ(service.calls, (QStringList{"Inhibit", "Inhibit", "UnInhibit"}));
}

TEST_F(ScreenAwakeTest, WithoutTheServiceNothingIsLeftBehind) {
    service.GiveUpName();
    bus.Settle();
    { const ScreenAwake awake("x", own); }
    bus.Settle();  // the bus has answered before there is a service again
    service.TakeName();
    bus.Settle();
    EXPECT_EQ(service.calls, QStringList());
}

}  // namespace
}  // namespace horavex
