// The registrar of icons over the bus, as panels bring one along. Prints the bus name of each icon
// that registers, one a line.
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <iostream>

namespace {

class Watcher : public QDBusVirtualObject {
public:
    // The toolkit asks for the property only where it is told of it.
    QString introspect(const QString&) const override {
        return QStringLiteral(R"(
            <interface name="org.kde.StatusNotifierWatcher">
              <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
              <method name="RegisterStatusNotifierItem">
                <arg name="service" type="s" direction="in"/>
              </method>
            </interface>)");
    }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        if (message.member() == QStringLiteral("RegisterStatusNotifierItem")) {
            std::cout << message.arguments().value(0).toString().toStdString() << std::endl;
            bus.send(message.createReply());
        } else if (message.member() == QStringLiteral("Get")) {
            bus.send(message.createReply(QVariant::fromValue(QDBusVariant(true))));
        } else {
            return false;
        }
        return true;
    }
};

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QDBusConnection bus = QDBusConnection::sessionBus();
    Watcher watcher;
    const bool isUp =
        bus.registerVirtualObject(QStringLiteral("/StatusNotifierWatcher"), &watcher) &&
        bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher"));
    return isUp ? QCoreApplication::exec() : EXIT_FAILURE;
}
