#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <memory>

#include "desktop/ports/bus_signal.h"

namespace horavex {

/// The first value of an answer, out of its box; an invalid one where the call has failed.
QVariant ValueOf(const QDBusMessage& answer);

/// Returns when all that was sent before is on its way, or within a second.
void Flush(const QDBusConnection& bus);

/// An object of a service on a bus. Nothing waits for it: a service that is not there, or does not
/// answer, costs nothing.
class BusObject {
public:
    /// Whether a call starts a service that does not run.
    enum class Start { kNever, kWhenNeeded };

    /// service and path: empty for any, where signals alone are heard.
    BusObject(QDBusConnection bus, QString service, QString path, QString interface,
              Start start = Start::kNever);

    const QString& Service() const { return service_; }

    void Tell(const char* method, const QVariantList& arguments = {}) const;

    /// take gets the answer, which may be an error, unless context ends before it.
    void Ask(QObject& context, const char* method, const QVariantList& arguments,
             TakeMessage take) const;
    void AskProperty(QObject& context, const char* name, TakeMessage take) const;

    /// take gets each signal of this name as long as what is returned lives.
    std::unique_ptr<BusSignal> Hear(const char* name, TakeMessage take) const;

    /// The same for changes of properties: the message names the interface, the values that have
    /// changed, and those that must be asked for.
    std::unique_ptr<BusSignal> HearProperties(TakeMessage take) const;

private:
    BusObject Properties() const;
    QDBusMessage Call(const char* method, const QVariantList& arguments) const;

    QDBusConnection bus_;
    QString service_;
    QString path_;
    QString interface_;
    Start start_;
};

}  // namespace horavex
