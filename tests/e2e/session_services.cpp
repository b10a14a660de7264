// What a session has beside the program: a notification service, two media players, of which one
// plays, and, on the system's bus, the login manager. Prints what happens to them, one thing a
// line. The test is the user, and the computer's lid, by calls to the object "/user".
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <iostream>

#include "desktop/notification_service.h"
#include "desktop/scripted_player.h"

namespace {

using namespace horavex;

QDBusConnection Connect(const char* name) {
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, QLatin1String(name));
}

class PrintedNotices : public NotificationService {
public:
    PrintedNotices() : NotificationService(Connect("notices")) {}

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        NotificationService::handleMessage(message, bus);
        if (message.member() == QLatin1String("Notify")) {
            Print(shown.back());
        } else if (message.member() == QLatin1String("CloseNotification")) {
            std::cout << "withdrawn " << closed.back() << std::endl;
        }
        return true;
    }

private:
    void Print(const ShownNotice& notice) const {
        std::cout << (notice.hints.contains("resident") ? "standing " : "quiet ") << number << " | "
                  << notice.title << " | " << notice.text << " | "
                  << notice.actions.join(' ').toStdString() << std::endl;
    }
};

class PrintedPlayer : public ScriptedPlayer {
public:
    PrintedPlayer(const char* name, const char* first)
        : ScriptedPlayer(Connect(name), name, QLatin1String(first)), name_(name) {}

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        ScriptedPlayer::handleMessage(message, bus);
        if (message.member() != QLatin1String("Get")) {
            std::cout << name_ << ' ' << status.toStdString() << std::endl;
        }
        return true;
    }

private:
    const char* name_;
};

class User : public QDBusVirtualObject {
public:
    explicit User(PrintedNotices& notices) : notices_(notices) {
        bus_.registerService(QStringLiteral("test.Session"));
        bus_.registerVirtualObject(QStringLiteral("/user"), this);
        system_.registerService(QStringLiteral("org.freedesktop.login1"));
    }

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        const QString method = message.member();
        if (method == QLatin1String("Press")) {
            notices_.Signal("ActionInvoked", message.arguments());
        } else if (method == QLatin1String("PutAway")) {
            notices_.Signal("NotificationClosed", message.arguments() << 2U);
        } else if (method == QLatin1String("Sleep")) {
            system_.send(
                QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/login1"),
                                           QStringLiteral("org.freedesktop.login1.Manager"),
                                           QStringLiteral("PrepareForSleep"))
                << message.arguments().value(0));
        }
        return bus.send(message.createReply());
    }

private:
    PrintedNotices& notices_;
    QDBusConnection bus_ = Connect("user");
    QDBusConnection system_ = QDBusConnection::systemBus();
};

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    PrintedNotices notices;
    const PrintedPlayer music("music", "Playing");
    const PrintedPlayer radio("radio", "Paused");
    const User user(notices);
    std::cout << "ready" << std::endl;
    return QCoreApplication::exec();
}
