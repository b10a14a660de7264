#pragma once

#include <QDBusConnection>
#include <map>
#include <memory>

#include "desktop/ports/bus_object.h"
#include "platform/media_players.h"

namespace horavex {

/// Players that can be reached over the session's bus, org.mpris.MediaPlayer2.
class QtMediaPlayers : public MediaPlayers {
public:
    /// bus: where they are.
    explicit QtMediaPlayers(QDBusConnection bus = QDBusConnection::sessionBus());

    void PauseAll() override;
    void GoOn() override;

    /// Lets them go on without asking how they are, for an end of the program that can wait for no
    /// answer. What the user has done is known as far as they have told it.
    void GoOnAtOnce();

private:
    /// One that was told to pause.
    struct Paused {
        BusObject player;
        bool hasAnswered = false;
        bool hasPaused = false;  // has told so
        bool isUsers = false;    // does something else since then
        std::unique_ptr<BusSignal> changes = nullptr;
    };

    void Consider(const QString& name);
    void Pause(const QString& owner);
    void Note(const QString& owner, const QString& status);
    void Decide(const QString& owner, const QString& status);

    QObject context_;  // of all that comes later
    QDBusConnection bus_;
    bool isPausing_ = false;            // from PauseAll to GoOn
    std::map<QString, Paused> paused_;  // by the bus's own name of the player, which is no other's
};

}  // namespace horavex
