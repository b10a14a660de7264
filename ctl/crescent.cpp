#include <cmath>
#include <cstdio>
#include <memory>

#include "ctl/crescent_map.h"
#include "ctl/place_clock.h"
#include "ctl/place_options.h"
#include "sky/class_words.h"
#include "sky/first_days.h"
#include "store/location_record.h"
#include "timetables/timetable.h"

namespace horavex {

namespace {

struct CrescentOptions {
    PlaceOptions place;
    int month = 0;
    int year = 0;
    CrescentMapOptions map;
};

constexpr double kMinutesPerDay = 24.0 * 60.0;

constexpr const char* kKindKeys[] = {"judged", "beforeNewMoon", "moonSetsFirst", "noSunset"};

Json DayJson(const std::optional<Date>& day) {
    return day ? Json(IsoDate(CivilFromDate(*day))) : Json();
}

Json SightedJson(const SightedDays& days) {
    return {{"nakedEye", DayJson(days.nakedEye)}, {"opticalAid", DayJson(days.aided)}};
}

Json FirstDaysJson(const FirstDays& days) {
    return {{"yallop", SightedJson(days.yallop)},
            {"odeh", SightedJson(days.odeh)},
            {"ummAlQura", DayJson(days.ummAlQura)},
            {"arithmetic", DayJson(days.arithmetic)}};
}

std::optional<double> LagMinutes(const CrescentEvening& evening) {
    const auto lag = evening.Lag();
    return lag ? std::optional(*lag * kMinutesPerDay) : std::nullopt;
}

Json ArcsJson(const CrescentArcs& arcs) {
    return {{"elongation", arcs.light},
            {"arcOfVision", arcs.vision},
            {"azimuthDifference", arcs.azimuth},
            {"width", arcs.width}};
}

Json VerdictJson(const char* number, const char* letter, const Verdict& verdict) {
    return {{number, verdict.value}, {letter, std::string(1, verdict.letter)}};
}

Json CrescentJson(const CrescentEvening& evening, bool judged) {
    const auto lag = LagMinutes(evening);
    return {{"sunset", WorkingJson(evening.sunset)},
            {"moonset", WorkingJson(evening.moonset)},
            {"lagMinutes", lag ? Json(*lag) : Json()},
            {"best", WorkingJson(evening.best)},
            {"ageHours", evening.age},
            {"moonAltitude", evening.moonAltitude},
            {"geocentric", ArcsJson(evening.geocentric)},
            {"topocentric", ArcsJson(evening.topocentric)},
            {"yallop", judged ? VerdictJson("q", "class", evening.yallop) : Json()},
            {"odeh", judged ? VerdictJson("v", "zone", evening.odeh) : Json()}};
}

Json EveningJson(const DatedEvening& evening, EveningKind kind) {
    const bool judged = kind == EveningKind::kJudged;
    return {{"date", DayJson(evening.day)},
            {"kind", kKindKeys[static_cast<int>(kind)]},
            {"crescent", evening.crescent ? CrescentJson(*evening.crescent, judged) : Json()}};
}

Json MonthJson(const MonthEvenings& month, const HijriDate& first) {
    Json evenings = Json::array();
    for (const DatedEvening& evening : month.evenings) {
        evenings.push_back(EveningJson(evening, KindOf(evening.crescent, month.newMoon)));
    }
    return {{"city", CityText},     {"month", first.month},
            {"year", first.year},   {"newMoon", WorkingJson(month.newMoon)},
            {"evenings", evenings}, {"firstDays", FirstDaysJson(FirstDaysOf(month, first))}};
}

std::string LagText(const CrescentEvening& evening) {
    const auto lag = LagMinutes(evening);
    return lag ? std::to_string(std::lround(*lag)) : "-";
}

/// Numbers and classes, or why no criterion is asked.
std::string VerdictsText(const CrescentEvening& evening, EveningKind kind) {
    if (kind != EveningKind::kJudged) {
        return ClassWords().Of(kind);
    }
    char text[40];
    std::snprintf(text, sizeof text, "%6.2f %c   %6.2f %c", evening.yallop.value,
                  evening.yallop.letter, evening.odeh.value, evening.odeh.letter);
    return text;
}

std::string EveningText(const DatedEvening& evening, EveningKind kind) {
    const std::string day = IsoDate(CivilFromDate(evening.day));
    if (!evening.crescent) {
        return day + "  " + ClassWords().Of(kind) + "\n";
    }
    const CrescentEvening& crescent = *evening.crescent;
    char text[120];
    std::snprintf(text, sizeof text, "%s  %-7s  %-7s  %4s  %6.1f  %5.1f  %5.1f  %5.2f  ",
                  day.c_str(), WorkingTimeText(crescent.sunset, evening.day).c_str(),
                  WorkingTimeText(crescent.moonset, evening.day).c_str(), LagText(crescent).c_str(),
                  crescent.age, crescent.topocentric.light, crescent.topocentric.vision,
                  crescent.topocentric.width);
    return text + VerdictsText(crescent, kind) + "\n";
}

std::string DayText(const char* title, const std::optional<Date>& day) {
    return std::string(title) + (day ? IsoDate(CivilFromDate(*day)) : "on none of these days") +
           "\n";
}

std::string FirstDaysText(const FirstDays& days) {
    return DayText("First day, Yallop, naked eye:    ", days.yallop.nakedEye) +
           DayText("First day, Yallop, optical aid:  ", days.yallop.aided) +
           DayText("First day, Odeh, naked eye:      ", days.odeh.nakedEye) +
           DayText("First day, Odeh, optical aid:    ", days.odeh.aided) +
           DayText("First day, Umm al-Qura:          ", days.ummAlQura) +
           DayText("First day, arithmetic:           ", days.arithmetic);
}

std::string MonthText(const MonthEvenings& month, const HijriDate& first) {
    std::string text = CityText + "\nNew moon " + WorkingJson(month.newMoon).get<std::string>() +
                       "\n\nEvening     Sunset   Moonset   Lag   Age h  Elong   ArcV  Width  "
                       "Yallop q   Odeh V\n";
    for (const DatedEvening& evening : month.evenings) {
        text += EveningText(evening, KindOf(evening.crescent, month.newMoon));
    }
    return text + "\n" + FirstDaysText(FirstDaysOf(month, first));
}

void PrintCrescent(Session& session, const CrescentOptions& options) {
    const HijriDate first{options.year, options.month, 1};
    ApplyPlace(options.place, DateFromHijri(first));
    const Lookout lookout{WorkingObserver(), UniversalOfWorking, WorkingOfUniversal};
    const Almanac& almanac = Ports().almanac;
    const MonthEvenings month = EveningsOfMonth(almanac, lookout, options.year, options.month);
    const auto map = WriteMap(almanac, lookout, month, options.map);
    Json json = MonthJson(month, first);
    if (map) {
        json["map"] = MapJson(*map);
    }
    session.Print(json, MonthText(month, first) + (map ? WrittenMapText(*map) : ""));
}

}  // namespace

void AddCrescentCommand(CLI::App& app, Session& session) {
    auto* command = AddCommand(app, session, "crescent",
                               "When the crescent of a Hijri month can be seen from a place");
    auto options = std::make_shared<CrescentOptions>();
    AddPlaceAndClockOptions(*command, options->place);
    command->add_option("--month", options->month, "Hijri month, 1 to 12")
        ->check(CLI::Range(1, 12))
        ->required();
    command->add_option("--year", options->year, "Hijri year")
        ->check(CLI::Range(kFirstCrescentYear, kLastCrescentYear))
        ->required();
    AddMapOptions(*command, options->map);
    command->callback([&session, options] { PrintCrescent(session, *options); });
}

}  // namespace horavex
