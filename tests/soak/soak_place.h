#pragma once

#include <string>
#include <vector>

#include "soak/soak_world.h"
#include "store/options.h"
#include "store/settings_record.h"

namespace horavex {

/// Where a user of the soak lives, and how.
struct SoakPlace {
    std::string name;
    std::string city;  // the first that a search finds
    std::string zone;  // in the zone database: of the computer's clock
    double hours;      // of that zone in its winter, east positive
    bool automaticZone = false;
    std::int16_t dstStart = 0;  // of the record; 0 for none
    std::int16_t dstEnd = 0;
    HighLatitudeRule rule = HighLatitudeRule::kNone;
};

/// Daylight saving on the plain side and on the wrapped one, the zone of Ramadan, Isha past
/// midnight, and a place whose year cannot be calculated.
const std::vector<SoakPlace>& SoakPlaces();

/// What a user there has stored.
SoakStore StoreOf(const SoakPlace& place);

}  // namespace horavex
