// The examples 12.a, 25.b and 47.a of J. Meeus, Astronomical Algorithms (second edition), whose
// moon is good to 10 seconds of arc, as the adapter's is. Its instants are of the orbits' time.

#include "linux/erfa_almanac.h"

#include <gtest/gtest.h>

#include "linux/delta_t.h"

namespace horavex {
namespace {

constexpr double kSecondOfArc = 1.0 / 3600.0;

Date UniversalOf(Date orbitTime) {
    return orbitTime - DeltaT(orbitTime) / kSecondsPerDay;
}

TEST(ErfaAlmanac, HasTheApparentPlaceOfTheSun) {
    const CelestialPlace sun = ErfaAlmanac().SunAt(UniversalOf(DateSerial(1992, 10, 13)));
    EXPECT_NEAR(sun.longitude, 199.906060, 2 * kSecondOfArc);
    EXPECT_NEAR(sun.latitude, 0.000206, 2 * kSecondOfArc);
    EXPECT_NEAR(sun.rightAscension, 198.378121, 2 * kSecondOfArc);
    EXPECT_NEAR(sun.declination, -7.783817, 2 * kSecondOfArc);
    EXPECT_NEAR(sun.distance, 0.99760775 * 149597870.7, 1000.0);
}

TEST(ErfaAlmanac, HasTheApparentPlaceOfTheMoon) {
    const CelestialPlace moon = ErfaAlmanac().MoonAt(UniversalOf(DateSerial(1992, 4, 12)));
    EXPECT_NEAR(moon.longitude, 133.167265, 10 * kSecondOfArc);
    EXPECT_NEAR(moon.latitude, -3.229126, 10 * kSecondOfArc);
    EXPECT_NEAR(moon.rightAscension, 134.688470, 10 * kSecondOfArc);
    EXPECT_NEAR(moon.declination, 13.768368, 10 * kSecondOfArc);
    EXPECT_NEAR(moon.distance, 368409.7, 20.0);
}

TEST(ErfaAlmanac, HasTheApparentSiderealTime) {
    EXPECT_NEAR(ErfaAlmanac().SiderealTime(DateSerial(1987, 4, 10)), 197.692230,
                0.1 * kSecondOfArc);
}

}  // namespace
}  // namespace horavex
