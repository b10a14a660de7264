// Works out a year in each city by what a first run proposes there: the clock of the city's own
// zone, the method that is usual in its country, and the rule of high latitudes. No year may give
// up, and every day has its six moments in their order. Arguments: the program folder, the year,
// and the step (1 for every city, 100 for every hundredth). Status 1 where a city fails.

#include <iostream>
#include <optional>

#include "base/fault.h"
#include "config/usual_choices.h"
#include "config/year_options.h"
#include "engine/current_year.h"
#include "engine/moments.h"
#include "engine/solar_event.h"
#include "engine/year_table.h"
#include "lib/city_walk.h"
#include "lib/data_writer.h"
#include "lib/text_source.h"
#include "lib/tool_platform.h"
#include "linux/zone_database.h"
#include "store/city_zones.h"
#include "store/settings_record.h"
#include "store/zone_year.h"

namespace {

using namespace horavex;

/// What a first run proposes for a city.
struct Proposal {
    SettingsRecord record;
    double ishaAngle = 0.0;
    YearOptions options;
};

Proposal ProposalFor(const ListedCity& city, const std::string& zone, int year) {
    constexpr double kUnusedAngle = 18.0;  // where Isha goes by an interval
    const Authority& authority = UsualAuthority(city.country);
    Proposal proposal;
    TakeZoneYear(FindZoneYear(Ports().zoneRules, zone, DateSerial(year, 1, 1)), proposal.record);
    proposal.record.FajrAngle = authority.fajrAngle;
    proposal.record.AsrRatio = 1.0;
    proposal.ishaAngle = authority.ishaInterval == 0 ? authority.ishaAngle : kUnusedAngle;
    TakeAuthority(authority, proposal.options);
    proposal.options.zone = zone;
    proposal.options.highLatitude = UsualHighLatitudeRule(city.latitude / 100.0);
    return proposal;
}

YearInputs InputsOf(const ListedCity& city, const Proposal& proposal, const MomentRules& rules,
                    std::int16_t year) {
    CityRecord place;
    place.Latitude = city.latitude;
    place.Longitude = city.longitude;
    return {year, PlaceOf(place, proposal.record.TimeZone),
            MethodUnder(rules, MethodOf(proposal.record, proposal.ishaAngle))};
}

bool HasAllInOrder(const DayMoments& day) {
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        const bool isBehind = prayer == 0 || day[prayer - 1].hours <= day[prayer].hours;
        if (!IsEvent(day[prayer].hours) || !isBehind) {
            return false;
        }
    }
    return true;
}

/// What is wrong with a city's year.
std::optional<std::string> FaultOf(const ListedCity& city, const std::string& zone,
                                   std::int16_t year) {
    const Proposal proposal = ProposalFor(city, zone, year);
    const MomentRules rules = RulesOfYear(proposal.options, year).moments;
    const YearInputs inputs = InputsOf(city, proposal, rules, year);
    const YearTable table = CalculateYear(inputs);
    if (table.failure) {
        return "gives up on row " + std::to_string(table.failure->row);
    }
    for (std::size_t row = 0; row < 365U + static_cast<std::size_t>(LeapFlagOf(year)); ++row) {
        if (!HasAllInOrder(MomentsOf({inputs, table.times, rules}, row))) {
            return "lacks a moment or its order on row " + std::to_string(row);
        }
    }
    return std::nullopt;
}

void Check(char** arguments) {
    const ZoneDatabase database;
    ToolPlatform platform(database);
    ReadProgramFolder(arguments[0], platform.files);
    const auto year = static_cast<std::int16_t>(WholeNumber(arguments[1]));
    const std::size_t step = StepOf(arguments[2]);
    const auto cities = ListCities();
    const CityZones zones;
    int checked = 0;
    int failed = 0;
    for (std::size_t i = 0; i < cities.size(); i += step) {
        const auto fault = FaultOf(cities[i], zones.Of(cities[i].cityIndex), year);
        if (fault) {
            std::cout << DisplayText(cities[i]) << ": " << *fault << '\n';
        }
        ++checked;
        failed += fault ? 1 : 0;
    }
    std::cout << checked << " cities checked, " << failed << " fail\n";
    if (failed > 0) {
        throw BoundsFault("not every city has its year");
    }
}

}  // namespace

int main(int argumentCount, char** arguments) {
    return RunTool("check_cities", argumentCount, 3, Check, arguments);
}
