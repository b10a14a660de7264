#include "store/city_names.h"

#include "base/fault.h"
#include "platform/platform.h"
#include "store/line_file.h"

namespace horavex {

namespace {

constexpr const char* kNames = "Dat\\N.DAT";

}  // namespace

std::vector<std::string> ReadOtherNames(std::int64_t cityCount) {
    if (!Ports().programFolder.Exists(kNames)) {
        return std::vector<std::string>(static_cast<std::size_t>(cityCount));
    }
    auto lines = ReadLineFile(kNames);
    if (std::ssize(lines) != cityCount) {
        throw BoundsFault(std::string(kNames) + ": not one line for each city");
    }
    return lines;
}

}  // namespace horavex
