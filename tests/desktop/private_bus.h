#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QElapsedTimer>
#include <filesystem>
#include <functional>
#include <set>

#include "support/child_process.h"
#include "support/run_program.h"
#include "support/temporary_folder.h"

namespace horavex {

/// A bus of the test's own, and the event loop that its messages come by.
class PrivateBus : public testing::Test {
protected:
    ~PrivateBus() override {
        for (const QString& name : names_) {
            QDBusConnection::disconnectFromBus(name);
        }
    }

    /// Connects under a name, which tells the test's connections apart.
    QDBusConnection Connect(const char* name) {
        names_.insert(QLatin1String(name));
        return QDBusConnection::connectToBus(Address(), QLatin1String(name));
    }

    /// Runs the event loop until something is so, within a limit.
    static bool Until(const std::function<bool()>& isSo) {
        QElapsedTimer watch;
        watch.start();
        while (!isSo() && watch.elapsed() < 10000) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        }
        return isSo();
    }

    TemporaryFolder folder;

private:
    QString Address() const { return QString::fromStdString("unix:path=" + folder / "bus"); }

    ChildProcess StartBus() const {
        ChildProcess bus(
            {"dbus-daemon", "--session", "--nofork", "--address=" + Address().toStdString()}, {},
            folder / "out", folder / "err");
        EXPECT_TRUE(Until([this] { return std::filesystem::exists(folder / "bus"); }));
        return bus;
    }

    ChildProcess bus_ = StartBus();
    std::set<QString> names_;
};

}  // namespace horavex
