#pragma once

#include <optional>
#include <string>
#include <vector>

#include "support/child_process.h"
#include "support/temporary_folder.h"

namespace horavex {

/// A program that tests need beside the one that they test: a display, a bus, a sound server. It
/// ends with its object, by its process number.
class Service {
    TemporaryFolder folder_;
    ChildProcess process_;

public:
    Service(const std::vector<std::string>& words, const Environment& environment);

    pid_t Id() const { return process_.Id(); }
    bool IsRunning() const { return process_.IsRunning(); }

    /// What it has printed so far.
    std::string Printed() const;

    /// Its first line, which it waits for. Throws where the service ends before it.
    std::string FirstLine() const;
};

}  // namespace horavex
