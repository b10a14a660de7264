#include "desktop/ports/bus_object.h"

#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <utility>

#include "platform/fault_box.h"

namespace horavex {

namespace {

constexpr int kFlushMs = 1000;

}  // namespace

QVariant ValueOf(const QDBusMessage& answer) {
    if (answer.type() == QDBusMessage::ErrorMessage) {
        return {};
    }
    const QVariant value = answer.arguments().value(0);
    return value.canConvert<QDBusVariant>() ? value.value<QDBusVariant>().variant() : value;
}

// The bus takes messages in their order: once it answers, it has those before.
void Flush(const QDBusConnection& bus) {
    const QString name = QStringLiteral("org.freedesktop.DBus");
    bus.call(QDBusMessage::createMethodCall(name, QStringLiteral("/org/freedesktop/DBus"), name,
                                            QStringLiteral("GetId")),
             QDBus::Block, kFlushMs);
}

BusObject::BusObject(QDBusConnection bus, QString service, QString path, QString interface,
                     Start start)
    : bus_(std::move(bus)),
      service_(std::move(service)),
      path_(std::move(path)),
      interface_(std::move(interface)),
      start_(start) {}

void BusObject::Tell(const char* method, const QVariantList& arguments) const {
    bus_.send(Call(method, arguments));
}

void BusObject::Ask(QObject& context, const char* method, const QVariantList& arguments,
                    TakeMessage take) const {
    auto* watcher = new QDBusPendingCallWatcher(bus_.asyncCall(Call(method, arguments)), &context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &context,
                     [watcher, take = std::move(take)] {
                         watcher->deleteLater();
                         RunGuarded([&] { take(watcher->reply()); });
                     });
}

void BusObject::AskProperty(QObject& context, const char* name, TakeMessage take) const {
    Properties().Ask(context, "Get", {interface_, QLatin1String(name)}, std::move(take));
}

std::unique_ptr<BusSignal> BusObject::Hear(const char* name, TakeMessage take) const {
    auto signal = std::make_unique<BusSignal>(std::move(take));
    QDBusConnection(bus_).connect(service_, path_, interface_, QLatin1String(name), signal.get(),
                                  SLOT(Arrive(QDBusMessage)));
    return signal;
}

std::unique_ptr<BusSignal> BusObject::HearProperties(TakeMessage take) const {
    return Properties().Hear("PropertiesChanged", std::move(take));
}

BusObject BusObject::Properties() const {
    return {bus_, service_, path_, QStringLiteral("org.freedesktop.DBus.Properties"), start_};
}

QDBusMessage BusObject::Call(const char* method, const QVariantList& arguments) const {
    QDBusMessage call =
        QDBusMessage::createMethodCall(service_, path_, interface_, QLatin1String(method));
    call.setArguments(arguments);
    call.setAutoStartService(start_ == Start::kWhenNeeded);
    return call;
}

}  // namespace horavex
