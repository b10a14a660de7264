#pragma once

#include <QDBusMessage>
#include <QDBusVirtualObject>

#include "desktop/private_bus.h"

namespace horavex {

/// A desktop's service that keeps the screen on by request.
class ScreenService : public QDBusVirtualObject {
public:
    explicit ScreenService(QDBusConnection bus) : bus_(std::move(bus)) {
        bus_.registerVirtualObject(QStringLiteral("/org/freedesktop/ScreenSaver"), this);
        TakeName();
    }

    void TakeName() { bus_.registerService(QStringLiteral("org.freedesktop.ScreenSaver")); }
    void GiveUpName() { bus_.unregisterService(QStringLiteral("org.freedesktop.ScreenSaver")); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        calls << message.member();
        if (message.member() == "Inhibit") {
            bus.send(message.createReply(QVariant(next_++)));
        } else {
            cookies << message.arguments().at(0).toUInt();
        }
        return true;
    }

    QStringList calls;
    QList<uint> cookies;

private:
    QDBusConnection bus_;
    uint next_ = 42;
};

}  // namespace horavex
