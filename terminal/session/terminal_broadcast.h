#pragma once

#include "linux/bus/session_broadcast.h"

namespace horavex {

/// Keeps a word for the user of a second start: the program that has been asked to show itself may
/// be on another screen than theirs.
class TerminalBroadcast : public SessionBroadcast {
public:
    using SessionBroadcast::SessionBroadcast;

    bool ShowRunning() override;

    /// What is left to be said when the terminal has been given back, a line or nothing.
    const std::string& LastWords() const { return lastWords_; }

private:
    std::string lastWords_;
};

}  // namespace horavex
