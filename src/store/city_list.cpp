#include "store/city_list.h"

#include <algorithm>
#include <cstring>
#include <unordered_map>

#include "base/bytes.h"
#include "base/fault.h"
#include "base/fold.h"
#include "base/int16.h"
#include "platform/platform.h"
#include "store/city_names.h"
#include "store/loaded_texts.h"
#include "store/location_files.h"

namespace horavex {

namespace {

constexpr std::int64_t kMostCities = 65536;  // that indexes can number

/// The ranks file is an aid of searching alone: without it, equal matches keep their order.
Bytes ReadRanks() {
    try {
        return Ports().programFolder.ReadWhole("Dat\\RI.DAT");
    } catch (const FileFault&) {
        return {};
    }
}

/// So is the file of other names: one that cannot be used leaves the cities their own.
std::vector<std::string_view> OtherNamesOrNone(std::int64_t cityCount, TextStore& texts) {
    std::vector<std::string_view> names;
    RunStep([&] { names = ReadOtherNames(cityCount, texts); });
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
std::string_view OtherNamesOf(const std::vector<std::string_view>& names, std::int16_t cityIndex) {
    const std::size_t at = RecordOf(cityIndex);
    return at < names.size() ? names[at] : std::string_view();
}

/// Puts cities into a list. What those of a country or of a province share is kept once.
class ListMaker {
public:
    explicit ListMaker(CityList& list) : list_(list), ranks_(ReadRanks()) {}

    void BeginCountry(std::string_view name) {
        country_ = list_.Texts().Keep(name);
        areas_.clear();
    }

    /// otherNames: live as long as the list.
    void Add(std::int16_t cityIndex, const CityRecord& record, std::string_view otherNames) {
        TextStore& texts = list_.Texts();
        const Area& area = AreaOf(record);
        list_.Add({cityIndex, texts.Keep(record.Name), area.province, country_, record.Latitude,
                   record.Longitude, RankOf(ranks_, cityIndex),
                   texts.Keep(FoldForSearch(record.Name), area.foldedEnd), otherNames});
    }

private:
    struct Area {
        std::string_view province;
        std::string foldedEnd;  // of a city's display text, behind its name
    };

    const Area& AreaOf(const CityRecord& record) {
        const auto [area, isNew] = areas_.try_emplace(record.ProvinceIndex);
        if (isNew) {
            area->second.province = list_.Texts().Keep(record.Province);
            ListedCity nameless{};
            nameless.province = area->second.province;
            nameless.country = country_;
            area->second.foldedEnd = FoldForSearch(DisplayText(nameless));
        }
        return area->second;
    }

    CityList& list_;
    Bytes ranks_;
    std::string_view country_;
    std::unordered_map<std::int16_t, Area> areas_;  // of the country, by the index of the province
};

/// The files of cities and provinces.
struct LoadedCities {
    LoadedTexts cities{"Dat\\CI.DAT", 10, 4, "Dat\\C.DAt"};
    LoadedTexts provinces{"Dat\\PI.DAT", 2, 2, "Dat\\P.DAT"};

    CityRecord Read(std::int16_t cityIndex) const {
        const std::int64_t number = std::int64_t{cityIndex} - kFirstCityIndex + 1;
        const ByteView record = cities.Record(number);
        CityRecord city;
        city.Latitude = GetInt16(record, 4);
        city.Longitude = GetInt16(record, 6);
        city.ProvinceIndex = GetInt16(record, 8);
        city.Name = cities.Text(number);
        city.Province = city.ProvinceIndex == 0 ? "" : provinces.Text(city.ProvinceIndex);
        return city;
    }
};

void RefuseMoreCities(std::int64_t count, std::int64_t held) {
    if (count > held) {
        throw BoundsFault("Dat\\SI.DAt: the countries hold more cities than Dat\\CI.DAT");
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

CityList ListCities() {
    CityList list;
    OpenCountryFiles();
    const LoadedCities files;
    const std::int64_t held = files.cities.Count();
    const auto otherNames = OtherNamesOrNone(held, list.Texts());
    list.Reserve(static_cast<std::size_t>(std::min(held, kMostCities)));
    ListMaker maker(list);
    const std::int64_t count = CountryCount();
    for (std::int64_t number = 1; number <= count; ++number) {
        CountryRecord country;
        maker.BeginCountry(ReadCountry(ToInt16(number), country));
        // A damaged index could otherwise list its cities over and over.
        RefuseMoreCities(std::ssize(list) + country.CityCount, held);
        for (std::int32_t i = 0; i < country.CityCount; ++i) {
            const std::int16_t city = ToInt16(country.FirstCity + i);
            maker.Add(city, files.Read(city), OtherNamesOf(otherNames, city));
        }
    }
    CloseCountryFiles();
    return list;
}

CityList ListCitiesAt(const std::vector<std::uint16_t>& places, ByteView otherNames) {
    CityList list;
    OpenLocationFiles();
    LineWalk lines(otherNames);
    ListMaker maker(list);
    std::int16_t number = 1;
    std::int32_t before = 0;  // cities of the countries before this one
    auto place = places.begin();
    for (const CityRange& range : ReadCityRanges()) {
        if (place != places.end() && *place < before + range.count) {
            CountryRecord country;
            maker.BeginCountry(ReadCountry(number, country));
        }
        for (; place != places.end() && *place < before + range.count; ++place) {
            const std::int16_t city = ToInt16(range.first + *place - before);
            CityRecord record;
            ReadCity(city, record);
            maker.Add(city, record, list.Texts().Keep(lines.Line(RecordOf(city))));
        }
        before += range.count;
        ++number;
    }
    CloseLocationFiles();
    return list;
}

}  // namespace horavex
