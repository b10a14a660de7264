#pragma once

#include <functional>
#include <ostream>
#include <string>

#include "base/date.h"

namespace horavex {

/// How much a line of the log weighs, by the numbers of the system's journal.
enum class Severity { kError = 3, kWarning = 4, kNotice = 5, kInformation = 6 };

/// Whether what is written to a descriptor goes to the journal, by what the variable JOURNAL_STREAM
/// says: device and file number, "8:30641".
bool GoesToJournal(int descriptor);

/// Tells what happens, a line each. For the journal a line begins with its weight, "<6>", for
/// people with the local date and time.
class ServiceLog {
public:
    /// now: the local date and time. The stream lives longer.
    ServiceLog(std::ostream& out, bool isJournal, std::function<Date()> now);

    /// Ends of lines in the text become blanks, other control characters go.
    void Write(Severity severity, const std::string& text) const;

private:
    std::ostream& out_;
    const bool isJournal_;
    const std::function<Date()> now_;
};

}  // namespace horavex
