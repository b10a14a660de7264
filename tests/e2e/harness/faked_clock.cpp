#include "e2e/harness/faked_clock.h"

#include <chrono>
#include <ctime>
#include <filesystem>
#include <iomanip>
#include <sstream>
#include <stdexcept>

#include "base/bytes.h"
#include "linux/replace_file.h"

namespace horavex {

namespace {

namespace fs = std::filesystem;

std::string LibraryPath() {
    for (const auto& folder : fs::directory_iterator("/usr/lib")) {
        const fs::path path = folder.path() / "faketime/libfaketimeMT.so.1";
        if (fs::exists(path)) {
            return path;
        }
    }
    throw std::runtime_error("libfaketime is not installed");
}

std::time_t SecondsOf(const std::string& moment) {
    std::tm parts{};
    std::istringstream in(moment);
    if (!(in >> std::get_time(&parts, "%Y-%m-%d %H:%M:%S"))) {
        throw std::invalid_argument("no moment: " + moment);
    }
    return ::timegm(&parts);
}

}  // namespace

// A distance from the true time serves programs that start at any moment, and jumps.
void FakedClock::Set(const std::string& moment) const {
    const std::chrono::duration<double> now = std::chrono::system_clock::now().time_since_epoch();
    std::ostringstream distance;
    distance << std::showpos << std::fixed << std::setprecision(3)
             << static_cast<double>(SecondsOf(moment)) - now.count() << "s\n";
    ReplaceFile(folder_ / "moment", BytesOf(distance.str()));
}

void FakedClock::InstallIn(Environment& variables) const {
    variables["LD_PRELOAD"] = LibraryPath();
    variables["FAKETIME_TIMESTAMP_FILE"] = folder_ / "moment";
    variables["FAKETIME_NO_CACHE"] = "1";
    variables["FAKETIME_DONT_FAKE_MONOTONIC"] = "1";
    variables["NO_FAKE_STAT"] = "1";
}

}  // namespace horavex
