#pragma once

#include <cstdint>
#include <string>

namespace horavex {

// Distance on the ellipsoid after Andoyer and Lambert (equatorial radius 6378.14 km, flattening
// 1/298.257), with one departure that is kept: the two terms of the flattening are multiplied by
// the sums C and S where the method divides by them. Accuracy: within one part in 300.

/// The two points, degrees, north and east positive.
struct DistancePoints {
    double DistanceLatA;
    double DistanceLonA;
    double DistanceLatB;
    double DistanceLonB;
};

/// Half the sum and half the differences of the coordinates, radians.
double HalfSumLat(const DistancePoints& points);
double HalfDiffLat(const DistancePoints& points);
double HalfDiffLon(const DistancePoints& points);

/// sin(G)^2 cos(L)^2 + cos(F)^2 sin(L)^2 and cos(G)^2 cos(L)^2 + sin(F)^2 sin(L)^2, of half the
/// sum F and half the differences G and L.
double AndoyerS(const DistancePoints& points);
double AndoyerC(const DistancePoints& points);

/// Kilometres of the two sums and of F and G; 0 for two equal points. Throws DivisionByZeroFault
/// for a C of 0, two points opposite each other on the equator.
double AndoyerKilometres(double S, double C, double F, double G);

/// Kilometres between the two points. Throws as above.
double DistanceKilometres(const DistancePoints& points);

/// The direction of the great circle from the first point to the second, degrees clockwise from
/// north, [0, 360).
double BearingDegrees(const DistancePoints& points);

enum class DistanceUnit { kKilometres, kMiles, kNauticalMiles };

/// Kilometres in a unit: statute miles of 1609.344 metres, and 0.8689927583936801 of these for a
/// nautical mile, a factor a little off 1609.344 / 1852 that is kept.
double InUnit(double kilometres, DistanceUnit unit);

/// "Kilometers", "Miles", "Nautical Miles".
std::string UnitName(DistanceUnit unit);

/// One coordinate in texts as the boxes of the distance window hold it.
struct CoordinateTexts {
    std::string degrees;
    std::string minutes;
    std::string seconds;
};

/// Degrees, each quotient of minutes and seconds cut to the 15 digits that a text holds. Throws
/// TypeMismatchFault for a text that is no number.
double ReadCoordinate(const CoordinateTexts& texts);

/// What is found in the text of a coordinate, "Latitude: 30 degrees, 3 minutes North".
struct CoordinateFields {
    std::int16_t degrees = 0;
    std::int16_t minutes = 0;
    std::int16_t seconds = 0;
    std::string hemisphere;  // "north", "south", "east" or "west"; empty for none
};

/// Goes by the English words; a field whose word is missing stays 0, and so it does where the text
/// is in another language. Throws TypeMismatchFault for a word in the place of a number.
CoordinateFields ParseCoordinates(const std::string& text);

/// Mecca as the distance window knows it, 21 degrees 25 minutes north and 39 degrees 49 minutes
/// east: rounded to the minute, and so a little off the place that the qibla points at.
inline const CoordinateTexts kMeccaLatitudeTexts = {"21", "25", "0"};
inline const CoordinateTexts kMeccaLongitudeTexts = {"39", "49", "0"};

}  // namespace horavex
