// Works the bands of depression angles out with the engine and prints data/angles.csv.
// It tries each whole angle over a degree of latitude, in both hemispheres, at the edges and in
// the middle of a zone, with and without daylight saving, over the years of a calendar cycle.

#include <algorithm>
#include <array>
#include <iostream>

#include "base/int16.h"
#include "engine/year_calculation.h"
#include "lib/data_writer.h"
#include "lib/tool_platform.h"
#include "store/angle_band.h"
#include "store/location_record.h"
#include "store/settings_defaults.h"
#include "store/settings_record.h"

namespace {

using namespace horavex;

constexpr int kLargestAngle = 20;                   // degrees; no convention asks for more
constexpr int kUsualAngle = 18;                     // degrees; the default where it is possible
constexpr int kLastLatitude = 62;                   // degrees; beyond it no angle lasts a year
constexpr std::array kLongitudes = {-750, 0, 749};  // hundredths: the width of zone 0
constexpr std::array kWithinBand = {1, 50, 100};    // hundredths above the band's limit
constexpr std::array<std::int16_t, 6> kYears = {2024, 2025, 2026, 2027, 2038, 2048};

bool LastsYear(std::int16_t year, bool daylightSaving) {
    Settings.DstEnabled = daylightSaving ? 1 : 0;
    SetDefaultDstDays(DateSerial(year, 1, 1), Location.City.Latitude);
    const YearPlace place = PlaceOf(Location.City, Settings.TimeZone);
    return !CalculateYear({year, place, MethodOf(Settings, IshaAngle)}).failure;
}

bool LastsEveryYear() {
    return std::all_of(kYears.begin(), kYears.end(), [](std::int16_t year) {
        return LastsYear(year, false) && LastsYear(year, true);
    });
}

bool LastsAt(int latitude, int angle) {
    Settings.FajrAngle = IshaAngle = angle;
    Settings.AsrRatio = 1.0;
    Location.City.Latitude = static_cast<std::int16_t>(latitude);
    return std::all_of(kLongitudes.begin(), kLongitudes.end(), [](int longitude) {
        Location.City.Longitude = static_cast<std::int16_t>(longitude);
        return LastsEveryYear();
    });
}

/// limit: hundredths of a degree; the band reaches a degree beyond it.
bool LastsInBand(int limit, int angle) {
    return std::all_of(kWithinBand.begin(), kWithinBand.end(), [=](int above) {
        return LastsAt(limit + above, angle) && LastsAt(-limit - above, angle);
    });
}

/// The limits of a band; all 0 where no angle lasts a year.
AngleLimits LimitsOf(int limit) {
    int largest = kLargestAngle;
    while (largest > 0 && !LastsInBand(limit, largest)) {
        --largest;
    }
    int smallest = largest;
    while (smallest > 1 && LastsInBand(limit, smallest - 1)) {
        --smallest;
    }
    return {ToInt16(largest), ToInt16(std::min(largest, kUsualAngle)), ToInt16(smallest)};
}

void Compute(char**) {
    const ToolPlatform platform;
    std::cout << "limit,largest,default,smallest\n";
    AngleLimits former;
    for (int latitude = 0; latitude < kLastLatitude; ++latitude) {
        const AngleLimits limits = LimitsOf(latitude * 100);
        if (limits.largest == 0 || limits == former) {
            continue;
        }
        // The first limit lies below 0, so that the equator finds a band.
        std::cout << (latitude == 0 ? -1 : latitude * 100) << ',' << limits.largest << ','
                  << limits.middle << ',' << limits.smallest << '\n';
        former = limits;
    }
}

}  // namespace

int main(int argumentCount, char** arguments) {
    return RunTool("compute_angles", argumentCount, 0, Compute, arguments);
}
