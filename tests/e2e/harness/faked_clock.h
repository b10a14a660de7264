#pragma once

#include <string>

#include "support/run_program.h"
#include "support/temporary_folder.h"

namespace horavex {

/// A wall clock for programs from outside: it shows the time that it was set to, and goes on.
/// Timers and spans are not touched.
class FakedClock {
    TemporaryFolder folder_;

public:
    /// moment: "2026-03-01 04:59:58", in UTC.
    explicit FakedClock(const std::string& moment) { Set(moment); }

    /// Sets the clock of the programs that already run, too.
    void Set(const std::string& moment) const;

    /// Gives the clock to the programs that are started with these variables.
    void InstallIn(Environment& variables) const;
};

}  // namespace horavex
