#include "ctl/place_options.h"

#include <algorithm>

#include "base/int16.h"
#include "ctl/method_option.h"
#include "ctl/number_range.h"
#include "engine/angle.h"
#include "lang/language_pack.h"
#include "store/angle_band.h"
#include "store/city_search.h"
#include "store/location_files.h"
#include "store/location_text.h"
#include "store/settings_files.h"
#include "store/settings_record.h"
#include "store/stored_values.h"

namespace horavex {

YearOptions ChosenOptions;

namespace {

constexpr std::int16_t kUsualIshaAngle = 18;  // degrees

std::int16_t FindCity(const std::string& text) {
    const auto cities = ListCities();
    const auto found = SearchCities(cities, text);
    if (found.empty()) {
        RefuseUsage("no city matches \"" + text + "\"");
    }
    return found.front().city->cityIndex;
}

std::int16_t CheckedCityIndex(int index) {
    OpenCityFiles();
    const std::int64_t last = kFirstCityIndex + CityCount() - 1;
    CloseCityFiles();
    if (index < kFirstCityIndex || index > last) {
        RefuseUsage("city indexes run from " + std::to_string(kFirstCityIndex) + " to " +
                    std::to_string(last));
    }
    return ToInt16(index);
}

void TakeAccepted() {
    LoadActiveSettings();
    PeekIshaAngle();
    ActiveCityText = LookupLocation(ActiveSettings.CityIndex, ActiveLocation);
    CopyActiveToWorking();
    CityText = ActiveCityText;
    ChosenOptions = ReadYearOptions(ActiveSettings.CityIndex);
}

/// Method values that go with the place in Location.
void TakeDefaultsOfPlace() {
    LoadAngleBand(Location.City.Latitude);
    ZoneFromLongitude(StoredCoord(Location.City.Longitude));
    Settings.TimeZone = ZoneNearest;
    Settings.FajrAngle = AngleBand.middle;
    IshaAngle = std::clamp(kUsualIshaAngle, AngleBand.smallest, AngleBand.largest);
    Settings.AsrRatio = 1.0;
    Settings.QiblaMethod = 1;
    ChosenOptions = {};
}

void TakeCity(std::int16_t cityIndex) {
    Settings.CityIndex = cityIndex;
    CityText = LookupLocation(cityIndex, Location);
    TakeDefaultsOfPlace();
}

void TakeCoordinates(double latitude, double longitude) {
    Location.City.Latitude = StoredFromDegrees(latitude);
    Location.City.Longitude = StoredFromDegrees(longitude);
    CityText = FormatLatitude(StoredCoord(Location.City.Latitude), Settings.Language) + ", " +
               FormatLongitude(StoredCoord(Location.City.Longitude), Settings.Language);
    TakeDefaultsOfPlace();
}

void TakePlace(const PlaceOptions& options) {
    if (options.city) {
        TakeCity(FindCity(*options.city));
    } else if (options.cityIndex) {
        TakeCity(CheckedCityIndex(*options.cityIndex));
    } else if (options.latitude) {
        TakeCoordinates(*options.latitude, *options.longitude);
    } else {
        TakeAccepted();
    }
}

/// The figures that an authority leaves open stay as they are.
void TakeMethodOf(const Authority& authority) {
    TakeAuthority(authority, ChosenOptions);
    Settings.FajrAngle = authority.fajrAngle;
    IshaAngle = authority.ishaInterval == 0 ? authority.ishaAngle : IshaAngle;
    Settings.AsrRatio = authority.asrRatio == 0.0 ? Settings.AsrRatio : authority.asrRatio;
}

void TakeMethod(const PlaceOptions& options) {
    Settings.TimeZone = options.zone.value_or(Settings.TimeZone);
    Settings.FajrAngle = options.fajr.value_or(Settings.FajrAngle);
    if (options.isha) {  // an angle by hand stands for the interval, too
        IshaAngle = *options.isha;
        ChosenOptions.ishaInterval = ChosenOptions.ishaIntervalRamadan = 0;
    }
    Settings.AsrRatio = options.asr.value_or(Settings.AsrRatio);
    if (options.dstStart) {
        Settings.DstEnabled = 1;
        Settings.DstStart = ToInt16(*options.dstStart);
        Settings.DstEnd = ToInt16(*options.dstEnd);
    }
}

}  // namespace

void AddCoordinateOptions(CLI::App& command, PlaceOptions& options, bool required) {
    auto* latitude = command.add_option("--latitude", options.latitude, "Degrees, north positive")
                         ->check(NumberFrom(-90.0, 90.0))
                         ->required(required);
    auto* longitude =
        command.add_option("--longitude", options.longitude, "Degrees, east positive")
            ->check(NumberFrom(-180.0, 180.0))
            ->required(required);
    latitude->needs(longitude);
    longitude->needs(latitude);
}

void AddMethodOptions(CLI::App& command, PlaceOptions& options, bool required) {
    command.add_option("--zone", options.zone, "Hours east of Greenwich, fractions allowed")
        ->check(NumberFrom(-12.0, 12.0))
        ->required(required);
    command.add_option("--fajr", options.fajr, "Fajr depression angle in degrees")
        ->check(NumberFrom(-90.0, 90.0))
        ->required(required);
    command.add_option("--isha", options.isha, "Isha depression angle in degrees")
        ->check(NumberFrom(-90.0, 90.0))
        ->required(required);
    command.add_option("--asr", options.asr, "Asr shadow factor: 1, or 2 for Hanafi")
        ->check(CLI::IsMember({1, 2}))
        ->required(required);
    auto* start =
        command.add_option("--dst-start", options.dstStart, "First day of daylight saving")
            ->check(CLI::Range(1, 366));
    auto* end = command.add_option("--dst-end", options.dstEnd, "Last day of daylight saving")
                    ->check(CLI::Range(1, 366));
    start->needs(end);
    end->needs(start);
}

void AddAuthorityOption(CLI::App& command, PlaceOptions& options) {
    command.add_option("--method", options.method,
                       "The method of an authority, by (a part of) its name");
}

void AddCityOptions(CLI::App& command, PlaceOptions& options) {
    auto* city = command.add_option("--city", options.city, "A city by (a part of) its name");
    auto* index = command.add_option("--city-index", options.cityIndex, "A city by its number");
    city->excludes(index)->excludes("--latitude");
    index->excludes("--latitude");
}

bool NamesPlace(const PlaceOptions& options) {
    return options.city || options.cityIndex || options.latitude;
}

std::int16_t StoredFromDegrees(double degrees) {
    return RoundToInt16(degrees * 100.0);
}

void ApplyPlace(const PlaceOptions& options) {
    TakePlace(options);
    if (options.method) {
        TakeMethodOf(AuthorityOfText(*options.method));
    }
    TakeMethod(options);
}

}  // namespace horavex
