#pragma once

#include "platform/almanac.h"

namespace horavex {

/// Places by the models of ERFA, the library of fundamental astronomy: the sun from VSOP2000 of the
/// Earth (to a second of arc), the moon from the shortened ELP2000 of Meeus (to 13 seconds of arc,
/// 3 in the mean), precession and nutation IAU 2000B. docs/accuracy.md has what comes of it.
class ErfaAlmanac : public Almanac {
public:
    CelestialPlace SunAt(Date universal) const override;
    CelestialPlace MoonAt(Date universal) const override;
    double SiderealTime(Date universal) const override;
};

}  // namespace horavex
