#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace horavex {

/// How many lines of a long run are done.
struct LineCounts {
    std::uint64_t lines = 0;  // all
    std::uint64_t gaveUp = 0;
    std::uint64_t refused = 0;
};

/// "20 lines, 1 gave up, 2 passed over".
std::string TextOf(const LineCounts& counts);

/// The progress of a long run on standard error: one line that is written over in a terminal, else
/// a line each time.
class ProgressLine {
public:
    /// isWanted: even where standard error is no terminal.
    explicit ProgressLine(bool isWanted);

    /// From time to time.
    void Tell(const LineCounts& counts);

    /// Makes room for another line.
    void Clear() const;

    /// The last time.
    void End(const LineCounts& counts) const;

private:
    bool isTerminal_;
    bool isShown_;
    std::optional<double> told_;  // seconds of the steady clock
};

}  // namespace horavex
