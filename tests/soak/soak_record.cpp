#include "soak/soak_record.h"

namespace horavex {

namespace {

constexpr std::size_t kTraced = 40;  // actions that a failure tells

}  // namespace

void SoakRecord::Note(const std::string& done) {
    last.push_back(done);
    if (last.size() > kTraced) {
        last.pop_front();
    }
}

std::string SoakRecord::Trace() const {
    std::string text;
    for (const std::string& done : last) {
        text += "  " + done + "\n";
    }
    return text;
}

}  // namespace horavex
