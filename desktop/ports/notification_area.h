#pragma once

#include <QTimer>
#include <functional>

namespace horavex {

/// What a desktop takes icons in with.
enum class AreaKind { kNone, kStatusNotifier, kXEmbed };

/// Looks for the notification area of the desktop. It is noticed when it comes up late, as panels
/// often start after the programs of a session, and when it goes away.
class NotificationArea {
public:
    NotificationArea();

    /// The present one. A desktop with both kinds counts as the first, which is the newer.
    AreaKind Present() const;

    /// Calls onChange with the area as soon as there is one, which may be now, and at each change
    /// from then on. That it is gone is told at the second look that misses it.
    void Watch(std::function<void(AreaKind)> onChange);

private:
    void Look();

    std::function<void(AreaKind)> onChange_;
    AreaKind told_ = AreaKind::kNone;
    int looksWithout_ = 0;  // in a row
    QTimer looking_;
};

}  // namespace horavex
