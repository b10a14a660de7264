#include "geo/distance.h"

#include <cmath>

#include "base/fault.h"
#include "base/int16.h"
#include "base/number_text.h"
#include "base/text.h"

namespace horavex {

namespace {

// To 15 figures, 3e-15 short of pi: less than a micrometre on the way around the Earth.
constexpr double kPi = 3.14159265358979;
constexpr double kEquatorialRadius = 6378.14;          // kilometres
constexpr double kFlattening = 0.0033528131778969143;  // 1 / 298.257
constexpr double kMetresPerMile = 1609.344;            // statute
constexpr double kNauticalPerStatute = 0.8689927583936801;

double Radians(double degrees) {
    return degrees * kPi / 180.0;
}

double Square(double value) {
    return std::pow(value, 2.0);
}

double ThroughText(double value) {
    return TextToNumber(NumberToText(value));
}

bool Holds(const std::string& part, const char* word) {
    return part.find(word) != std::string::npos;
}

}  // namespace

double HalfSumLat(const DistancePoints& points) {
    return Radians((points.DistanceLatA + points.DistanceLatB) / 2.0);
}

double HalfDiffLat(const DistancePoints& points) {
    return Radians((points.DistanceLatA - points.DistanceLatB) / 2.0);
}

double HalfDiffLon(const DistancePoints& points) {
    return Radians((points.DistanceLonA - points.DistanceLonB) / 2.0);
}

double AndoyerS(const DistancePoints& points) {
    return Square(std::sin(HalfDiffLat(points))) * Square(std::cos(HalfDiffLon(points))) +
           Square(std::cos(HalfSumLat(points))) * Square(std::sin(HalfDiffLon(points)));
}

double AndoyerC(const DistancePoints& points) {
    return Square(std::cos(HalfDiffLat(points))) * Square(std::cos(HalfDiffLon(points))) +
           Square(std::sin(HalfSumLat(points))) * Square(std::sin(HalfDiffLon(points)));
}

double AndoyerKilometres(double S, double C, double F, double G) {
    if (C == 0.0) {
        throw DivisionByZeroFault("the two points lie opposite each other on the equator");
    }
    const double w = std::atan(std::sqrt(S / C));
    if (w == 0.0) {
        return 0.0;
    }
    const double R = std::sqrt(S * C) / w;
    const double D = 2.0 * w * kEquatorialRadius;
    const double H1 = (3.0 * R - 1.0) / 2.0 * C;
    const double H2 = (3.0 * R + 1.0) / 2.0 * S;
    return D * (1.0 + kFlattening * H1 * Square(std::sin(F)) * Square(std::cos(G)) -
                kFlattening * H2 * Square(std::cos(F)) * Square(std::sin(G)));
}

double DistanceKilometres(const DistancePoints& points) {
    return AndoyerKilometres(AndoyerS(points), AndoyerC(points), HalfSumLat(points),
                             HalfDiffLat(points));
}

double BearingDegrees(const DistancePoints& points) {
    constexpr double kCircle = 360.0;
    const double a = Radians(points.DistanceLatA);
    const double b = Radians(points.DistanceLatB);
    const double along = Radians(points.DistanceLonB - points.DistanceLonA);
    const double east = std::sin(along) * std::cos(b);
    const double north = std::cos(a) * std::sin(b) - std::sin(a) * std::cos(b) * std::cos(along);
    const double degrees = std::atan2(east, north) * 180.0 / kPi;
    return degrees < 0.0 ? degrees + kCircle : degrees;
}

double InUnit(double kilometres, DistanceUnit unit) {
    if (unit == DistanceUnit::kKilometres) {
        return kilometres;
    }
    const double miles = kilometres * 1000.0 / kMetresPerMile;
    return unit == DistanceUnit::kMiles ? miles : miles * kNauticalPerStatute;
}

std::string UnitName(DistanceUnit unit) {
    switch (unit) {
        case DistanceUnit::kKilometres:
            return "Kilometers";
        case DistanceUnit::kMiles:
            return "Miles";
        case DistanceUnit::kNauticalMiles:
            break;
    }
    return "Nautical Miles";
}

double ReadCoordinate(const CoordinateTexts& texts) {
    return TextToNumber(texts.degrees) + ThroughText(TextToNumber(texts.minutes) / 60.0) +
           ThroughText(TextToNumber(texts.seconds) / 3600.0);
}

CoordinateFields ParseCoordinates(const std::string& text) {
    CoordinateFields fields;
    const auto parts = Split(AsciiLower(text), ' ');
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const std::string before = i == 0 ? std::string() : parts[i - 1];
        if (Holds(parts[i], "degrees")) {
            fields.degrees = RoundToInt16(TextToNumber(before));
        } else if (Holds(parts[i], "minutes")) {
            fields.minutes = RoundToInt16(TextToNumber(before));
        } else if (Holds(parts[i], "seconds")) {
            fields.seconds = RoundToInt16(TextToNumber(before));
        }
        for (const char* hemisphere : {"east", "west", "north", "south"}) {
            if (Holds(parts[i], hemisphere)) {
                fields.hemisphere = hemisphere;
            }
        }
    }
    return fields;
}

}  // namespace horavex
