#pragma once

#include <deque>
#include <map>
#include <string>

namespace horavex {

/// What has happened, over all processes of a run.
struct SoakRecord {
    long seconds = 0;  // in which something was due
    long actions = 0;
    long starts = 0;
    long arrivals = 0;
    std::map<std::string, int> messages;  // who was at it and what was told, and how often
    std::map<std::string, int> windows;   // and how often each was acted on
    std::deque<std::string> last;         // the latest things that were done

    void Note(const std::string& done);
    std::string Trace() const;
};

}  // namespace horavex
