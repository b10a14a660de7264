#pragma once

#include <functional>
#include <memory>

#include "platform/desktop_session.h"

namespace horavex {

/// A session without a desktop: nobody says that the user is busy, and a sleep of the computer is
/// told by the login manager, org.freedesktop.login1, on the system bus, where there is one.
class SleepWatch : public DesktopSession {
public:
    /// Runs a function from the program's event loop, later.
    using Post = std::function<void(std::function<void()>)>;

    explicit SleepWatch(Post post);
    ~SleepWatch() override;

    bool IsBusy() override { return false; }

    /// What can be read from when the bus tells something; -1 without one, or once it has ended.
    int Descriptor() const;

    /// Takes what the bus has told. A return from a sleep is posted.
    void Serve();

private:
    class Connection;

    void TellResume();

    Post post_;
    std::unique_ptr<Connection> connection_;
};

}  // namespace horavex
