#include <cmath>

#include "engine/angle.h"
#include "geo/qibla.h"

namespace horavex {

namespace {

// Mecca: 21.42333 degrees north, 39.82333 degrees east, in radians to seven and eight places, which
// is within a metre.
constexpr double kMeccaLatitude = 0.3739077;         // radians
constexpr double kMeccaLongitudeWest = -0.69504828;  // radians, west positive

}  // namespace

double BearingOfMecca(double latitude, double longitudeWest) {
    const double D = longitudeWest - kMeccaLongitudeWest;
    const double y = std::sin(D);
    const double x =
        std::tan(kMeccaLatitude) * std::cos(latitude) - std::cos(D) * std::sin(latitude);
    return Atan2Checked(y, x);
}

}  // namespace horavex
