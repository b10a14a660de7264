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
    const int place = cityIndex - kFirstCityIndex;
    if (place < 0 || place >= count) {
        throw BoundsFault(std::string(kNames) + ": no city " + std::to_string(cityIndex));
    }
    TextStore texts;
    return std::string(ReadOtherNames(count, texts)[static_cast<std::size_t>(place)]);
}

}  // namespace horavex
