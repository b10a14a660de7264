// Compares the clock that the settings record gives each city with the zone database: at noon of 1
// January, of 15 July and of the days on which the zone's clock turns. Arguments: the program
// folder, the year, and the step (1 for every city, 100 for every hundredth). Status 1 where one
// differs.

#include <cmath>
#include <iostream>
#include <map>

#include "base/fault.h"
#include "engine/year_table.h"
#include "lib/city_walk.h"
#include "lib/data_writer.h"
#include "lib/text_source.h"
#include "lib/tool_platform.h"
#include "linux/zone_database.h"
#include "store/city_search.h"
#include "store/city_zones.h"
#include "store/settings_record.h"
#include "store/zone_year.h"

namespace {

using namespace horavex;

constexpr double kNoon = 0.5;
constexpr double kSecondsPerHour = 3600.0;
constexpr double kHoursPerDay = 24.0;

SettingsRecord RecordOf(const ZoneYear& year) {
    SettingsRecord record;
    record.TimeZone = year.hours;
    record.DstEnabled = year.daylight ? 1 : 0;
    record.DstStart = year.dstStart;
    record.DstEnd = year.dstEnd;
    return record;
}

std::vector<Date> DaysToCompare(const ZoneRules& rules, const std::string& zone, int year) {
    std::vector<Date> days = {DateSerial(year, 1, 1), DateSerial(year, 7, 15)};
    for (const ZoneChange& change : ChangesOfYear(rules, zone, year)) {
        days.push_back(std::floor(LocalDateOf(rules, zone, change.moment)));
    }
    return days;
}

bool ReadsTheSame(double hours, double otherHours) {
    return std::fmod(hours - otherHours, kHoursPerDay) == 0.0;
}

/// What differs in the year of a zone, a text a day.
std::vector<std::string> DifferencesOf(const std::string& zone, int year) {
    const ZoneDatabase rules;
    const SettingsRecord record = RecordOf(FindZoneYear(rules, zone, DateSerial(year, 1, 1)));
    std::vector<std::string> differences;
    for (const Date day : DaysToCompare(rules, zone, year)) {
        const UtcSeconds noon = MomentOf(rules, zone, day + kNoon);
        const double right = rules.OffsetAt(zone, noon).seconds / kSecondsPerHour;
        const double used = record.TimeZone + (IsDaylightDay(day, record) ? 1.0 : 0.0);
        if (!ReadsTheSame(used, right)) {
            const CivilDate date = CivilFromDate(day);
            differences.push_back(zone + ": " + std::to_string(date.month) + "-" +
                                  std::to_string(date.day) + ": " + std::to_string(used) +
                                  " hours in place of " + std::to_string(right));
        }
    }
    return differences;
}

/// The differences of each zone, worked out once.
class Differences {
public:
    explicit Differences(int year) : year_(year) {}

    const std::vector<std::string>& Of(const std::string& zone) {
        const auto found = zones_.find(zone);
        return found != zones_.end()
                   ? found->second
                   : zones_.emplace(zone, DifferencesOf(zone, year_)).first->second;
    }

private:
    int year_;
    std::map<std::string, std::vector<std::string>> zones_;
};

void Compare(char** arguments) {
    ToolPlatform platform;
    ReadProgramFolder(arguments[0], platform.files);
    const auto cities = ListCities();
    const CityZones zones;
    Differences differences(WholeNumber(arguments[1]));
    const std::size_t step = StepOf(arguments[2]);
    int compared = 0;
    int different = 0;
    for (std::size_t i = 0; i < cities.size(); i += step) {
        const auto& found = differences.Of(zones.Of(cities[i].cityIndex));
        for (const std::string& difference : found) {
            std::cout << DisplayText(cities[i]) << ": " << difference << '\n';
        }
        ++compared;
        different += found.empty() ? 0 : 1;
    }
    std::cout << compared << " cities compared, " << different << " differ\n";
    if (different > 0) {
        throw BoundsFault("the record does not give every city its clock");
    }
}

}  // namespace

int main(int argumentCount, char** arguments) {
    return RunTool("compare_zones", argumentCount, 3, Compare, arguments);
}
