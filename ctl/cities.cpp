#include <algorithm>
#include <memory>
#include <optional>

#include "base/fold.h"
#include "ctl/command.h"
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
};

using Selection = std::vector<const ListedCity*>;

Selection AllOf(const std::vector<ListedCity>& cities) {
    Selection all;
    std::transform(cities.begin(), cities.end(), std::back_inserter(all),
                   [](const ListedCity& city) { return &city; });
    return all;
}

template <typename Predicate>
void Keep(Selection& selection, Predicate wanted) {
    std::erase_if(selection, [&](const ListedCity* city) { return !wanted(*city); });
}

Selection Select(const std::vector<ListedCity>& cities, const CityFilter& filter) {
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

Json CityJson(const ListedCity& city) {
    return {{"index", city.cityIndex},
            {"name", city.name},
            {"province", city.province},
            {"country", city.country},
            {"latitude", StoredCoord(city.latitude)},
            {"longitude", StoredCoord(city.longitude)}};
}

std::string CityLine(const ListedCity& city) {
    return std::to_string(city.cityIndex) + "\t" + city.name +
           (city.province.empty() ? "" : ", " + city.province) + " - " + city.country + "\n";
}

void PrintCities(const Session& session, const CityFilter& filter) {
    const auto cities = ListCities();
    Json array = Json::array();
    std::string text;
    for (const ListedCity* city : Select(cities, filter)) {
        array.push_back(CityJson(*city));
        text += CityLine(*city);
    }
    session.Print(array, text);
}

}  // namespace

void AddCitiesCommand(CLI::App& app, Session& session) {
    auto* command = AddCommand(app, session, "cities", "The cities of the database");
    auto filter = std::make_shared<CityFilter>();
    command->add_option("--search", filter->search, "A part of the name; best matches first");
    command->add_option("--country", filter->country, "A part of the country's name");
    command->add_option("--index", filter->index, "The city's number");
    command->add_option("--limit", filter->limit, "The most that are listed")
        ->check(CLI::Range(1, kMostListed));
    command->callback([&session, filter] { PrintCities(session, *filter); });
}

}  // namespace horavex
