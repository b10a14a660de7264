#include "ctl/crescent_map.h"

#include "ctl/place_clock.h"
#include "sky/map_drawing.h"
#include "timetables/drawing_file.h"
#include "timetables/timetable.h"

namespace horavex {

namespace {

const CLI::Validator kDrawingPath(
    [](const std::string& path) {
        return IsDrawingPath(path) ? "" : "its name has to end with .svg or .png";
    },
    "FILE");

Criterion CriterionOf(const CrescentMapOptions& options) {
    return options.criterion == "odeh" ? Criterion::kOdeh : Criterion::kYallop;
}

Date EveningOf(const MonthEvenings& month, const CrescentMapOptions& options) {
    const std::size_t evening = options.evening ? static_cast<std::size_t>(*options.evening - 1)
                                                : EveningOfSight(month, CriterionOf(options));
    return month.evenings.at(evening).day;
}

MapText TextOf(const WrittenMap& map, Date newMoon) {
    const Date minute = ZoneClock("", {}).MinuteOf(newMoon);
    return {"Crescent on the evening of " + IsoDate(CivilFromDate(map.day)) + ", criterion of " +
                (map.criterion == "odeh" ? "Odeh" : "Yallop"),
            "New moon " + IsoDate(CivilFromDate(minute)) + " " + IsoTime(SecondOfDay(minute) / 60) +
                " Universal Time",
            {}};
}

}  // namespace

void AddMapOptions(CLI::App& command, CrescentMapOptions& options) {
    auto* map =
        command.add_option("--map", options.file, "A map of the world to write, .svg or .png")
            ->check(kDrawingPath);
    command.add_option("--evening", options.evening, "The map's evening, 1 to 5 of those listed")
        ->check(CLI::Range(1, kMonthEvenings))
        ->needs(map);
    command.add_option("--criterion", options.criterion, "The map's criterion, yallop or odeh")
        ->check(CLI::IsMember({"yallop", "odeh"}))
        ->needs(map);
}

std::optional<WrittenMap> WriteMap(const Almanac& almanac, const Lookout& lookout,
                                   const MonthEvenings& month, const CrescentMapOptions& options) {
    if (options.file.empty()) {
        return std::nullopt;
    }
    const Date evening = EveningOf(month, options);
    const WrittenMap written{options.file, evening, SolarDay(lookout, evening), options.criterion};
    VisibilityMap map(almanac, written.day, month.newMoon);
    while (!map.IsComplete()) {
        map.ComputeRow();
    }
    WriteDrawing(
        written.file,
        MapDrawing(map, CriterionOf(options), WorkingObserver(), TextOf(written, month.newMoon)),
        kMapWidth, kMapHeight);
    return written;
}

Json MapJson(const WrittenMap& map) {
    return {{"file", map.file},
            {"evening", IsoDate(CivilFromDate(map.evening))},
            {"date", IsoDate(CivilFromDate(map.day))},
            {"criterion", map.criterion}};
}

std::string WrittenMapText(const WrittenMap& map) {
    const std::string day =
        map.day == map.evening ? "" : ", on the map " + IsoDate(CivilFromDate(map.day));
    return "\nMap of the evening of " + IsoDate(CivilFromDate(map.evening)) + day + ": " +
           map.file + "\n";
}

}  // namespace horavex
