#include "sky/tabulated_almanac.h"

#include <cmath>

#include "engine/angle.h"
#include "sky/horizon.h"

namespace horavex {

namespace {

constexpr double kRowsADay = 24.0;

}  // namespace

void TabulatedAlmanac::AddAngle(Angles& column, double degrees) {
    column.push_back(column.empty() ? degrees
                                    : column.back() + SignedDegrees(degrees - column.back()));
}

void TabulatedAlmanac::Places::Add(const CelestialPlace& place) {
    AddAngle(longitude, place.longitude);
    AddAngle(latitude, place.latitude);
    AddAngle(rightAscension, place.rightAscension);
    AddAngle(declination, place.declination);
    distance.push_back(place.distance);
}

CelestialPlace TabulatedAlmanac::Places::At(const Neighbours& neighbours) const {
    return {Normalize360(Between(longitude, neighbours)), Between(latitude, neighbours),
            Normalize360(Between(rightAscension, neighbours)), Between(declination, neighbours),
            Between(distance, neighbours)};
}

TabulatedAlmanac::TabulatedAlmanac(const Almanac& almanac, Date from, Date end)
    : almanac_(almanac), from_(from), end_(end) {
    // Every instant of the span has a row or two to either side.
    const int last = static_cast<int>(std::ceil((end - from) * kRowsADay)) + 2;
    for (int row = -1; row <= last; ++row) {
        const Date instant = from + row / kRowsADay;
        sun_.Add(almanac.SunAt(instant));
        moon_.Add(almanac.MoonAt(instant));
        AddAngle(siderealTime_, almanac.SiderealTime(instant));
    }
}

TabulatedAlmanac::Neighbours TabulatedAlmanac::Around(Date universal) const {
    const double row = std::floor((universal - from_) * kRowsADay);
    const double part = (universal - from_) * kRowsADay - row;  // of an hour, behind the second
    const double before = part + 1.0;
    const double after = 1.0 - part;
    const double beyond = 2.0 - part;
    return {static_cast<std::size_t>(row),
            {-part * after * beyond / 6.0, before * after * beyond / 2.0,
             before * part * beyond / 2.0, -before * part * after / 6.0}};
}

double TabulatedAlmanac::Between(const std::vector<double>& column, const Neighbours& neighbours) {
    double sum = 0.0;
    for (std::size_t i = 0; i < neighbours.weights.size(); ++i) {
        sum += neighbours.weights[i] * column[neighbours.first + i];
    }
    return sum;
}

CelestialPlace TabulatedAlmanac::SunAt(Date universal) const {
    return Covers(universal) ? sun_.At(Around(universal)) : almanac_.SunAt(universal);
}

CelestialPlace TabulatedAlmanac::MoonAt(Date universal) const {
    return Covers(universal) ? moon_.At(Around(universal)) : almanac_.MoonAt(universal);
}

double TabulatedAlmanac::SiderealTime(Date universal) const {
    return Covers(universal) ? Normalize360(Between(siderealTime_, Around(universal)))
                             : almanac_.SiderealTime(universal);
}

}  // namespace horavex
