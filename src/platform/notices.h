#pragma once

#include <functional>
#include <string>

namespace horavex {

/// What a notice is about. There is one of a kind at a time: a new one takes the place of the
/// former.
enum class NoticeKind {
    kAthan,   // an athan that is up
    kPrayer,  // a reminder, a prayer without a sound and the iqama in turn
    kMissed   // a prayer that came while the computer slept
};

/// What the user does with a notice: presses one of its buttons or the text (kOpen), or puts it
/// away.
enum class NoticeAction { kStop, kOpen, kDismiss };

/// A text for the desktop to show beside what the user does.
struct Notice {
    std::string title;
    std::string text;
    bool quiet = true;  // goes by itself and makes no sound; else it stands until it is withdrawn
    std::string stopCaption;  // of the button that stops; empty for none
    std::string openCaption;  // likewise

    bool operator==(const Notice&) const = default;
};

/// The desktop's notifications. Never fails and never waits; without a service nothing shows.
class Notices {
public:
    virtual ~Notices() = default;

    /// Whether there is a service that would show them now.
    virtual bool HasService() = 0;

    virtual void Show(NoticeKind kind, const Notice& notice) = 0;

    /// Nothing for a kind that is not on view.
    virtual void Withdraw(NoticeKind kind) = 0;

    /// Set once by the program; called from the event loop.
    std::function<void(NoticeKind kind, NoticeAction action)> onAction;
};

}  // namespace horavex
