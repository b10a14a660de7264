#include "desktop/ports/screen_awake.h"

#include <QCoreApplication>
#include <optional>

#include "desktop/ports/bus_object.h"

namespace horavex {

struct ScreenAwake::Request {
    BusObject service;
    std::optional<uint> cookie;  // what the service knows it by
    bool isOver = false;

    void TakeBackWhenAnswered() {
        if (isOver && cookie) {
            service.Tell("UnInhibit", {*cookie});
        }
    }
};

ScreenAwake::ScreenAwake(const QString& reason, const QDBusConnection& bus)
    : request_(new Request{BusObject(bus, QStringLiteral("org.freedesktop.ScreenSaver"),
                                     QStringLiteral("/org/freedesktop/ScreenSaver"),
                                     QStringLiteral("org.freedesktop.ScreenSaver")),
                           {}}) {
    request_->service.Ask(*QCoreApplication::instance(), "Inhibit",
                          {QStringLiteral("Horavex"), reason},
                          [request = request_](const QDBusMessage& answer) {
                              const QVariant cookie = ValueOf(answer);
                              if (cookie.canConvert<uint>()) {
                                  request->cookie = cookie.toUInt();
                                  request->TakeBackWhenAnswered();
                              }
                          });
}

ScreenAwake::~ScreenAwake() {
    request_->isOver = true;
    request_->TakeBackWhenAnswered();
}

}  // namespace horavex
