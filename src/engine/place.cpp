#include "engine/place.h"

#include "base/program_state.h"
#include "engine/angle.h"
#include "store/settings_record.h"

namespace horavex {

double LatitudeRad = 0.0;
double LongitudeWestRad = 0.0;
std::string YearCityText;

namespace {

const ProgramStateReset reset([] {
    LatitudeRad = 0.0;
    LongitudeWestRad = 0.0;
    YearCityText.clear();
});

}  // namespace

YearPlace PlaceOf(const CityRecord& city, double timeZone) {
    return {DegToRad(StoredCoord(city.Latitude)), -1.0 * DegToRad(StoredCoord(city.Longitude)),
            timeZone};
}

YearPlace PresentPlace() {
    return {LatitudeRad, LongitudeWestRad, Settings.TimeZone};
}

void TakePlace(const CityRecord& city, const std::string& text) {
    const YearPlace place = PlaceOf(city, 0.0);
    YearCityText = text;
    LatitudeRad = place.latitudeRad;
    LongitudeWestRad = place.longitudeWestRad;
}

}  // namespace horavex
