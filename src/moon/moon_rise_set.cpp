#include "moon/moon_rise_set.h"

#include <cmath>

#include "base/int16.h"
#include "base/number_text.h"
#include "base/rounding.h"
#include "lang/language_pack.h"
#include "moon/moon_position.h"
#include "platform/platform.h"

namespace horavex {

namespace {

/// Right ascension and declination at 0 and at 12 hours.
struct TwoPlaces {
    EquatorialParts first;
    EquatorialParts second;
};

/// Greenwich sidereal times of one event for both places, hours.
struct EventPair {
    double first;
    double second;
};

ThreeParts WithWholeSeconds(ThreeParts parts) {
    parts.seconds = RoundHalfEven(parts.seconds);
    return parts;
}

/// The later place goes on from the longitude in the orbit, not from that on the ecliptic.
EquatorialParts TwelveHoursOn(const MoonPlace& moon) {
    const double latitudeRate = RoundToSix(0.05 * CosDegrees(moon.longitude - moon.node));
    const double longitudeRate = RoundToSix(0.55 + 0.06 * CosDegrees(moon.anomaly));
    const EquatorialParts later =
        EclipticToEquatorial(DecimalToClock(moon.orbitLongitude + 12.0 * longitudeRate),
                             DecimalToClock(moon.latitude + 12.0 * latitudeRate));
    return {WithWholeSeconds(later.rightAscension), WithWholeSeconds(later.declination)};
}

TwoPlaces PlacesOf(const CivilDate& date) {
    const MoonPlace moon = MoonPosition(0.0, date);
    return {{DecimalToClock(moon.rightAscension), DecimalToClock(moon.declination)},
            TwelveHoursOn(moon)};
}

double GreenwichHours(double localHours, std::int16_t lonDeg) {
    return ClockToDecimal(LocalToGreenwichSidereal(DecimalToClock(localHours), lonDeg));
}

/// The second event comes after the first, and both after the sidereal time T of midnight.
EventPair InOrder(EventPair event, double T) {
    while (event.second < event.first) {
        event.second += 24.0;
    }
    if (event.first < T) {
        event.first += 24.0;
        event.second += 24.0;
    }
    return event;
}

double Interpolate(const EventPair& event, double T) {
    const double motion = event.second - event.first;
    return Quotient(12.03 * event.first - motion * T, 12.03 + event.first - event.second);
}

/// Sidereal time of the place's own midnight, as far as the place's minutes tell it.
double LocalMidnight(const CivilDate& date, const MoonObserver& observer) {
    const double T = ClockToDecimal(GreenwichSiderealAtMidnight(date));
    return T - (ClockToDecimal(observer.lonDeg, observer.lonMin, 0.0) / 15.0) * 1.002738;
}

/// What parallax, refraction and half diameter add to both events, hours.
double HorizonShift(const CivilDate& date, const MoonObserver& observer, double declination) {
    const double L = ClockToDecimal(observer.latDeg, observer.latMin, 0.0);
    const double psi = ArcCosDegrees(Quotient(SinDegrees(L), CosDegrees(declination)));
    const MoonSize size = MoonSizeAndParallax(date);
    const double x = 0.56667 - ClockToDecimal(size.parallax) + ClockToDecimal(size.diameter) / 2.0;
    const double y = ArcSinDegrees(Quotient(SinDegrees(x), SinDegrees(psi)));
    return Quotient(240.0 * y, CosDegrees(declination)) / 3600.0;
}

MoonClock UniversalClock(const CivilDate& date, double siderealHours) {
    const ThreeParts time = SiderealToUniversal(date, DecimalToClock(siderealHours));
    return {time.whole, time.minutes, time.seconds};
}

std::string ClockText(const MoonClock& time) {
    return std::to_string(time.hour) + ":" + std::to_string(time.minute) + ":" +
           NumberToText(time.second, Ports().formats.DecimalMark());
}

void CarryMinutes(MoonClock& time) {
    if (time.minute == 60) {
        time.minute = 0;
        time.hour = AddInt16(time.hour, 1);
    }
}

}  // namespace

SiderealRiseSet MoonRiseSetSidereal(const ThreeParts& declination, const ThreeParts& rightAscension,
                                    std::int16_t latitude) {
    const double D = RoundToSix(ClockToDecimal(declination));
    const double A = RoundToSix(ClockToDecimal(rightAscension));
    // The azimuth itself is not wanted; that it exists is.
    ArcCosDegrees(RoundToSix(Quotient(SinDegrees(D), CosDegrees(latitude))));
    const double H = ArcCosDegrees(RoundToSix(-TanDegrees(latitude) * TanDegrees(D))) / 15.0;
    return {WrapHours(A + 24.0 - H), WrapHours(A + H)};
}

MoonRiseSet MoonRiseSetTimes(const CivilDate& date, const MoonObserver& observer, double zone) {
    const auto [first, second] = PlacesOf(date);
    const auto local1 =
        MoonRiseSetSidereal(first.declination, first.rightAscension, observer.latDeg);
    const auto local2 =
        MoonRiseSetSidereal(second.declination, second.rightAscension, observer.latDeg);
    const double T = LocalMidnight(date, observer);
    const auto between = [&](double hours1, double hours2) {
        return Interpolate(InOrder({GreenwichHours(hours1, observer.lonDeg),
                                    GreenwichHours(hours2, observer.lonDeg)},
                                   T),
                           T);
    };
    const double declination =
        (ClockToDecimal(second.declination) + ClockToDecimal(first.declination)) / 2.0;
    const double shift = HorizonShift(date, observer, declination);
    MoonRiseSet times = {UniversalClock(date, between(local1.rise, local2.rise) - shift),
                         UniversalClock(date, between(local1.set, local2.set) + shift)};
    FoldSeconds(times);
    MoveByZone(times.rise, zone);
    MoveByZone(times.set, zone);
    return times;
}

void FoldSeconds(MoonRiseSet& times) {
    auto& [rise, set] = times;
    if (set.second < 30.0) {
        set.second = 0.0;
    }
    if (set.second > 30.0) {
        set.minute = AddInt16(set.minute, 1);
        set.second = 0.0;
    }
    if (rise.second < 30.0) {
        set.second = 0.0;
    }
    if (rise.second > 30.0) {
        rise.minute = AddInt16(rise.minute, 1);
        rise.second = 0.0;
    }
    CarryMinutes(set);
    CarryMinutes(rise);
}

void MoveByZone(MoonClock& time, double zone) {
    double d = ClockToDecimal(time.hour, time.minute, 0.0) + zone;
    if (d > 24.0) {
        d -= 24.0;
    }
    if (d < 0.0) {
        d += 24.0;
    }
    const ThreeParts moved = DecimalToClock(d);
    time.hour = moved.whole;
    time.minute = moved.minutes;
}

void AddDaylightHour(MoonRiseSet& times) {
    times.rise.hour = AddInt16(times.rise.hour, 1);
    times.set.hour = AddInt16(times.set.hour, 1);
}

std::string MoonRiseText(const MoonRiseSet& times) {
    return "Moon Rise at:" + ClockText(times.rise);
}

std::string MoonSetText(const MoonRiseSet& times) {
    return "Moon Set at:" + ClockText(times.set);
}

std::string MoonErrorText() {
    return GetLangString("msg", "4", "Input Error");
}

}  // namespace horavex
