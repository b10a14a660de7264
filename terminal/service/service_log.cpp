#include "terminal/service/service_log.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "base/plain_text.h"
#include "base/stamp.h"

namespace horavex {

namespace {

std::string OneLine(std::string text) {
    std::erase(text, '\r');
    std::ranges::replace(text, '\n', ' ');
    return WithoutControls(text);
}

}  // namespace

bool GoesToJournal(int descriptor) {
    const char* stream = std::getenv("JOURNAL_STREAM");
    struct stat status = {};
    return stream != nullptr && ::fstat(descriptor, &status) == 0 &&
           std::to_string(status.st_dev) + ":" + std::to_string(status.st_ino) == stream;
}

ServiceLog::ServiceLog(std::ostream& out, bool isJournal, std::function<Date()> now)
    : out_(out), isJournal_(isJournal), now_(std::move(now)) {}

void ServiceLog::Write(Severity severity, const std::string& text) const {
    const std::string head =
        isJournal_ ? "<" + std::to_string(static_cast<int>(severity)) + ">" : StampOf(now_()) + " ";
    out_ << head + OneLine(text) + "\n" << std::flush;
}

}  // namespace horavex
