#pragma once

#include <csignal>
#include <optional>
#include <vector>

#include "linux/system_call.h"

namespace horavex {

/// What asks a program to end.
inline constexpr int kEndSignals[] = {SIGTERM, SIGINT, SIGHUP};

/// Turns signals into something that an event loop can read, so that each is handled between two
/// events and never in the middle of a write. A signal that is ignored stays ignored: programs in
/// the background of a shell are not meant to end by its interrupt key. One at a time.
class SignalPipe {
public:
    /// Throws std::system_error where the system has no pipe left.
    explicit SignalPipe(std::vector<int> signals = {std::begin(kEndSignals),
                                                    std::end(kEndSignals)});
    /// The signals do again what they do by themselves.
    ~SignalPipe();
    SignalPipe(const SignalPipe&) = delete;
    SignalPipe& operator=(const SignalPipe&) = delete;

    /// The descriptor that can be read from when a signal has come.
    int Number() const { return readEnd_.Number(); }

    /// The next signal that has come; none once all are taken.
    std::optional<int> Take() const;

private:
    std::vector<int> signals_;
    Descriptor readEnd_;
    Descriptor writeEnd_;
};

}  // namespace horavex
