#pragma once

#include <cstdint>
#include <string>

#include "store/location_record.h"

namespace horavex {

/// Zones that a longitude suggests, hours east of Greenwich. Written by ZoneFromLongitude.
extern std::int16_t ZoneWest;
extern std::int16_t ZoneNearest;
extern std::int16_t ZoneEast;

/// The place that was last shown, and its texts. Written by ShowLocation.
extern CityRecord ShownCity;
extern std::string LatitudeText;
extern std::string LongitudeText;
extern std::string ZoneHintText;

/// longitude: degrees, east positive, -180 to 180. A half goes east; an exact multiple of 15 is
/// its own western zone, or the eastern one where it is negative.
void ZoneFromLongitude(double longitude);

/// "Latitude: 30 degrees, 3 minutes North", in a language column of the text table.
std::string FormatLatitude(double degrees, std::int16_t language);
std::string FormatLongitude(double degrees, std::int16_t language);

/// Works out the zones and the texts of a place in the language of the working settings.
void ShowLocation(const LocationRecord& location);

}  // namespace horavex
