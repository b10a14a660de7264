#include "ctl/place_options.h"

#include <algorithm>

#include "base/int16.h"
#include "config/unusable_file.h"
#include "config/usual_choices.h"
#include "ctl/method_option.h"
#include "ctl/named_city.h"
#include "ctl/number_range.h"
#include "engine/angle.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "store/angle_band.h"
#include "store/city_zones.h"
#include "store/location_files.h"
#include "store/location_text.h"
#include "store/settings_files.h"
#include "store/settings_record.h"
#include "store/stored_values.h"
#include "store/zone_year.h"

namespace horavex {

YearOptions ChosenOptions;
const Authority* ChosenMethod = nullptr;

namespace {

constexpr std::int16_t kUsualIshaAngle = 18;  // degrees

bool IsZone(const std::string& name) {
    try {
        Ports().zoneRules.OffsetAt(name, 0);
        return true;
    } catch (const UnknownZoneFault&) {
        return false;
    }
}

/// A stored name that the zone database does not have counts as none.
void TakeAccepted() {
    LoadActiveSettings();
    PeekIshaAngle();
    ActiveCityText = LookupLocation(ActiveSettings.CityIndex, ActiveLocation);
    CopyActiveToWorking();
    ChosenOptions = ReadYearOptions(ActiveSettings.CityIndex);
    if (!IsZone(ChosenOptions.zone)) {
        ChosenOptions.zone.clear();
    }
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

/// The figures that an authority leaves open stay as they are.
void TakeMethodOf(const Authority& authority) {
    ChosenMethod = &authority;
    TakeAuthority(authority, ChosenOptions);
    Settings.FajrAngle = authority.fajrAngle;
    IshaAngle = authority.ishaInterval == 0 ? authority.ishaAngle : IshaAngle;
    Settings.AsrRatio = authority.asrRatio == 0.0 ? Settings.AsrRatio : authority.asrRatio;
}

/// The record takes what it can hold of the zone, and the rules the rest.
void TakeZone(const std::string& name, Date day) {
    TakeZoneYear(FindZoneYear(Ports().zoneRules, name, day), Settings);
    ChosenOptions.zone = name;
}

/// What is usual in the city that has just been taken.
void TakeUsual(Date day) {
    const auto zone = ReadOrTell([] { return CityZones().Of(Settings.CityIndex); });
    if (IsZone(zone)) {
        TakeZone(zone, day);
    }
    ChosenOptions.highLatitude = UsualHighLatitudeRule(StoredCoord(Location.City.Latitude));
    ChosenOptions.sunOfTheDay = true;
}

/// The method by hand, or else the one that is usual in the country of a city.
void TakeAnyMethod(const PlaceOptions& options) {
    if (options.method) {
        TakeMethodOf(AuthorityOfText(*options.method));
    } else if (NamesCity(options)) {
        TakeMethodOf(UsualAuthority(Location.Country));
    }
}

/// Hours by hand: the clock of no zone of the database.
void TakeHours(const PlaceOptions& options) {
    if (options.zone) {
        Settings.DstEnabled = ChosenOptions.zone.empty() ? Settings.DstEnabled : 0;
        Settings.TimeZone = *options.zone;
        ChosenOptions.zone.clear();
    }
    if (options.dstStart) {
        Settings.DstEnabled = 1;
        Settings.DstStart = ToInt16(*options.dstStart);
        Settings.DstEnd = ToInt16(*options.dstEnd);
        ChosenOptions.zone.clear();
    }
}

void TakeClock(const PlaceOptions& options, Date day) {
    const auto& zone = options.rules.timeZone;
    if (zone && !IsZone(*zone)) {
        RefuseUsage("the zone database has no zone \"" + *zone + "\"");
    }
    if (zone) {
        TakeZone(*zone, day);
    }
    TakeHours(options);
}

void TakeAngles(const PlaceOptions& options) {
    Settings.FajrAngle = options.fajr.value_or(Settings.FajrAngle);
    if (options.isha) {  // an angle by hand stands for the interval, too
        IshaAngle = *options.isha;
        ChosenOptions.ishaInterval = ChosenOptions.ishaIntervalRamadan = 0;
    }
    Settings.AsrRatio = options.asr.value_or(Settings.AsrRatio);
}

void AddCoordinateOptions(CLI::App& command, PlaceOptions& options) {
    auto* latitude = command.add_option("--latitude", options.latitude, "Degrees, north positive")
                         ->check(NumberFrom(-90.0, 90.0));
    auto* longitude =
        command.add_option("--longitude", options.longitude, "Degrees, east positive")
            ->check(NumberFrom(-180.0, 180.0));
    latitude->needs(longitude);
    longitude->needs(latitude);
}

void AddMethodOptions(CLI::App& command, PlaceOptions& options) {
    command.add_option("--zone", options.zone, "Hours east of Greenwich, fractions allowed")
        ->check(NumberFrom(-12.0, 12.0));
    command.add_option("--fajr", options.fajr, "Fajr depression angle in degrees")
        ->check(NumberFrom(-90.0, 90.0));
    command.add_option("--isha", options.isha, "Isha depression angle in degrees")
        ->check(NumberFrom(-90.0, 90.0));
    command.add_option("--asr", options.asr, "Asr shadow factor: 1, or 2 for Hanafi")
        ->check(CLI::IsMember({1, 2}));
    command.add_option("--method", options.method,
                       "The method of an authority, by (a part of) its name");
    auto* start =
        command.add_option("--dst-start", options.dstStart, "First day of daylight saving")
            ->check(CLI::Range(1, 366));
    auto* end = command.add_option("--dst-end", options.dstEnd, "Last day of daylight saving")
                    ->check(CLI::Range(1, 366));
    start->needs(end);
    end->needs(start);
}

}  // namespace

void AddCityOptions(CLI::App& command, PlaceOptions& options) {
    auto* city = command.add_option("--city", options.city,
                                    "A city by (a part of) its name; behind a comma its province "
                                    "or country");
    auto* index = command.add_option("--city-index", options.cityIndex, "A city by its number");
    auto* near = command.add_option("--near", options.near,
                                    "The city nearest to LAT,LON, such as 51.5,-0.12");
    city->excludes(index)->excludes(near)->excludes("--latitude");
    index->excludes(near)->excludes("--latitude");
    near->excludes("--latitude");
}

void AddWhereOptions(CLI::App& command, PlaceOptions& options) {
    AddCoordinateOptions(command, options);
    AddCityOptions(command, options);
}

void AddPlaceOptions(CLI::App& command, PlaceOptions& options) {
    AddWhereOptions(command, options);
    AddMethodOptions(command, options);
    AddTimeZoneOption(command, options.rules);
    AddMomentOptions(command, options.rules);
    AddHijriOption(command, options.rules);
}

bool NamesPlace(const PlaceOptions& options) {
    return NamesCity(options) || options.latitude;
}

bool NamesCity(const PlaceOptions& options) {
    return options.city || options.cityIndex || options.near;
}

std::int16_t StoredFromDegrees(double degrees) {
    return RoundToInt16(degrees * 100.0);
}

void TakeNamedPlace(const PlaceOptions& options) {
    if (options.city) {
        TakeCity(CityOfText(*options.city));
    } else if (options.cityIndex) {
        TakeCity(CityOfIndex(*options.cityIndex));
    } else if (options.near) {
        TakeCity(CityNear(*options.near));
    } else if (options.latitude) {
        TakeCoordinates(*options.latitude, *options.longitude);
    } else {
        TakeAccepted();
    }
}

void ForgetPlace() {
    Settings = {};
    IshaAngle = 0.0;
    Location = {};
    CityText.clear();
    ChosenOptions = {};
    ChosenMethod = nullptr;
}

void ApplyPlace(const PlaceOptions& options, Date day) {
    TakeNamedPlace(options);
    if (NamesCity(options)) {
        TakeUsual(day);
    }
    TakeAnyMethod(options);
    TakeClock(options, day);
    TakeAngles(options);
    TakeRules(options.rules, ChosenOptions);
}

}  // namespace horavex
