#pragma once

#include <array>
#include <vector>

#include "platform/almanac.h"

namespace horavex {

/// Another almanac's places over a span of days, tabulated by the hour and interpolated between by
/// cubics, for who asks for thousands of them: within a hundredth of a second of arc of the other.
/// Outside the span the other one answers, which has to live as long.
class TabulatedAlmanac : public Almanac {
public:
    TabulatedAlmanac(const Almanac& almanac, Date from, Date end);

    CelestialPlace SunAt(Date universal) const override;
    CelestialPlace MoonAt(Date universal) const override;
    double SiderealTime(Date universal) const override;

private:
    /// The four rows around an instant and what each of them counts.
    struct Neighbours {
        std::size_t first;
        std::array<double, 4> weights;
    };
    using Angles = std::vector<double>;  // degrees that do not turn over at 360

    struct Places {
        Angles longitude, latitude, rightAscension, declination;
        std::vector<double> distance;

        void Add(const CelestialPlace& place);
        CelestialPlace At(const Neighbours& neighbours) const;
    };

    bool Covers(Date universal) const { return universal >= from_ && universal <= end_; }
    Neighbours Around(Date universal) const;
    static double Between(const std::vector<double>& column, const Neighbours& neighbours);
    static void AddAngle(Angles& column, double degrees);

    const Almanac& almanac_;
    Date from_, end_;
    Places sun_, moon_;
    Angles siderealTime_;
};

}  // namespace horavex
