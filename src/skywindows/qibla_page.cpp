#include "skywindows/qibla_page.h"

#include "engine/angle.h"
#include "geo/qibla.h"
#include "lang/filled_text.h"
#include "sky/qibla_by_sun.h"
#include "skywindows/sky_words.h"

namespace horavex {

namespace {

double QiblaFrom(const Observer& observer) {
    return Normalize360(
        RadToDeg(BearingOfMecca(DegToRad(observer.latitude), -DegToRad(observer.longitude))));
}

/// The rows of a page, one an instant.
class SunRows {
public:
    SunRows(const Almanac& almanac, const SkyPlace& place) : almanac_(almanac), place_(place) {}

    void Add(const std::string& what, const std::string& when, Date universal) {
        const double altitude = SunOver(almanac_, place_.observer, universal).altitude;
        rows.push_back(
            {{what, when,
              altitude < 0.0 ? SkyWord("IsDown", "below the horizon") : DegreesText(altitude)}});
    }

    void AddTimes(const std::string& what, const std::vector<Date>& instants) {
        for (const Date instant : instants) {
            Add(what, SkyTime(place_.clock, instant), instant);
        }
        if (instants.empty()) {
            rows.push_back({{what, SkyTime(place_.clock, std::nullopt), ""}});
        }
    }

    std::vector<Grid::Row> rows;

private:
    const Almanac& almanac_;
    const SkyPlace& place_;
};

std::string Note(double bearing) {
    const std::string text =
        SkyWord("QiblaNote",
                "The qibla is {bearing} clockwise from north. At the sun's times, face the sun; at "
                "the shadow's, follow it from the foot of anything upright.");
    return FilledText(text, "{bearing}", DegreesIn(text, bearing)) + "\n" +
           SkyWord("MeccaNote",
                   "When the sun stands over Mecca it shows the qibla wherever it is up.");
}

}  // namespace

SkyPage QiblaPage(const Almanac& almanac, const SkyPlace& place, int year, Date now) {
    const double bearing = QiblaFrom(place.observer);
    const DirectionBySun today =
        ShownBySun(almanac, place.observer, DayAround(place.clock, now), bearing);
    SunRows list(almanac, place);
    list.AddTimes(SkyWord("SunOnQibla", "Today the sun stands on the qibla"), today.sun);
    list.AddTimes(SkyWord("ShadowOnQibla", "Today a shadow points to the qibla"), today.shadow);
    for (const Date noon : SunOverMecca(almanac, year)) {
        list.Add(SkyWord("SunOverMecca", "The sun stands over Mecca"),
                 SkyDateAndTime(place.clock, noon), noon);
    }
    return {{"", SkyWord("When", "Time"), SkyWord("SunHeight", "Sun's altitude")},
            list.rows,
            Note(bearing),
            {1, 2}};
}

}  // namespace horavex
