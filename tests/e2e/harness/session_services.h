#pragma once

#include <csignal>
#include <string>
#include <vector>

#include "e2e/harness/service.h"
#include "e2e/harness/test_desktop.h"

namespace horavex {

/// A notification service, the media players "music", which plays, and "radio", which does not, and
/// a login manager on a system bus of its own. Programs that are started afterwards find them.
class SessionServices {
public:
    explicit SessionServices(TestDesktop& desktop);

    /// What has happened, one thing a line:
    ///
    ///     standing 7 | Asr 3:12 PM | It is time for Asr | stop Stop
    ///     quiet 8 | title | text | buttons
    ///     withdrawn 7
    ///     music Paused
    std::vector<std::string> Lines() const;

    /// Those that begin so.
    std::vector<std::string> LinesOf(const std::string& beginning) const;

    /// Waits for a line that begins so, and returns it.
    std::string WaitFor(const std::string& beginning) const;

    /// They hear no more, answer nothing and are still there.
    void Hang() const { ::kill(services_.Id(), SIGSTOP); }

    /// What the user does with the notice that a line tells of.
    void Press(const std::string& line, const std::string& button) const;
    void PutAway(const std::string& line) const;

    /// The login manager tells that the computer is about to sleep, or back from it.
    void TellSleep(bool begins) const;

private:
    void Call(const std::string& method, const std::vector<std::string>& arguments) const;

    TestDesktop& desktop_;
    TemporaryFolder folder_;
    Service system_;
    Service services_;
};

}  // namespace horavex
