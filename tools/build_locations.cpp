// Compiles data/gazetteer into the location files: countries, cities and provinces with their
// indexes, the rank of each city by population, its zone and its other names. Arguments: the folder
// of the source, the folder of the data files.

#include <algorithm>
#include <iostream>
#include <map>
#include <numeric>

#include "base/fault.h"
#include "lib/data_writer.h"
#include "lib/text_source.h"
#include "store/location_files.h"

namespace {

using namespace horavex;

constexpr std::int64_t kLargestShortPosition = 32767;
constexpr std::int64_t kLargestLongPosition = 2147483647;
constexpr std::size_t kFewestCities = 40000;
constexpr std::size_t kMostCities = 64768;  // the last CityIndex is 32767

struct City {
    std::string country;  // ISO 3166 code
    std::string name;
    std::string province;
    int latitude;   // hundredths of a degree
    int longitude;  // hundredths of a degree
    int population;
    std::string zone;   // of the zone database
    std::string names;  // other ones, joined by commas
};

City ParseCity(const std::string& line) {
    const auto columns = SplitTabs(line);
    if (columns.size() != 8) {
        throw TypeMismatchFault("a city wants eight columns: " + line);
    }
    return {columns[0],
            columns[1],
            columns[2],
            WholeNumber(columns[3]),
            WholeNumber(columns[4]),
            WholeNumber(columns[5]),
            columns[6],
            columns[7]};
}

std::vector<City> ReadCities(const std::string& path) {
    const auto lines = ReadLines(path);
    std::vector<City> cities;
    std::transform(lines.begin() + 1, lines.end(), std::back_inserter(cities), ParseCity);
    return cities;
}

/// The row numbers in the order in which cities are chosen: each country's most populous one
/// first, then by population; equal ones by row.
std::vector<std::size_t> OrderOfChoice(const std::vector<City>& cities) {
    std::vector<std::size_t> order(cities.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::map<std::string, std::size_t> top;
    for (std::size_t row = 0; row < cities.size(); ++row) {
        const auto [found, fresh] = top.try_emplace(cities[row].country, row);
        if (!fresh && cities[row].population > cities[found->second].population) {
            found->second = row;
        }
    }
    const auto key = [&](std::size_t row) {
        return std::tuple(top.at(cities[row].country) != row, -cities[row].population, row);
    };
    std::sort(order.begin(), order.end(),
              [&](std::size_t a, std::size_t b) { return key(a) < key(b); });
    return order;
}

std::size_t RowOfMecca(const std::vector<City>& cities) {
    const auto mecca = std::find_if(cities.begin(), cities.end(), [](const City& city) {
        return city.country == "SA" && city.name == "Mecca";
    });
    if (mecca == cities.end()) {
        throw TypeMismatchFault("the gazetteer has no Mecca");
    }
    return static_cast<std::size_t>(mecca - cities.begin());
}

/// The largest number of cities for which Mecca gets its CityIndex, which the set button knows
/// as the place without a qibla.
std::size_t CountThatPlacesMecca(const std::vector<City>& cities,
                                 const std::vector<std::size_t>& order) {
    const std::size_t mecca = RowOfMecca(cities);
    const auto wanted = static_cast<std::size_t>(kMeccaCityIndex - kFirstCityIndex);
    std::size_t before = 0;
    std::size_t found = 0;
    for (std::size_t count = 1; count <= std::min(order.size(), kMostCities); ++count) {
        before += order[count - 1] < mecca ? 1U : 0U;
        found = before == wanted && count >= kFewestCities ? count : found;
    }
    if (found == 0) {
        throw BoundsFault("no number of cities gives Mecca its index");
    }
    return found;
}

/// Gives each province name one record.
class Provinces {
public:
    /// Record number, 0 for no name.
    std::int64_t NumberOf(const std::string& name) {
        if (name.empty()) {
            return 0;
        }
        const auto [found, fresh] = numbers_.try_emplace(name, numbers_.size() + 1);
        if (fresh) {
            AppendInt16(index_, names_.Add(name, CodePage::kWindows1252));
        }
        return static_cast<std::int64_t>(found->second);
    }

    void Write(const std::string& folder) const {
        WriteDataFile(folder, "PI.DAT", index_);
        WriteDataFile(folder, "P.DAT", names_.Packed());
    }

private:
    std::map<std::string, std::size_t> numbers_;
    TextPacker names_{kLargestShortPosition};
    Bytes index_;
};

void WriteCities(const std::vector<City>& cities, const std::string& folder) {
    TextPacker names(kLargestLongPosition);
    Provinces provinces;
    Bytes index;
    for (const City& city : cities) {
        AppendInt32(index, static_cast<std::int32_t>(names.Add(city.name, CodePage::kWindows1252)));
        AppendInt16(index, city.latitude);
        AppendInt16(index, city.longitude);
        AppendInt16(index, provinces.NumberOf(city.province));
    }
    WriteDataFile(folder, "CI.DAT", index);
    WriteDataFile(folder, "C.DAt", names.Packed());
    provinces.Write(folder);
}

void WriteCountries(const std::vector<City>& cities, const std::vector<std::string>& lines,
                    const std::string& folder) {
    TextPacker names(kLargestShortPosition);
    Bytes index;
    std::size_t city = 0;
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const auto columns = SplitTabs(lines[i]);
        const std::size_t first = city;
        while (city < cities.size() && cities[city].country == columns.at(0)) {
            ++city;
        }
        AppendInt16(index, names.Add(columns.at(1), CodePage::kWindows1252));
        AppendInt16(index, kFirstCityIndex + static_cast<std::int64_t>(first));
        AppendInt16(index, static_cast<std::int64_t>(city - first));
    }
    if (city != cities.size()) {
        throw TypeMismatchFault("the cities do not stand in the order of their countries");
    }
    WriteDataFile(folder, "SI.DAt", index);
    WriteDataFile(folder, "S.DAT", names.Packed());
}

/// Rank of each city by population, 1 for the largest, as unsigned 16-bit numbers.
void WriteRanks(const std::vector<City>& cities, const std::string& folder) {
    std::vector<std::size_t> order(cities.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return cities[a].population > cities[b].population;
    });
    Bytes ranks(cities.size() * 2);
    for (std::size_t rank = 1; rank <= order.size(); ++rank) {
        PutInt16(ranks, order[rank - 1] * 2, static_cast<std::int16_t>(rank));
    }
    WriteDataFile(folder, "RI.DAT", ranks);
}

