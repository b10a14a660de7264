#include "skywindows/today_page.h"

#include <cmath>

#include "base/number_text.h"
#include "base/rounding.h"
#include "lang/filled_text.h"
#include "lang/pack_number.h"
#include "skywindows/sky_words.h"

namespace horavex {

namespace {

struct TwilightName {
    const char* key;
    const char* english;
};

constexpr TwilightName kTwilightNames[] = {{"Civil", "Civil twilight, 6\u00b0"},
                                           {"Nautical", "Nautical twilight, 12\u00b0"},
                                           {"Astronomical", "Astronomical twilight, 18\u00b0"}};

std::vector<std::string> Heads() {
    return {"", SkyWord("Rise", "Rise or dawn"), SkyWord("Transit", "Highest point"),
            SkyWord("Set", "Set or dusk")};
}

/// How a body spends a day without a rise or a set.
std::string WholeDay(const DayArc& arc) {
    return arc.upAtBegin ? SkyWord("AlwaysUp", "up all day") : SkyWord("NeverUp", "down all day");
}

Grid::Row BodyRow(const ZoneClock& clock, const std::string& name, const DayArc& arc) {
    const bool still = !arc.rise && !arc.set;
    return {{still ? name + ", " + WholeDay(arc) : name, SkyTime(clock, arc.rise),
             SkyTime(clock, arc.transit), SkyTime(clock, arc.set)}};
}

std::vector<Grid::Row> Rows(const ZoneClock& clock, const SkyDay& day) {
    std::vector<Grid::Row> rows = {BodyRow(clock, SkyWord("Sun", "Sun"), day.sun),
                                   BodyRow(clock, SkyWord("Moon", "Moon"), day.moon)};
    for (std::size_t i = 0; i < day.twilights.size(); ++i) {
        const auto& [dawn, dusk] = day.twilights[i];
        rows.push_back({{SkyWord(kTwilightNames[i].key, kTwilightNames[i].english),
                         SkyTime(clock, dawn), "", SkyTime(clock, dusk)}});
    }
    return rows;
}

/// "Sun now: 23.4° above the horizon, bearing 231°".
std::string StandsText(const std::string& body, const HorizonPlace& place) {
    const std::string text =
        place.altitude < 0.0
            ? SkyWord("Below", "{body} now: {degrees} below the horizon, bearing {bearing}")
            : SkyWord("Above", "{body} now: {degrees} above the horizon, bearing {bearing}");
    return FilledText(FilledText(FilledText(text, "{body}", body), "{degrees}",
                                 DegreesIn(text, std::fabs(place.altitude))),
                      "{bearing}", DegreesIn(text, place.bearing));
}

std::string TenthsText(double value) {
    return PackNumber(RoundToPlaces(value, 1));
}

std::string MoonText(const std::string& shape, double age, const SkyMoment& moment) {
    std::string text =
        SkyWord("MoonNow", "{shape}: {age} days old, {lit}% of the disc lit, {distance} km away");
    text = FilledText(text, "{shape}", shape);
    text = FilledText(text, "{age}", TenthsText(age));
    text = FilledText(text, "{lit}", NumberToText(RoundHalfEven(100.0 * moment.litPart)));
    return FilledText(text, "{distance}", PackWholeNumber(std::lround(moment.moonDistance)));
}

}  // namespace

SkyPage TodayPage(const Almanac& almanac, const SkyPlace& place, Date now) {
    const SkyDay day = SkyDayOf(almanac, place.observer, DayAround(place.clock, now));
    const SkyMoment moment = SkyMomentAt(almanac, place.observer, now);
    const std::string shape = ShapeName(MoonShapeAt(almanac, day.span, now));
    return {Heads(),
            Rows(place.clock, day),
            StandsText(SkyWord("Sun", "Sun"), moment.sun) + "\n" +
                StandsText(SkyWord("Moon", "Moon"), moment.moon) + "\n" +
                MoonText(shape, AgeOfMoon(almanac, now), moment),
            {1, 2, 3}};
}

}  // namespace horavex
