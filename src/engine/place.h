#pragma once

#include <string>

#include "store/location_record.h"

namespace horavex {

/// Place of the program's calculation, radians. Written by TakePlace, by BringYearBack, and by
/// horavexctl for a qibla alone.
extern double LatitudeRad;       // north positive, -Pi/2 to Pi/2
extern double LongitudeWestRad;  // west positive, -Pi to Pi

/// Display text of that place. Written by TakePlace and BringYearBack.
extern std::string YearCityText;

/// Where a year is worked out, and by which clock.
struct YearPlace {
    double latitudeRad = 0.0;       // as LatitudeRad
    double longitudeWestRad = 0.0;  // as LongitudeWestRad
    double timeZone = 0.0;          // hours east of Greenwich

    bool operator==(const YearPlace&) const = default;
};

/// The place of a city. timeZone: hours east of Greenwich.
YearPlace PlaceOf(const CityRecord& city, double timeZone);

/// The program's place under the zone of the working settings.
YearPlace PresentPlace();

/// Makes a city the program's place. text: its display text.
void TakePlace(const CityRecord& city, const std::string& text);

}  // namespace horavex
