#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QStringList>
#include <QVariantMap>
#include <optional>
#include <vector>

namespace horavex {

/// What a notification service was asked to show.
struct ShownNotice {
    uint replaced;
    std::string title;
    std::string text;
    QStringList actions;
    QVariantMap hints;
    int milliseconds;
};

/// A notification service on a bus of the test, which keeps what it is asked for.
class NotificationService : public QDBusVirtualObject {
public:
    explicit NotificationService(QDBusConnection bus) : bus_(std::move(bus)) {
        bus_.registerVirtualObject(kPath, this);
        bus_.registerService(kName);
    }

    ~NotificationService() override {
        bus_.unregisterService(kName);
        bus_.unregisterObject(kPath);
    }

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        const QString method = message.member();
        if (method == QLatin1String("Notify")) {
            notifies.push_back(message);
            shown.push_back(ToShow(message.arguments()));
            if (refuses) {
                bus.send(message.createErrorReply(QDBusError::LimitsExceeded, method));
            } else if (!isSlow) {
                AnswerNotify();
            }
        } else if (method == QLatin1String("CloseNotification")) {
            closed.push_back(message.arguments().value(0).toUInt());
            bus.send(message.createReply());
        } else if (method == QLatin1String("GetCapabilities")) {
            ++questions;
            question = message;
            if (!isMute) {
                AnswerAbilities();
            }
        } else if (method == QLatin1String("Get") && inhibited) {
            ++looks;
            bus.send(message.createReply(QVariant::fromValue(QDBusVariant(*inhibited))));
        } else {
            bus.send(message.createErrorReply(QDBusError::UnknownMethod, method));
        }
        return true;
    }

    void AnswerAbilities() { bus_.send(question.createReply(QVariantList{abilities})); }

    /// Tells the number of the last notice.
    void AnswerNotify() {
        const uint replaced = shown.back().replaced;
        number = replaced != 0 ? replaced : ++newest_;
        bus_.send(notifies.back().createReply(number));
    }

    void Signal(const char* name, const QVariantList& arguments, const QString& interface = kName) {
        QDBusMessage signal = QDBusMessage::createSignal(kPath, interface, QLatin1String(name));
        signal.setArguments(arguments);
        bus_.send(signal);
    }

    /// The user turns "Do Not Disturb" on or off, which is told with the value or without.
    void Inhibit(bool wish, bool tellsValue = true) {
        inhibited = wish;
        const QVariantMap values = {{"Inhibited", wish}};
        Signal("PropertiesChanged",
               {kName, tellsValue ? values : QVariantMap(),
                tellsValue ? QStringList() : QStringList("Inhibited")},
               QStringLiteral("org.freedesktop.DBus.Properties"));
    }

    std::vector<ShownNotice> shown;
    std::vector<uint> closed;
    std::vector<QDBusMessage> notifies;
    QStringList abilities = {"actions", "body", "body-markup"};
    QDBusMessage question;
    bool isMute = false;            // a test tells the abilities
    int questions = 0;              // for the abilities
    std::optional<bool> inhibited;  // the property; none for a service without it
    int looks = 0;                  // at the property
    uint number = 0;                // that was told last
    bool isSlow = false;            // a test tells the numbers
    bool refuses = false;           // shows nothing

private:
    static ShownNotice ToShow(const QVariantList& arguments) {
        return {arguments.at(1).toUInt(),
                arguments.at(3).toString().toStdString(),
                arguments.at(4).toString().toStdString(),
                arguments.at(5).toStringList(),
                qdbus_cast<QVariantMap>(arguments.at(6)),
                arguments.at(7).toInt()};
    }

    inline static const QString kName = QStringLiteral("org.freedesktop.Notifications");
    inline static const QString kPath = QStringLiteral("/org/freedesktop/Notifications");

    QDBusConnection bus_;
    uint newest_ = 6;
};

}  // namespace horavex
