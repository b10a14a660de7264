#pragma once

#include <QTimer>
#include <functional>

namespace horavex {

/// What a desktop takes icons in with.
enum class AreaKind { kNone, kStatusNotifier, kXEmbed };

/// Looks for the notification area of the desktop. It is noticed when it comes up late: panels
/// often start after the programs of a session.
class NotificationArea {
public:
    NotificationArea();

    /// The present one. A desktop with both kinds counts as the first, which is the newer.
    AreaKind Present() const;

    /// Calls onAppear as soon as there is an area, which may be now, once.
    void Await(std::function<void(AreaKind)> onAppear);

private:
    void Look();

    std::function<void(AreaKind)> onAppear_;
    QTimer looking_;
};

}  // namespace horavex
