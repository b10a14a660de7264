#include <algorithm>
#include <memory>
#include <optional>

#include "base/fold.h"
#include "ctl/command.h"
#include "ctl/csv_record.h"
#include "engine/angle.h"
#include "store/city_search.h"

namespace horavex {

namespace {

constexpr int kMostListed = 65535;  // more than city indexes can number

struct CityFilter {
    std::optional<std::string> search;
    std::optional<std::string> country;
    std::optional<int> index;
    std::size_t limit = 0;  // 0 is no limit
    bool lines = false;     // as those that the command years takes
};

using Selection = std::vector<CityHit>;

Selection AllOf(const CityList& cities) {
    Selection all;
    std::transform(cities.begin(), cities.end(), std::back_inserter(all),
                   [](const ListedCity& city) {
                       return CityHit{&city, {}};
                   });
    return all;
}

template <typename Predicate>
void Keep(Selection& selection, Predicate wanted) {
    std::erase_if(selection, [&](const CityHit& hit) { return !wanted(*hit.city); });
}

Selection Select(const CityList& cities, const CityFilter& filter) {
    Selection selection = filter.search ? SearchCities(cities, *filter.search) : AllOf(cities);
    if (filter.country) {
        const std::string wanted = FoldForSearch(*filter.country);
        Keep(selection, [&](const ListedCity& city) {
            return FoldForSearch(city.country).find(wanted) != std::string::npos;
        });
    }
    if (filter.index) {
        Keep(selection, [&](const ListedCity& city) { return city.cityIndex == *filter.index; });
    }
    if (filter.limit != 0 && selection.size() > filter.limit) {
        selection.resize(filter.limit);
    }
    return selection;
}

Json CityJson(const CityHit& hit) {
    const ListedCity& city = *hit.city;
    Json json = {{"index", city.cityIndex},
                 {"name", city.name},
                 {"province", city.province},
                 {"country", city.country},
                 {"latitude", StoredCoord(city.latitude)},
                 {"longitude", StoredCoord(city.longitude)}};
    if (!hit.otherName.empty()) {
        json["otherName"] = hit.otherName;
    }
    return json;
}

std::string CityLine(const CityHit& hit) {
    return std::to_string(hit.city->cityIndex) + "\t" + DisplayText(hit) + "\n";
}

std::string CsvLine(const CityHit& hit) {
    return std::to_string(hit.city->cityIndex) + "," + CsvField(hit.city->name) + "\n";
}

void PrintCities(const Session& session, const CityFilter& filter) {
    const auto cities = ListCities();
    Json array = Json::array();
    std::string text = filter.lines ? "city-index,name\n" : "";
    for (const CityHit& hit : Select(cities, filter)) {
        array.push_back(CityJson(hit));
        text += filter.lines ? CsvLine(hit) : CityLine(hit);
    }
    session.Print(array, text);
}

}  // namespace

void AddCitiesCommand(CLI::App& app, Session& session) {
    auto* command = AddCommand(app, session, "cities", "The cities of the database");
    auto filter = std::make_shared<CityFilter>();
    command->add_option("--search", filter->search,
                        "A part of the name, or the beginning of another name in any script; "
                        "best matches first");
    command->add_option("--country", filter->country, "A part of the country's name");
    command->add_option("--index", filter->index, "The city's number");
    command->add_option("--limit", filter->limit, "The most that are listed")
        ->check(CLI::Range(1, kMostListed));
    command->add_flag("--lines", filter->lines, "As CSV that the command years takes");
    command->callback([&session, filter] { PrintCities(session, *filter); });
}

}  // namespace horavex