/// The names of all zones by the alphabet, a line each, and for each city the number of its zone's
/// line.
void WriteZones(const std::vector<City>& cities, const std::string& folder) {
    std::map<std::string, std::int64_t> numbers;
    for (const City& city : cities) {
        numbers[city.zone] = 0;
    }
    std::string names;
    for (std::int64_t count = 0; auto& [zone, number] : numbers) {
        number = ++count;
        names += zone + "\n";
    }
    Bytes index;
    for (const City& city : cities) {
        AppendInt16(index, numbers.at(city.zone));
    }
    WriteDataFile(folder, "ZI.DAT", index);
    WriteDataFile(folder, "Z.DAT", BytesOf(names));
}

/// The other names of each city, a line a city.
void WriteOtherNames(const std::vector<City>& cities, const std::string& folder) {
    std::string names;
    for (const City& city : cities) {
        names += city.names + "\n";
    }
    WriteDataFile(folder, "N.DAT", BytesOf(names));
}

void Build(char** arguments) {
    const std::string source = arguments[0];
    const auto all = ReadCities(source + "/cities.tsv");
    auto order = OrderOfChoice(all);
    order.resize(CountThatPlacesMecca(all, order));
    std::sort(order.begin(), order.end());
    std::vector<City> chosen;
    std::transform(order.begin(), order.end(), std::back_inserter(chosen),
                   [&](std::size_t row) { return all[row]; });
    WriteCountries(chosen, ReadLines(source + "/countries.tsv"), arguments[1]);
    WriteCities(chosen, arguments[1]);
    WriteRanks(chosen, arguments[1]);
    WriteZones(chosen, arguments[1]);
    WriteOtherNames(chosen, arguments[1]);
    std::cout << chosen.size() << " cities\n";
}

}  // namespace

int main(int argumentCount, char** arguments) {
    return RunTool("build_locations", argumentCount, 2, Build, arguments);
}
