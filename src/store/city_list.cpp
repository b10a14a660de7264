#include "store/city_list.h"

#include <algorithm>
#include <cstring>

#include "base/bytes.h"
#include "base/fault.h"
#include "base/fold.h"
#include "base/int16.h"
#include "platform/platform.h"
#include "store/city_names.h"
#include "store/location_files.h"

namespace horavex {

namespace {

/// The ranks file is an aid of searching alone: without it, equal matches keep their order.
Bytes ReadRanks() {
    try {
        return Ports().programFolder.ReadWhole("Dat\\RI.DAT");
    } catch (const FileFault&) {
        return {};
    }
}

/// So is the file of other names: one that cannot be used leaves the cities their own.
std::vector<std::string> OtherNamesOrNone() {
    std::vector<std::string> names;
    RunStep([&] { names = ReadOtherNames(CityCount()); });
    return names;
}

std::size_t RecordOf(std::int16_t cityIndex) {
    return static_cast<std::size_t>(cityIndex - kFirstCityIndex);
}

/// cityIndex: of a city that the index can hold.
std::uint16_t RankOf(const Bytes& ranks, std::int16_t cityIndex) {
    const std::size_t offset = RecordOf(cityIndex) * 2;
    return offset + 2 <= ranks.size() ? static_cast<std::uint16_t>(GetInt16(ranks, offset)) : 0;
}

/// The same; a damaged index can name a city behind the last one.
std::string OtherNamesOf(const std::vector<std::string>& names, std::int16_t cityIndex) {
    const std::size_t at = RecordOf(cityIndex);
    return at < names.size() ? names[at] : std::string();
}

ListedCity ListCity(std::int16_t cityIndex, const std::string& country, const Bytes& ranks,
                    const std::string& otherNames) {
    CityRecord city;
    ReadCity(cityIndex, city);
    ListedCity listed;
    listed.cityIndex = cityIndex;
    listed.name = city.Name;
    listed.province = city.Province;
    listed.country = country;
    listed.latitude = city.Latitude;
    listed.longitude = city.Longitude;
    listed.rank = RankOf(ranks, cityIndex);
    listed.folded = FoldForSearch(DisplayText(listed));
    SetOtherNames(listed, otherNames);
    return listed;
}

void ListCountry(std::vector<ListedCity>& cities, std::int16_t number, const Bytes& ranks,
                 const std::vector<std::string>& otherNames) {
    CountryRecord country;
    ReadCountry(number, country);
    // A damaged index could otherwise list its cities over and over.
    if (std::ssize(cities) + country.CityCount > CityCount()) {
        throw BoundsFault("Dat\\SI.DAt: the countries hold more cities than Dat\\CI.DAT");
    }
    for (std::int32_t i = 0; i < country.CityCount; ++i) {
        const std::int16_t city = ToInt16(country.FirstCity + i);
        cities.push_back(ListCity(city, country.Name, ranks, OtherNamesOf(otherNames, city)));
    }
}

/// The lines of a file, one behind the other.
class LineWalk {
public:
    explicit LineWalk(ByteView rest) : rest_(rest) {}

    /// A line, counted from 0, at or behind the last one asked for; empty behind the end.
    std::string Line(std::size_t number) {
        for (; at_ < number; ++at_) {
            rest_ = rest_.subspan(std::min(Length() + 1, rest_.size()));
        }
        return StringOf(rest_.first(Length()));
    }

private:
    std::size_t Length() const {
        const void* end = rest_.empty() ? nullptr : std::memchr(rest_.data(), '\n', rest_.size());
        return end == nullptr
                   ? rest_.size()
                   : static_cast<std::size_t>(static_cast<const std::uint8_t*>(end) - rest_.data());
    }

    ByteView rest_;  // from the line at_ on
    std::size_t at_ = 0;
};

}  // namespace

std::vector<ListedCity> ListCities() {
    std::vector<ListedCity> cities;
    OpenLocationFiles();
    const Bytes ranks = ReadRanks();
    const std::vector<std::string> otherNames = OtherNamesOrNone();
    const std::int64_t count = CountryCount();
    for (std::int64_t number = 1; number <= count; ++number) {
        ListCountry(cities, ToInt16(number), ranks, otherNames);
    }
    CloseLocationFiles();
    return cities;
}

std::vector<ListedCity> ListCitiesAt(const std::vector<std::uint16_t>& places,
                                     ByteView otherNames) {
    std::vector<ListedCity> cities;
    OpenLocationFiles();
    const Bytes ranks = ReadRanks();
    LineWalk lines(otherNames);
    std::int16_t number = 1;
    std::int32_t before = 0;  // cities of the countries before this one
    auto place = places.begin();
    for (const CityRange& range : ReadCityRanges()) {
        for (; place != places.end() && *place < before + range.count; ++place) {
            CountryRecord country;
            const std::int16_t city = ToInt16(range.first + *place - before);
            cities.push_back(
                ListCity(city, ReadCountry(number, country), ranks, lines.Line(RecordOf(city))));
        }
        before += range.count;
        ++number;
    }
    CloseLocationFiles();
    return cities;
}

}  // namespace horavex
