#include "desktop/ports/screen_awake.h"

#include <gtest/gtest.h>

#include <QDBusMessage>
#include <QDBusVirtualObject>

#include "desktop/private_bus.h"

namespace horavex {
namespace {

/// A desktop's service that keeps the screen on by request.
class ScreenService : public QDBusVirtualObject {
public:
    explicit ScreenService(QDBusConnection bus) : bus_(std::move(bus)) {
        bus_.registerVirtualObject(QStringLiteral("/org/freedesktop/ScreenSaver"), this);
        bus_.registerService(QStringLiteral("org.freedesktop.ScreenSaver"));
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        calls << message.member();
        if (message.member() == "Inhibit") {
            bus.send(message.createReply(QVariant(uint{42})));
        } else {
            cookies << message.arguments().at(0).toUInt();
        }
        return true;
    }

    QStringList calls;
    QList<uint> cookies;

private:
    QDBusConnection bus_;
};

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

}  // namespace
}  // namespace horavex
