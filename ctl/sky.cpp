#include <cmath>
#include <cstdio>
#include <memory>

#include "ctl/almanac_year.h"
#include "ctl/date_option.h"
#include "ctl/place_clock.h"
#include "ctl/place_options.h"
#include "sky/phases.h"
#include "sky/qibla_by_sun.h"
#include "sky/sky_day.h"
#include "store/location_record.h"
#include "timetables/timetable.h"

namespace horavex {

namespace {

struct SkyOptions {
    PlaceOptions place;
    std::optional<std::string> at;
};

struct PhasesOptions {
    PlaceOptions place;
    int year = 0;
};

constexpr const char* kTwilightNames[] = {"civil", "nautical", "astronomical"};

constexpr const char* kPhaseKeys[] = {"newMoon", "firstQuarter", "fullMoon", "lastQuarter"};
constexpr const char* kPhaseTitles[] = {"New Moon", "First Quarter", "Full Moon", "Last Quarter"};

/// The sky of a moment and of the day around it, all in Universal Time.
struct SkyView {
    Date now;
    SkyDay day;
    SkyMoment moment;
    double qibla;  // degrees from north by east
    DirectionBySun qiblaBySun;
    std::vector<Date> noonsOverMecca;  // of the year that the place's clock shows
};

Date ParseAt(const std::string& text) {
    const Date local = ParseMomentOption(text);
    RequireAlmanacYear("--at", CivilFromDate(local).year);
    return local;
}

SkySpan DayAround(Date now) {
    const Date midnight = std::floor(WorkingOfUniversal(now));
    return {UniversalOfWorking(midnight), UniversalOfWorking(midnight + 1.0)};
}

SkyView ViewAt(const Almanac& almanac, Date now) {
    const Observer here = WorkingObserver();
    const SkySpan day = DayAround(now);
    const double qibla = WorkingQibla();
    return {now,
            SkyDayOf(almanac, here, day),
            SkyMomentAt(almanac, here, now),
            qibla,
            ShownBySun(almanac, here, day, qibla),
            SunOverMecca(almanac, CivilFromDate(WorkingOfUniversal(now)).year)};
}

Json BodyJson(const DayArc& arc, const HorizonPlace& place) {
    return {{"rise", WorkingJson(arc.rise)}, {"transit", WorkingJson(arc.transit)},
            {"set", WorkingJson(arc.set)},   {"upAtMidnight", arc.upAtBegin},
            {"altitude", place.altitude},    {"bearing", place.bearing}};
}

Json TwilightsJson(const SkyDay& day) {
    Json json = Json::object();
    for (std::size_t i = 0; i < day.twilights.size(); ++i) {
        const auto& [dawn, dusk] = day.twilights[i];
        json[kTwilightNames[i]] = {{"dawn", WorkingJson(dawn)}, {"dusk", WorkingJson(dusk)}};
    }
    return json;
}

Json InstantsJson(const std::vector<Date>& instants) {
    Json json = Json::array();
    for (const Date instant : instants) {
        json.push_back(WorkingJson(instant));
    }
    return json;
}

Json QiblaJson(const SkyView& view) {
    return {{"bearing", view.qibla},
            {"sun", InstantsJson(view.qiblaBySun.sun)},
            {"shadow", InstantsJson(view.qiblaBySun.shadow)},
            {"sunOverMecca", InstantsJson(view.noonsOverMecca)}};
}

Json SkyJson(const SkyView& view) {
    Json moon = BodyJson(view.day.moon, view.moment.moon);
    moon["distance"] = view.moment.moonDistance;
    moon["litPart"] = view.moment.litPart;
    moon["ahead"] = view.moment.ahead;
    return {{"city", CityText},
            {"at", WorkingJson(view.now)},
            {"sun", BodyJson(view.day.sun, view.moment.sun)},
            {"moon", moon},
            {"twilight", TwilightsJson(view.day)},
            {"qibla", QiblaJson(view)}};
}

std::string BodyText(const char* name, const DayArc& arc, const HorizonPlace& place) {
    char degrees[80];
    std::snprintf(degrees, sizeof degrees, "   altitude %.1f, bearing %.1f degrees\n",
                  place.altitude, place.bearing);
    return std::string(name) + "rise " + WorkingTimeText(arc.rise) + "   transit " +
           WorkingTimeText(arc.transit) + "   set " + WorkingTimeText(arc.set) + degrees;
}

std::string TwilightsText(const SkyDay& day) {
    std::string text;
    for (std::size_t i = 0; i < day.twilights.size(); ++i) {
        const auto& [dawn, dusk] = day.twilights[i];
        text += std::string("Twilight, ") + kTwilightNames[i] + ": " + WorkingTimeText(dawn) +
                " and " + WorkingTimeText(dusk) + "\n";
    }
    return text;
}

std::string TimesText(const std::vector<Date>& instants) {
    std::string text;
    for (const Date instant : instants) {
        text += " " + WorkingTimeText(instant);
    }
    return text.empty() ? " --:--" : text;
}

std::string QiblaBySunText(const SkyView& view) {
    char degrees[80];
    std::snprintf(degrees, sizeof degrees, "Qibla  %.1f degrees   sun there", view.qibla);
    std::string text = degrees + TimesText(view.qiblaBySun.sun) + "   its shadow" +
                       TimesText(view.qiblaBySun.shadow) + "\nSun over Mecca";
    for (const Date noon : view.noonsOverMecca) {
        text += " " + IsoDate(CivilFromDate(WorkingMinuteOf(noon))) + " " + WorkingTimeText(noon);
    }
    return text + "\n";
}

std::string SkyText(const SkyView& view) {
    const SkyMoment& moment = view.moment;
    char moon[120];
    std::snprintf(moon, sizeof moon,
                  "Moon   %.0f %% lit, %.0f km away, %.0f degrees ahead of the sun\n",
                  100.0 * moment.litPart, moment.moonDistance, moment.ahead);
    return CityText + "\n" + WorkingJson(view.now).get<std::string>() + "\n" +
           BodyText("Sun    ", view.day.sun, moment.sun) +
           BodyText("Moon   ", view.day.moon, moment.moon) + moon + TwilightsText(view.day) +
           QiblaBySunText(view);
}

void PrintSky(Session& session, const SkyOptions& options) {
    const std::optional<Date> at = options.at ? std::optional(ParseAt(*options.at)) : std::nullopt;
    ApplyPlace(options.place, at.value_or(Ports().clock.Today()));
    const Date now = at ? UniversalOfWorking(*at) : Ports().clock.UniversalNow();
    const SkyView view = ViewAt(Ports().almanac, now);
    session.Print(SkyJson(view), SkyText(view));
}

std::string PhaseLine(const PhaseInstant& found) {
    char text[80];
    std::snprintf(text, sizeof text, "%-14s", kPhaseTitles[static_cast<int>(found.phase)]);
    return text + IsoDate(CivilFromDate(WorkingMinuteOf(found.universal))) + " " +
           WorkingTimeText(found.universal) + "\n";
}

void PrintPhases(Session& session, const PhasesOptions& options) {
    const Date newYear = DateSerial(options.year, 1, 1);
    ApplyPlace(options.place, newYear);
    Json phases = Json::array();
    std::string text;
    for (const PhaseInstant& found :
         PhasesBetween(Ports().almanac, UniversalOfWorking(newYear),
                       UniversalOfWorking(DateSerial(options.year + 1, 1, 1)))) {
        phases.push_back({{"phase", kPhaseKeys[static_cast<int>(found.phase)]},
                          {"local", WorkingJson(found.universal)}});
        text += PhaseLine(found);
    }
    session.Print({{"city", CityText}, {"year", options.year}, {"phases", phases}}, text);
}

void AddSky(CLI::App& app, Session& session) {
    auto* command = AddCommand(app, session, "sky", "Sun and moon as they stand over a place");
    auto options = std::make_shared<SkyOptions>();
    AddPlaceAndClockOptions(*command, options->place);
    command->add_option("--at", options->at, "A moment of the place's clock in place of now");
    command->callback([&session, options] { PrintSky(session, *options); });
}

void AddPhases(CLI::App& app, Session& session) {
    auto* command =
        AddCommand(app, session, "phases", "The moon's phases of a year as they are in the sky");
    auto options = std::make_shared<PhasesOptions>();
    AddPlaceAndClockOptions(*command, options->place);
    command->add_option("--year", options->year, "Gregorian year")
        ->check(CLI::Range(kFirstAlmanacYear, kLastAlmanacYear))
        ->required();
    command->callback([&session, options] { PrintPhases(session, *options); });
}

}  // namespace

void AddSkyCommands(CLI::App& app, Session& session) {
    AddSky(app, session);
    AddPhases(app, session);
}

}  // namespace horavex
