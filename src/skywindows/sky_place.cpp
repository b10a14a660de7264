#include "skywindows/sky_place.h"

#include <cmath>

#include "engine/angle.h"
#include "engine/ruled_year.h"
#include "store/location_record.h"
#include "store/settings_record.h"

namespace horavex {

SkyPlace AcceptedSkyPlace() {
    const CityRecord& city = ActiveLocation.City;
    return {ActiveCityText,
            {StoredCoord(city.Latitude), StoredCoord(city.Longitude)},
            {RuledYear.rules.zoneName, ActiveSettings}};
}

SkySpan DayAround(const ZoneClock& clock, Date universal) {
    const Date midnight = std::floor(clock.LocalOf(universal));
    return {clock.UniversalOf(midnight), clock.UniversalOf(midnight + 1.0)};
}

SkySpan YearOf(const ZoneClock& clock, int year) {
    return {clock.UniversalOf(DateSerial(year, 1, 1)),
            clock.UniversalOf(DateSerial(year + 1, 1, 1))};
}

}  // namespace horavex
