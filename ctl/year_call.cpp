#include "ctl/year_call.h"

#include <utility>

namespace horavex {

void AddYearCallOptions(CLI::App& command, YearCall& call) {
    AddPlaceOptions(command, call.place);
    command.add_option("--year", call.year, "Gregorian year")
        ->check(CLI::Range(1, 9999))
        ->required();
}

void RequireAll(const PlaceOptions& place) {
    const std::pair<const char*, bool> required[] = {
        {"--latitude", place.latitude.has_value()},
        {"--zone", place.zone || place.rules.timeZone},
        {"--fajr", place.fajr.has_value()},
        {"--isha", place.isha || place.rules.ishaInterval},
        {"--asr", place.asr.has_value()}};
    for (const auto& [name, given] : required) {
        if (!given && !NamesCity(place)) {
            RefuseUsage(std::string(name) + " is required where no city is named");
        }
    }
}

void TakeYearCall(const YearCall& call) {
    ApplyPlace(call.place, DateSerial(call.year, 1, 1));
}

}  // namespace horavex
