#pragma once

#include <QDBusConnection>
#include <memory>

namespace horavex {

/// Keeps the screen on as long as it lives, by a request to the desktop
/// (org.freedesktop.ScreenSaver). A desktop without that service does as it likes.
class ScreenAwake {
public:
    explicit ScreenAwake(const QString& reason,
                         const QDBusConnection& bus = QDBusConnection::sessionBus());
    ~ScreenAwake();
    ScreenAwake(const ScreenAwake&) = delete;
    ScreenAwake& operator=(const ScreenAwake&) = delete;

private:
    struct Request;
    std::shared_ptr<Request> request_;  // its answer may outlive this
};

}  // namespace horavex
