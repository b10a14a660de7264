#include "skywindows/phases_page.h"

#include "sky/phases.h"
#include "skywindows/sky_words.h"

namespace horavex {

namespace {

constexpr std::size_t kPhases = 4;

std::vector<std::string> PhaseNames() {
    return {ShapeName(MoonShape::kNewMoon), ShapeName(MoonShape::kFirstQuarter),
            ShapeName(MoonShape::kFullMoon), ShapeName(MoonShape::kLastQuarter)};
}

bool BeginsRow(const PhaseInstant& found, const std::vector<Grid::Row>& rows) {
    return rows.empty() || found.phase == Phase::kNewMoon;
}

}  // namespace

SkyPage PhasesPage(const Almanac& almanac, const SkyPlace& place, int year, Date now) {
    const SkySpan span = YearOf(place.clock, year);
    std::vector<Grid::Row> rows;
    std::size_t present = 0;
    for (const PhaseInstant& found : PhasesBetween(almanac, span.from, span.end)) {
        if (BeginsRow(found, rows)) {
            present = found.universal <= now ? rows.size() : present;
            rows.push_back({std::vector<std::string>(kPhases)});
        }
        rows.back().cells[static_cast<std::size_t>(found.phase)] =
            SkyDayAndTime(place.clock, found.universal);
    }
    rows.at(present).current = span.from <= now && now < span.end;
    return {PhaseNames(), rows, ""};
}

}  // namespace horavex
