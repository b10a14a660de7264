#include "base/program_version.h"

namespace horavex {

namespace {

// The build hands the three numbers of the project over.
const std::string kMajorAndMinor =
    std::to_string(HORAVEX_MAJOR) + "." + std::to_string(HORAVEX_MINOR);
const std::string kRevision = std::to_string(HORAVEX_REVISION);

}  // namespace

std::string FullVersionText() {
    return kMajorAndMinor + ".0." + kRevision;
}

std::string RunningVersionText() {
    return kMajorAndMinor + "." + kRevision;
}

}  // namespace horavex
