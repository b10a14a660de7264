#include <algorithm>
#include <memory>

#include "base/fault.h"
#include "base/int16.h"
#include "base/number_text.h"
#include "base/rounding.h"
#include "ctl/command.h"
#include "ctl/coordinate.h"
#include "ctl/date_option.h"
#include "ctl/eclipse_list.h"
#include "ctl/number_range.h"
#include "ctl/place_options.h"
#include "engine/angle.h"
#include "lang/language_pack.h"
#include "moon/eclipses.h"
#include "moon/moon_rise_set.h"
#include "moon/phase_rows.h"
#include "platform/platform.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "store/stored_values.h"

namespace horavex {

namespace {

/// A year and the zone as the settings window's box holds it.
struct PhaseOptions {
    int year = 0;
    std::string zone;
};

/// The told lists, or with `local` the eclipses over a place.
struct EclipseOptions {
    PhaseOptions told;
    bool local = false;
    PlaceOptions place;
};

struct RiseOptions {
    PlaceOptions place;  // a city, with its own clock
    std::string date;
    std::string latitude;
    std::string longitude;
    std::optional<double> zone;
    bool daylightSaving = false;
};

std::vector<std::string> Filled(const MoonRows& rows) {
    return {rows.begin(), rows.begin() + kMoonRows};
}

double ZoneOf(const PhaseOptions& options) {
    if (!IsNumeric(options.zone)) {
        RefuseUsage("--zone: \"" + options.zone + "\" is no number of hours");
    }
    return WholeZone(options.zone);
}

std::string TableText(const char* title, const MoonRows& rows) {
    std::string text = std::string(title) + "\n";
    for (const std::string& row : Filled(rows)) {
        text += "  " + row + "\n";
    }
    return text;
}

std::string LabelsText(const std::vector<std::string>& labels) {
    std::string text = "Arabic Month\n";
    for (const std::string& label : labels) {
        text += "  " + label + "\n";
    }
    return text;
}

void PrintMoon(Session& session, const PhaseOptions& options) {
    const double zone = ZoneOf(options);
    const std::int16_t year = ToInt16(options.year);
    const MoonRows newMoons = ComputeNewMoonRows(year, zone);
    const MoonRows firstQuarters = ComputeFirstQuarterRows(year, zone);
    const MoonRows fullMoons = ComputeFullMoonRows(year, zone);
    const MoonRows lastQuarters = ComputeLastQuarterRows(year, zone);
    currentLanguage = ReadStoredLanguage();
    const auto labels = MoonRowLabels(year, newMoons);
    session.Print({{"newMoon", Filled(newMoons)},
                   {"firstQuarter", Filled(firstQuarters)},
                   {"fullMoon", Filled(fullMoons)},
                   {"lastQuarter", Filled(lastQuarters)},
                   {"labels", labels}},
                  TableText("New Moon", newMoons) + TableText("First Quarter", firstQuarters) +
                      TableText("Full Moon", fullMoons) + TableText("Last Quarter", lastQuarters) +
                      LabelsText(labels));
}

/// Lines end as those of a terminal do.
std::string WithoutReturns(std::string text) {
    std::erase(text, '\r');
    return text;
}

void PrintEclipses(Session& session, const PhaseOptions& options) {
    const double zone = ZoneOf(options);
    const std::int16_t year = ToInt16(options.year);
    Eclipses eclipses;
    const std::string solar = ListSolarEclipses(eclipses, year, zone);
    const MoonRows solarRows = eclipses.SolarEclipseRows;  // the lunar list clears an entry
    const std::string lunar = ListLunarEclipses(eclipses, year, zone);
    session.Print({{"solar", {{"text", solar}, {"rows", solarRows}}},
                   {"lunar", {{"text", lunar}, {"rows", eclipses.LunarEclipseRows}}}},
                  WithoutReturns("Solar\n" + solar + "Lunar\n" + lunar));
}

/// Hours of a zone by hand, as the other commands take them.
double HoursOf(const std::string& zone) {
    const std::string wrong = NumberFrom(-12.0, 12.0)(zone);
    if (!wrong.empty()) {
        RefuseUsage("--zone: " + wrong);
    }
    return std::stod(zone);
}

/// zoned: there is a --zone, which the told lists need.
void PrintAnyEclipses(Session& session, EclipseOptions& options, bool zoned) {
    if (!options.local && !zoned) {
        throw CLI::RequiredError("--zone");
    }
    if (!options.local) {
        PrintEclipses(session, options.told);
        return;
    }
    if (zoned) {
        options.place.zone = HoursOf(options.told.zone);
    }
    PrintLocalEclipses(session, options.place, options.told.year);
}

/// The signed degrees and minutes of a coordinate without seconds.
std::pair<std::int16_t, std::int16_t> SignedParts(const CommandCoordinate& coordinate,
                                                  const std::string& text) {
    if (coordinate.seconds != 0.0) {
        RefuseUsage("\"" + text + "\": a moonrise takes degrees and minutes alone");
    }
    const int sign = coordinate.negative ? -1 : 1;
    return {ToInt16(sign * coordinate.degrees), ToInt16(sign * coordinate.minutes)};
}

/// A coordinate of a city, in whole minutes.
std::pair<std::int16_t, std::int16_t> SignedParts(std::int16_t stored) {
    const int minutes = NearestInt(StoredCoord(stored) * 60.0);
    return {ToInt16(minutes / 60), ToInt16(minutes % 60)};
}

/// Where and by which clock the moon is watched.
struct MoonWatch {
    MoonObserver observer;
    double zone;  // hours east of Greenwich
};

double ZoneOfDay(Date day) {
    const ZoneRules& rules = Ports().zoneRules;
    const std::string& zone = ChosenOptions.zone;
    return zone.empty() ? Settings.TimeZone
                        : rules.OffsetAt(zone, MomentOf(rules, zone, day + 0.5)).seconds / 3600.0;
}

MoonWatch WatchInCity(const RiseOptions& options, Date day) {
    ApplyPlace(options.place, day);
    const auto [latDeg, latMin] = SignedParts(Location.City.Latitude);
    const auto [lonDeg, lonMin] = SignedParts(Location.City.Longitude);
    return {{latDeg, latMin, lonDeg, lonMin}, options.zone.value_or(ZoneOfDay(day))};
}

/// Without a city all of it is asked for.
void RequireAll(const RiseOptions& options) {
    const std::pair<const char*, bool> required[] = {{"--latitude", !options.latitude.empty()},
                                                     {"--longitude", !options.longitude.empty()},
                                                     {"--zone", options.zone.has_value()}};
    for (const auto& [name, given] : required) {
        if (!given) {
            RefuseUsage(std::string(name) + " is required where no city is named");
        }
    }
}

MoonWatch WatchAtPoint(const RiseOptions& options) {
    RequireAll(options);
    const auto [latDeg, latMin] =
        SignedParts(ParseCommandCoordinate(options.latitude, kLatitudeLetters, kLargestLatitude),
                    options.latitude);
    const auto [lonDeg, lonMin] =
        SignedParts(ParseCommandCoordinate(options.longitude, kLongitudeLetters, kLargestLongitude),
                    options.longitude);
    return {{latDeg, latMin, lonDeg, lonMin}, *options.zone};
}

struct RiseSetTexts {
    std::string rise;
    std::string set;
};

/// Both texts of the error where the moon does not rise or set.
RiseSetTexts TextsOf(Session& session, const CivilDate& date, const MoonWatch& watch,
                     const RiseOptions& options) {
    try {
        MoonRiseSet times = MoonRiseSetTimes(date, watch.observer, watch.zone);
        if (options.daylightSaving) {
            AddDaylightHour(times);
        }
        return {MoonRiseText(times), MoonSetText(times)};
    } catch (const Fault&) {
        session.status = kGaveUp;
        return {MoonErrorText(), MoonErrorText()};
    }
}

void PrintMoonrise(Session& session, const RiseOptions& options) {
    const DateNumbers date = ParseCivilDateOption(options.date);
    const MoonWatch watch = NamesCity(options.place)
                                ? WatchInCity(options, DateSerial(date.year, date.month, date.day))
                                : WatchAtPoint(options);
    currentLanguage = ReadStoredLanguage();
    const RiseSetTexts texts = TextsOf(session, {date.year, date.month, date.day}, watch, options);
    session.Print({{"rise", texts.rise}, {"set", texts.set}}, texts.rise + "\n" + texts.set + "\n");
}

/// --year and --zone; returns the latter.
CLI::Option* AddYearAndZone(CLI::App& command, PhaseOptions& options) {
    command.add_option("--year", options.year, "Gregorian year")
        ->check(CLI::Range(1, 9999))
        ->required();
    return command.add_option("--zone", options.zone,
                              "Hours east of Greenwich as the settings show them");
}

void AddMoonCommand(CLI::App& app, Session& session) {
    auto* command = AddCommand(app, session, "moon", "The moon's phases in a year");
    auto options = std::make_shared<PhaseOptions>();
    AddYearAndZone(*command, *options)->required();
    command->callback([&session, options] { PrintMoon(session, *options); });
}

void AddLocalOptions(CLI::App& command, EclipseOptions& options) {
    auto* local = command.add_flag("--local", options.local,
                                   "The eclipses that the sky has, and what of them a place sees");
    AddWhereOptions(command, options.place);
    AddTimeZoneOption(command, options.place.rules);
    for (const char* name :
         {"--city", "--city-index", "--near", "--latitude", "--longitude", "--time-zone"}) {
        command.get_option(name)->needs(local);
    }
}

void AddEclipsesCommand(CLI::App& app, Session& session) {
    auto* command = AddCommand(app, session, "eclipses", "Possible eclipses of a year");
    auto options = std::make_shared<EclipseOptions>();
    const auto* zone = AddYearAndZone(*command, options->told);
    AddLocalOptions(*command, *options);
    command->callback(
        [&session, options, zone] { PrintAnyEclipses(session, *options, zone->count() > 0); });
}

void AddMoonriseCommand(CLI::App& app, Session& session) {
    auto* command = AddCommand(app, session, "moonrise", "Rise and set of the moon on a day");
    auto options = std::make_shared<RiseOptions>();
    AddDateOption(*command, options->date);
    command->add_option("--latitude", options->latitude, "Such as 30:3N");
    command->add_option("--longitude", options->longitude, "Such as 31:15E");
    AddCityOptions(*command, options->place);
    command->add_option("--zone", options->zone, "Hours east of Greenwich, fractions allowed")
        ->check(NumberFrom(-12.0, 12.0));
    command->add_flag("--dst", options->daylightSaving, "Add the hour of daylight saving");
    command->callback([&session, options] { PrintMoonrise(session, *options); });
}

}  // namespace

void AddMoonCommands(CLI::App& app, Session& session) {
    AddMoonCommand(app, session);
    AddEclipsesCommand(app, session);
    AddMoonriseCommand(app, session);
}

}  // namespace horavex
