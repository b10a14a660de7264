#include "store/location_text.h"

#include <cmath>
#include <cstdlib>

#include "base/int16.h"
#include "base/program_state.h"
#include "engine/angle.h"
#include "store/open_texts.h"
#include "store/settings_record.h"

namespace horavex {

std::int16_t ZoneWest = 0;
std::int16_t ZoneNearest = 0;
std::int16_t ZoneEast = 0;
CityRecord ShownCity;
std::string LatitudeText;
std::string LongitudeText;
std::string ZoneHintText;

namespace {

std::string ZoneWestText;

const ProgramStateReset reset([] {
    ZoneWest = ZoneNearest = ZoneEast = 0;
    ShownCity = {};
    LatitudeText.clear();
    LongitudeText.clear();
    ZoneHintText.clear();
    ZoneWestText.clear();
});

std::string FormatCoordinate(TextEntry caption, double degrees, TextEntry hemisphere,
                             std::int16_t language) {
    const DegreesMinutes split = SplitDegrees(degrees);
    const OpenTexts texts;
    return texts.Item(caption, language) + ": " + std::to_string(std::abs(split.whole)) + " " +
           texts.Item(TextEntry::kDegrees, language) + ", " + std::to_string(split.minutes) + " " +
           texts.Item(TextEntry::kMinutes, language) + " " + texts.Item(hemisphere, language);
}

}  // namespace

void ZoneFromLongitude(double longitude) {
    const std::int16_t w = TruncateToInt16(longitude / 15.0);
    ZoneWest = longitude < 0.0 ? SubtractInt16(w, 1) : w;
    ZoneEast = AddInt16(ZoneWest, 1);
    ZoneNearest = std::fabs(longitude / 15.0 - ZoneWest) < 0.5 ? ZoneWest : ZoneEast;
}

std::string FormatLatitude(double degrees, std::int16_t language) {
    return FormatCoordinate(TextEntry::kLatitude, degrees,
                            degrees < 0.0 ? TextEntry::kSouth : TextEntry::kNorth, language);
}

std::string FormatLongitude(double degrees, std::int16_t language) {
    return FormatCoordinate(TextEntry::kLongitude, degrees,
                            degrees < 0.0 ? TextEntry::kWest : TextEntry::kEast, language);
}

void ShowLocation(const LocationRecord& location) {
    const double latitude = StoredCoord(location.City.Latitude);
    const double longitude = StoredCoord(location.City.Longitude);
    ShownCity = location.City;
    ZoneFromLongitude(longitude);
    LatitudeText = FormatLatitude(latitude, Settings.Language);
    LongitudeText = FormatLongitude(longitude, Settings.Language);
    ZoneWestText = std::to_string(ZoneWest);
    ZoneHintText = TextItem(TextEntry::kTimeZone, Settings.Language) + " ( " + ZoneWestText + ", " +
                   std::to_string(ZoneEast) + ", ...)";
}

}  // namespace horavex
