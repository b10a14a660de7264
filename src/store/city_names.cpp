#include "store/city_names.h"

#include "base/fault.h"
#include "platform/platform.h"
#include "store/line_file.h"
#include "store/location_files.h"

namespace horavex {

namespace {

constexpr const char* kNames = "Dat\\N.DAT";

}  // namespace

std::vector<std::string_view> ReadOtherNames(std::int64_t cityCount, TextStore& texts) {
    if (!Ports().programFolder.Exists(kNames)) {
        return std::vector<std::string_view>(static_cast<std::size_t>(cityCount));
    }
    auto lines = KeepLineFile(kNames, texts);
    if (std::ssize(lines) != cityCount) {
        throw BoundsFault(std::string(kNames) + ": not one line for each city");
    }
    return lines;
}

std::string OtherNamesOf(std::int16_t cityIndex) {
    OpenCityFiles();
    const std::int64_t count = CityCount();
    CloseCityFiles();
    TextStore texts;
    const auto names = ReadOtherNames(count, texts);
    return std::string(names.at(static_cast<std::size_t>(cityIndex - kFirstCityIndex)));
}

}  // namespace horavex
