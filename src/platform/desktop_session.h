#pragma once

#include <functional>

namespace horavex {

/// The session of the desktop. Never fails and never waits.
class DesktopSession {
public:
    virtual ~DesktopSession() = default;

    /// The user must not be disturbed, as far as the desktop tells: something fills the screen, or
    /// the user has asked for quiet.
    virtual bool IsBusy() = 0;

    /// The computer is back from a sleep. Set once by the program; called from the event loop.
    std::function<void()> onResume;
};

}  // namespace horavex
