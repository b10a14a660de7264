#include "desktop/ports/location_question.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QGuiApplication>
#include <utility>

#include "platform/fault_box.h"

namespace horavex {

namespace {

constexpr int kLookEveryMs = 250;
constexpr uint kCityLevel = 4;  // of the service's levels of accuracy; the nearest city is enough

constexpr const char* kManager = "org.freedesktop.GeoClue2.Manager";
constexpr const char* kClient = "org.freedesktop.GeoClue2.Client";
constexpr const char* kLocation = "org.freedesktop.GeoClue2.Location";
constexpr const char* kProperties = "org.freedesktop.DBus.Properties";
constexpr const char* kManagerPath = "/org/freedesktop/GeoClue2/Manager";

QVariant Boxed(const QVariant& value) {
    return QVariant::fromValue(QDBusVariant(value));
}

}  // namespace

LocationQuestion::LocationQuestion(QDBusConnection bus, int patience, Whereabouts::Answer answer)
    : bus_(std::move(bus)), answer_(std::move(answer)) {
    limit_.setSingleShot(true);
    limit_.callOnTimeout([this] { Give(std::nullopt); });
    limit_.start(patience);
    looking_.callOnTimeout([this] { Look(); });
    Await<QDBusObjectPath>(Call(kManagerPath, kManager, "GetClient"),
                           [this](const QDBusObjectPath& path) { Use(path.path()); });
}

LocationQuestion::~LocationQuestion() {
    if (!client_.isEmpty()) {
        Call(client_, kClient, "Stop");
        Call(kManagerPath, kManager, "DeleteClient",
             {QVariant::fromValue(QDBusObjectPath(client_))});
    }
}

QDBusPendingCall LocationQuestion::Call(const QString& path, const char* interface,
                                        const char* method, const QVariantList& arguments) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QLatin1String(kLocationService), path, QLatin1String(interface), QLatin1String(method));
    message.setArguments(arguments);
    return bus_.asyncCall(message);
}

template <class Reply, class Take>
void LocationQuestion::Await(const QDBusPendingCall& call, Take take) {
    auto* watcher = new QDBusPendingCallWatcher(call, &context_);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &context_, [this, watcher, take] {
        const QDBusPendingReply<Reply> reply = *watcher;
        watcher->deleteLater();
        if (reply.isError()) {
            Give(std::nullopt);
        } else {
            take(reply.value());
        }
    });
}

void LocationQuestion::Use(const QString& client) {
    client_ = client;
    const QString name = QLatin1String(kClient);
    Call(client_, kProperties, "Set",
         {name, "DesktopId", Boxed(QGuiApplication::desktopFileName())});
    Call(client_, kProperties, "Set", {name, "RequestedAccuracyLevel", Boxed(kCityLevel)});
    auto* started = new QDBusPendingCallWatcher(Call(client_, kClient, "Start"), &context_);
    QObject::connect(started, &QDBusPendingCallWatcher::finished, &context_, [this, started] {
        started->deleteLater();
        if (started->isError()) {
            Give(std::nullopt);
        } else {
            looking_.start(kLookEveryMs);
        }
    });
}

void LocationQuestion::Look() {
    const auto take = [this](const QDBusVariant& value) {
        const QString path = value.variant().value<QDBusObjectPath>().path();
        if (path.size() > 1 && looking_.isActive()) {  // "/" as long as there is none
            looking_.stop();
            Await<QVariantMap>(Call(path, kProperties, "GetAll", {QLatin1String(kLocation)}),
                               [this](const QVariantMap& location) { TakePosition(location); });
        }
    };
    Await<QDBusVariant>(Call(client_, kProperties, "Get", {QLatin1String(kClient), "Location"}),
                        take);
}

void LocationQuestion::TakePosition(const QVariantMap& location) {
    bool isNorth = false;
    bool isEast = false;
    const EarthPosition point = {location.value(QStringLiteral("Latitude")).toDouble(&isNorth),
                                 location.value(QStringLiteral("Longitude")).toDouble(&isEast)};
    Give(isNorth && isEast ? std::optional(point) : std::nullopt);
}

/// From the event loop: what the answer does may end the question.
void LocationQuestion::Give(const std::optional<EarthPosition>& point) {
    limit_.stop();
    looking_.stop();
    if (answer_) {
        QMetaObject::invokeMethod(
            &context_,
            [answer = std::exchange(answer_, nullptr), point] {
                RunGuarded([&] { answer(point); });
            },
            Qt::QueuedConnection);
    }
}

}  // namespace horavex
