#include "desktop/ports/qt_media_players.h"

#include <QDBusArgument>
#include <QStringList>
#include <utility>

namespace horavex {

namespace {

constexpr const char* kPlayers = "org.mpris.MediaPlayer2.";
constexpr const char* kStatus = "PlaybackStatus";

// Speaks for whichever other one was used last: it would let another one go on than it has paused.
constexpr const char* kDeputy = "org.mpris.MediaPlayer2.playerctld";

BusObject PlayerOf(const QDBusConnection& bus, const QString& service) {
    return {bus, service, QStringLiteral("/org/mpris/MediaPlayer2"),
            QStringLiteral("org.mpris.MediaPlayer2.Player")};
}

}  // namespace

QtMediaPlayers::QtMediaPlayers(QDBusConnection bus) : bus_(std::move(bus)) {}

void QtMediaPlayers::PauseAll() {
    isPausing_ = true;
    const QString name = QStringLiteral("org.freedesktop.DBus");
    const BusObject daemon(bus_, name, QStringLiteral("/org/freedesktop/DBus"), name);
    daemon.Ask(context_, "ListNames", {}, [this](const QDBusMessage& answer) {
        for (const QString& service : ValueOf(answer).toStringList()) {
            if (service.startsWith(QLatin1String(kPlayers)) && service != QLatin1String(kDeputy)) {
                Consider(service);
            }
        }
    });
}

// A player may have several names; its answer comes from its own one.
void QtMediaPlayers::Consider(const QString& name) {
    PlayerOf(bus_, name).AskProperty(context_, kStatus, [this](const QDBusMessage& answer) {
        const bool plays = ValueOf(answer).toString() == QLatin1String("Playing");
        if (isPausing_ && plays && !paused_.contains(answer.service())) {
            Pause(answer.service());
        }
    });
}

void QtMediaPlayers::Pause(const QString& owner) {
    Paused& paused = paused_.emplace(owner, Paused{PlayerOf(bus_, owner)}).first->second;
    paused.changes = paused.player.HearProperties([this, owner](const QDBusMessage& signal) {
        const auto values = qdbus_cast<QVariantMap>(signal.arguments().value(1));
        if (values.contains(QLatin1String(kStatus))) {
            Note(owner, values[QLatin1String(kStatus)].toString());
        }
    });
    paused.player.Ask(context_, "Pause", {}, [this, owner](const QDBusMessage&) {
        if (const auto found = paused_.find(owner); found != paused_.end()) {
            found->second.hasAnswered = true;
        }
    });
}

// What it tells before it has paused may be older than the wish.
void QtMediaPlayers::Note(const QString& owner, const QString& status) {
    Paused& paused = paused_.at(owner);
    const bool isPaused = status == QLatin1String("Paused");
    paused.isUsers = paused.isUsers || (paused.hasPaused && !isPaused);
    paused.hasPaused = paused.hasPaused || isPaused;
}

// One that has not yet answered gets the wish to go on right behind the one to pause.
void QtMediaPlayers::GoOn() {
    isPausing_ = false;
    std::erase_if(paused_, [](const auto& entry) {
        const Paused& paused = entry.second;
        if (!paused.hasAnswered) {
            paused.player.Tell("Play");
        }
        return !paused.hasAnswered;
    });
    for (const auto& [owner, paused] : paused_) {
        paused.player.AskProperty(context_, kStatus,
                                  [this, owner = owner](const QDBusMessage& answer) {
                                      Decide(owner, ValueOf(answer).toString());
                                  });
    }
}

/// Nothing once another pause has begun, which the player then belongs to.
void QtMediaPlayers::Decide(const QString& owner, const QString& status) {
    const auto found = paused_.find(owner);
    if (isPausing_ || found == paused_.end()) {
        return;
    }
    if (status == QLatin1String("Paused") && !found->second.isUsers) {
        found->second.player.Tell("Play");
    }
    paused_.erase(found);
}

void QtMediaPlayers::GoOnAtOnce() {
    isPausing_ = false;
    for (const auto& [owner, paused] : std::exchange(paused_, {})) {
        if (!paused.isUsers) {
            paused.player.Tell("Play");
        }
    }
}

}  // namespace horavex
