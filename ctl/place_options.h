#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "config/authorities.h"
#include "config/year_options.h"
#include "ctl/command.h"
#include "ctl/rule_options.h"

namespace horavex {

/// Options that say where and by which method to calculate.
struct PlaceOptions {
    std::optional<std::string> city;
    std::optional<int> cityIndex;
    std::optional<std::string> near;    // the city nearest to "51.5,-0.12"
    std::optional<double> latitude;     // degrees, north positive
    std::optional<double> longitude;    // degrees, east positive
    std::optional<double> zone;         // hours east of Greenwich
    std::optional<std::string> method;  // of an authority, by (a part of) its name
    std::optional<double> fajr;         // degrees of depression
    std::optional<double> isha;         // degrees of depression
    std::optional<double> asr;          // shadow factor
    std::optional<int> dstStart;        // 1-based day of the year
    std::optional<int> dstEnd;          // 1-based day of the year
    RuleOptions rules;
};

/// --city, --city-index and --near; the command has a --latitude, beside which they do not stand.
void AddCityOptions(CLI::App& command, PlaceOptions& options);

/// The same, --latitude and --longitude: one place at most.
void AddWhereOptions(CLI::App& command, PlaceOptions& options);

/// All options of a place and a method.
void AddPlaceOptions(CLI::App& command, PlaceOptions& options);

/// True when the options name another place than the accepted one.
bool NamesPlace(const PlaceOptions& options);

/// True when that place is a city.
bool NamesCity(const PlaceOptions& options);

/// A coordinate as the files store it: rounded to the hundredth of a degree.
std::int16_t StoredFromDegrees(double degrees);

/// The options and the method by which the commands calculate; null where no method is known.
/// Written by ApplyPlace.
extern YearOptions ChosenOptions;
extern const Authority* ChosenMethod;

/// Makes the place that the options name the working one, the accepted one without any. Refuses the
/// usage for a city that is not there.
void TakeNamedPlace(const PlaceOptions& options);

/// Brings what ApplyPlace fills back to what a fresh process holds, for one more place.
void ForgetPlace();

/// Fills the working settings, place, Isha angle, ChosenOptions and ChosenMethod; day: one of the
/// year to calculate. Without a place the accepted ones count. A city takes its own zone with
/// daylight saving, the method that is usual in its country and a rule for nights without twilight;
/// coordinates take the nearest zone, the default Fajr angle of their band and 18 degrees clipped
/// to the band for Isha. The ratio is 1 where the method tells none. What is given by hand replaces
/// just that. Refuses the usage for a city, a method or a zone that is not there.
void ApplyPlace(const PlaceOptions& options, Date day);

}  // namespace horavex
