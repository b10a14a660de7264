#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QElapsedTimer>
#include <fstream>
#include <functional>
#include <set>

#include "desktop/ports/bus_object.h"
#include "support/bus_configuration.h"
#include "support/child_process.h"
#include "support/run_program.h"
#include "support/temporary_folder.h"

namespace horavex {

/// Runs the event loop until something is so, within a limit that no machine is too busy for.
inline bool Until(const std::function<bool()>& isSo) {
    QElapsedTimer watch;
    watch.start();
    while (!isSo() && watch.elapsed() < 90000) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    return isSo();
}

/// A bus of a test, which ends with it.
class TestBus {
    TemporaryFolder folder_;
    ChildProcess daemon_;
    std::set<QString> names_;

public:
    TestBus()
        : daemon_({"dbus-daemon", "--nofork", "--print-address=1",
                   "--config-file=" + WriteBusConfiguration(folder_.Path())},
                  {}, folder_ / "out", folder_ / "err") {
        // It prints the address once it listens there.
        EXPECT_TRUE(Until([this] { return ContentOf(folder_ / "out").ends_with('\n'); }));
    }

    ~TestBus() {
        for (const QString& name : names_) {
            QDBusConnection::disconnectFromBus(name);
        }
    }

    TestBus(const TestBus&) = delete;
    TestBus& operator=(const TestBus&) = delete;

    /// Connects under a name, which tells the process's connections apart.
    QDBusConnection Connect(const char* name) {
        names_.insert(QLatin1String(name));
        return QDBusConnection::connectToBus(QString::fromStdString(Address()),
                                             QLatin1String(name));
    }

    /// Makes a name one that can be started, by a program and its arguments.
    void AddStartable(const char* name, const char* command) {
        std::ofstream(folder_ / (std::string("services/") + name + ".service"))
            << "[D-BUS Service]\nName=" << name << "\nExec=" << command << '\n';
        const QString daemon = QStringLiteral("org.freedesktop.DBus");
        Connect("loader").call(
            QDBusMessage::createMethodCall(daemon, QStringLiteral("/org/freedesktop/DBus"), daemon,
                                           QStringLiteral("ReloadConfig")));
    }

    /// Everything that was sent has arrived, and so has what it was answered with. A round takes
    /// each message where it goes: onto the bus, off it, and to whom it is for.
    void Settle() {
        constexpr int kRounds = 8;
        for (int round = 0; round < kRounds; ++round) {
            FlushAll();
            FlushAll();
            QCoreApplication::processEvents();
        }
    }

    std::string Address() const { return "unix:path=" + folder_ / "bus"; }

private:
    void FlushAll() const {
        for (const QString& name : names_) {
            Flush(QDBusConnection(name));
        }
    }
};

class PrivateBus : public testing::Test {
protected:
    QDBusConnection Connect(const char* name) { return bus_.Connect(name); }
    std::string Address() const { return bus_.Address(); }
    void Settle() { bus_.Settle(); }
    void AddStartable(const char* name, const char* command) { bus_.AddStartable(name, command); }

private:
    TestBus bus_;
};

}  // namespace horavex
