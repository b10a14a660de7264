#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QString>
#include <memory>

namespace horavex {

/// Keeps the screen on as long as it lives, by a request to the desktop
/// (org.freedesktop.ScreenSaver), which is asked anew when that service comes later or starts
/// again. A desktop without it does as it likes.
class ScreenAwake {
public:
    explicit ScreenAwake(const QString& reason,
                         const QDBusConnection& bus = QDBusConnection::sessionBus());
    ~ScreenAwake();
    ScreenAwake(const ScreenAwake&) = delete;
    ScreenAwake& operator=(const ScreenAwake&) = delete;

private:
    struct Request;

    void Ask();

    QString reason_;
    QDBusServiceWatcher owner_;
    std::shared_ptr<Request> request_;  // its answer may outlive this
};

}  // namespace horavex
