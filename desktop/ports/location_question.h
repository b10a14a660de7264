#pragma once

#include <QDBusConnection>
#include <QDBusPendingCall>
#include <QObject>
#include <QTimer>
#include <QVariantMap>

#include "platform/whereabouts.h"

namespace horavex {

/// The name of the desktop's location service, on the system's bus.
inline constexpr const char* kLocationService = "org.freedesktop.GeoClue2";

/// One question to the location service: takes a client of it, looks until that has a location, and
/// gives the client back. What the service refuses or does not tell in time is answered with
/// nothing. The end of the object is the end of the question.
class LocationQuestion {
public:
    /// patience: milliseconds until the question is given up.
    LocationQuestion(QDBusConnection bus, int patience, Whereabouts::Answer answer);
    ~LocationQuestion();
    LocationQuestion(const LocationQuestion&) = delete;
    LocationQuestion& operator=(const LocationQuestion&) = delete;

private:
    QDBusPendingCall Call(const QString& path, const char* interface, const char* method,
                          const QVariantList& arguments = {});

    /// take gets the reply; a refusal ends the question.
    template <class Reply, class Take>
    void Await(const QDBusPendingCall& call, Take take);

    void Use(const QString& client);
    void Look();
    void TakePosition(const QVariantMap& location);
    void Give(const std::optional<EarthPosition>& point);

    QObject context_;  // of all that comes later
    QDBusConnection bus_;
    Whereabouts::Answer answer_;
    QTimer limit_;
    QTimer looking_;
    QString client_;  // its path; empty until there is one
};

}  // namespace horavex
