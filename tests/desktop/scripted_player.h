#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QVariantMap>
#include <string>
#include <vector>

namespace horavex {

/// A media player on a bus of the test, which is alone on its connection.
class ScriptedPlayer : public QDBusVirtualObject {
public:
    ScriptedPlayer(QDBusConnection bus, const char* name, const QString& first)
        : status(first), bus_(std::move(bus)) {
        bus_.registerVirtualObject(kPath, this);
        bus_.registerService(QStringLiteral("org.mpris.MediaPlayer2.") + QLatin1String(name));
    }

    ~ScriptedPlayer() override { bus_.unregisterObject(kPath); }

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override {
        calls.push_back(message.member().toStdString());
        if (isDead) {
            held.push_back(message);
        } else {
            Answer(message);
            isDead = message.member() == diesBehind;
        }
        return true;
    }

    /// Answers what it has held back, in order, and lives on.
    void ComeAlive() {
        isDead = false;
        diesBehind.clear();
        for (const QDBusMessage& message : std::exchange(held, {})) {
            Answer(message);
        }
    }

    /// The user's doing, or the program's.
    void Become(const QString& other) {
        status = other;
        QDBusMessage signal =
            QDBusMessage::createSignal(kPath, QStringLiteral("org.freedesktop.DBus.Properties"),
                                       QStringLiteral("PropertiesChanged"));
        signal << QStringLiteral("org.mpris.MediaPlayer2.Player")
               << QVariantMap{{"PlaybackStatus", status}} << QStringList();
        bus_.send(signal);
    }

    QString status;
    bool isDead = false;             // answers nothing
    QString diesBehind;              // the method that it answers last
    std::vector<std::string> calls;  // "Get" for a question
    std::vector<QDBusMessage> held;

private:
    void Answer(const QDBusMessage& message) {
        const QString method = message.member();
        if (method == QLatin1String("Get")) {
            bus_.send(message.createReply(QVariant::fromValue(QDBusVariant(status))));
            return;
        }
        Become(method == QLatin1String("Pause") ? "Paused" : "Playing");
        bus_.send(message.createReply());
    }

    inline static const QString kPath = QStringLiteral("/org/mpris/MediaPlayer2");

    QDBusConnection bus_;
};

}  // namespace horavex
