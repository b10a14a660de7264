#include "desktop/ports/screen_awake.h"

#include <QCoreApplication>
#include <QList>
#include <utility>

#include "desktop/ports/bus_object.h"

namespace horavex {

namespace {

constexpr const char* kName = "org.freedesktop.ScreenSaver";

}  // namespace

struct ScreenAwake::Request {
    BusObject service;
    QList<uint> cookies = {};  // what the service knows it by
    bool isOver = false;

    void TakeBack() {
        for (const uint cookie : std::exchange(cookies, {})) {
            service.Tell("UnInhibit", {cookie});
        }
    }
};

ScreenAwake::ScreenAwake(const QString& reason, const QDBusConnection& bus)
    : reason_(reason),
      owner_(QLatin1String(kName), bus),
      request_(new Request{BusObject(bus, QLatin1String(kName),
                                     QStringLiteral("/org/freedesktop/ScreenSaver"),
                                     QLatin1String(kName))}) {
    QObject::connect(&owner_, &QDBusServiceWatcher::serviceOwnerChanged, &owner_,
                     [this](const QString&, const QString&, const QString& now) {
                         request_->cookies.clear();
                         if (!now.isEmpty()) {
                             Ask();
                         }
                     });
    Ask();
}

// The answer may come when the request is over.
void ScreenAwake::Ask() {
    request_->service.Ask(*QCoreApplication::instance(), "Inhibit",
                          {QStringLiteral("Horavex"), reason_},
                          [request = request_](const QDBusMessage& answer) {
                              const QVariant cookie = ValueOf(answer);
                              if (cookie.canConvert<uint>()) {
                                  request->cookies << cookie.toUInt();
                              }
                              if (request->isOver) {
                                  request->TakeBack();
                              }
                          });
}

ScreenAwake::~ScreenAwake() {
    request_->isOver = true;
    request_->TakeBack();
}

}  // namespace horavex
