#include "store/city_zones.h"

#include "base/fault.h"
#include "platform/platform.h"
#include "store/line_file.h"
#include "store/location_files.h"

namespace horavex {

namespace {

constexpr const char* kIndex = "Dat\\ZI.DAT";
constexpr const char* kNames = "Dat\\Z.DAT";

/// Record number of the zone of a city, 0 for none and behind the end of the index.
std::int16_t NumberOf(const Bytes& index, std::int16_t cityIndex) {
    const std::int32_t city = std::int32_t{cityIndex} - kFirstCityIndex;
    const bool held = city >= 0 && std::ssize(index) >= (city + 1) * 2;
    return held ? GetInt16(index, static_cast<std::size_t>(city) * 2) : std::int16_t{0};
}

}  // namespace

CityZones::CityZones()
    : index_(Ports().programFolder.ReadWhole(kIndex)), names_(ReadLineFile(kNames)) {}

std::string CityZones::Of(std::int16_t cityIndex) const {
    const std::int16_t number = NumberOf(index_, cityIndex);
    if (number < 0 || number > std::ssize(names_)) {
        throw BoundsFault(std::string(kIndex) + ": there is no zone " + std::to_string(number));
    }
    return number == 0 ? std::string() : names_[static_cast<std::size_t>(number) - 1];
}

}  // namespace horavex
