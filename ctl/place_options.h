#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "config/year_options.h"
#include "ctl/command.h"

namespace horavex {

/// Options that say where and by which method to calculate.
struct PlaceOptions {
    std::optional<std::string> city;
    std::optional<int> cityIndex;
    std::optional<double> latitude;     // degrees, north positive
    std::optional<double> longitude;    // degrees, east positive
    std::optional<double> zone;         // hours east of Greenwich
    std::optional<std::string> method;  // of an authority, by (a part of) its name
    std::optional<double> fajr;         // degrees of depression
    std::optional<double> isha;         // degrees of depression
    std::optional<double> asr;          // shadow factor
    std::optional<int> dstStart;        // 1-based day of the year
    std::optional<int> dstEnd;          // 1-based day of the year
};

/// --latitude and --longitude; given together or not at all.
void AddCoordinateOptions(CLI::App& command, PlaceOptions& options, bool required);

/// --zone, --fajr, --isha, --asr, --dst-start and --dst-end.
void AddMethodOptions(CLI::App& command, PlaceOptions& options, bool required);

/// --method, whose figures the method options replace one by one.
void AddAuthorityOption(CLI::App& command, PlaceOptions& options);

/// --city and --city-index, beside the coordinates.
void AddCityOptions(CLI::App& command, PlaceOptions& options);

/// True when the options name another place than the accepted one.
bool NamesPlace(const PlaceOptions& options);

/// A coordinate as the files store it: rounded to the hundredth of a degree.
std::int16_t StoredFromDegrees(double degrees);

/// The options by which the commands calculate. Written by ApplyPlace.
extern YearOptions ChosenOptions;

/// Fills the working settings, place, Isha angle and ChosenOptions. Without a place the accepted
/// ones count; a city or coordinates alone take the nearest zone, the default Fajr angle of their
/// band, 18 degrees clipped to the band for Isha, ratio 1 and no daylight saving. A method of an
/// authority comes on top, and then the method options. Refuses the usage for a city or a method
/// that is not there.
void ApplyPlace(const PlaceOptions& options);

}  // namespace horavex
