#include "floors/moon_floor.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "moon/eclipse_terms.h"
#include "moon/eclipses.h"
#include "moon/phase_terms.h"

namespace horavex::bench {

namespace {

constexpr double kTurn = 360.0;
constexpr double kMostTurns = 1000.0;
constexpr int kTwelfths = 13;
constexpr std::string_view kMonths[] = {"January",   "February", "March",    "April",
                                        "May",       "June",     "July",     "August",
                                        "September", "October",  "November", "December"};

/// An angle on one turn, radians. A negative one of less than a turn stays negative, and of more
/// than a thousand turns a positive one loses a thousand and a negative one none.
double Radians(double degrees) {
    if (degrees > kTurn) {
        degrees -= std::min(std::floor(degrees / kTurn), kMostTurns) * kTurn;
    } else if (const double turns = std::ceil(-degrees / kTurn);
               degrees <= -kTurn && turns <= kMostTurns) {
        degrees = turns * kTurn + degrees;
    }
    return degrees * kSeriesPi / 180.0;
}

Lunation ElementsOf(double year, int twelfth, double offset) {
    const double estimate = (year + twelfth / 12.0 - 2000.0) * 12.3685;
    const double k = std::floor(estimate) + offset;
    const double T = estimate / 1236.85;
    return {k,
            T,
            2451550.09765 + 29.530588853 * k + 0.0001337 * T * T - 0.00000015 * T * T * T +
                0.00000000073 * T * T * T * T,
            1.0 - 0.002516 * T - 0.0000074 * T * T,
            Radians(2.5534 + 29.10535669 * k - 0.0000218 * T * T - 0.00000011 * T * T * T),
            Radians(201.5643 + 385.81693528 * k + 0.0107438 * T * T + 0.00001239 * T * T * T -
                    0.000000058 * T * T * T * T),
            Radians(160.7108 + 390.67050274 * k - 0.0016341 * T * T - 0.00000227 * T * T * T +
                    0.000000011 * T * T * T * T),
            Radians(124.7746 - 1.5637558 * k + 0.0020691 * T * T + 0.00000215 * T * T * T)};
}

template <std::size_t count>
double Sum(const PeriodicTerm (&terms)[count], int column, const Lunation& at, double latitude,
           double planetary) {
    const double powers[] = {1.0, at.eccentricity, at.eccentricity * at.eccentricity};
    double sum = 0.0;
    for (const PeriodicTerm& term : terms) {
        sum +=
            term.coefficients[column] * powers[term.powerOfE] *
            std::sin(term.moonAnomaly * at.moonAnomaly + term.sunAnomaly * at.sunAnomaly +
                     term.latitude * latitude + term.node * at.node + term.planetary * planetary);
    }
    return sum;
}

double Planets(const Lunation& at) {
    double sum = 0.0;
    for (int n = 0; n < kPlanetaryArguments; ++n) {
        sum += kPlanetaryCoefficients[n] *
               std::sin(Radians(kPlanetary[n].base + kPlanetary[n].rate * at.k -
                                0.009173 * at.T * at.T));
    }
    return sum;
}

double Quarter(const Lunation& at) {
    const double M = at.sunAnomaly;
    const double moon = at.moonAnomaly;
    return 0.00306 - 0.00038 * at.eccentricity * std::cos(M) + 0.00026 * std::cos(moon) -
           0.00002 * std::cos(moon - M) + 0.00002 * std::cos(moon + M) +
           0.00002 * std::cos(2.0 * at.latitude);
}

void Put(char*& at, std::string_view text) {
    std::memcpy(at, text.data(), text.size());
    at += text.size();
}

/// number: 0 to 9999.
void Put(char*& at, int number) {
    at += number < 10 ? 1 : number < 100 ? 2 : number < 1000 ? 3 : 4;
    char* digit = at;
    do {
        *--digit = static_cast<char>('0' + number % 10);
        number /= 10;
    } while (number > 0);
}

/// The date and clock of a Julian day of the Gregorian calendar.
void PutRow(char*& at, double day, double zone, std::string_view between) {
    day = std::fabs(day + std::fabs(zone) / 24.0) + 0.5;
    const double whole = std::floor(day);
    const double alpha = std::floor((whole - 1867216.25) / 36524.25);
    const double B = whole + 1.0 + alpha - std::floor(alpha / 4.0) + 1524.0;
    const double C = std::floor((B - 122.1) / 365.25);
    const double D = std::floor(365.25 * C);
    const double E = std::floor((B - D) / 30.6001);
    const int month = static_cast<int>(E < 14.0 ? E - 1.0 : E - 13.0);
    const double dayOfMonth = B - D - std::floor(30.6001 * E) + (day - whole);
    Put(at, static_cast<int>(dayOfMonth));
    Put(at, " ");
    Put(at, kMonths[month - 1]);
    Put(at, " ");
    Put(at, static_cast<int>(month > 2 ? C - 4716.0 : C - 4715.0));
    Put(at, between);
    double hours = std::fabs(zone + (dayOfMonth - std::floor(dayOfMonth)) * 24.0);
    const double minutes = std::floor((hours - std::floor(hours)) * 60.0);
    hours = hours > 24.0 ? hours - 24.0 : hours;
    Put(at, static_cast<int>(hours));
    Put(at, "hrs ");
    Put(at, static_cast<int>(minutes));
    Put(at, "min");
}

template <std::size_t count>
void PutTable(char*& at, std::int16_t year, double zone, double offset,
              const PeriodicTerm (&terms)[count], int column, double quarterSign) {
    for (int twelfth = 0; twelfth < kTwelfths; ++twelfth) {
        const Lunation moon = ElementsOf(year, twelfth, offset);
        double day = moon.day + Sum(terms, column, moon, moon.latitude, 0.0) + Planets(moon);
        if (quarterSign != 0.0) {
            day += quarterSign * Quarter(moon);
        }
        PutRow(at, day, zone, offset == 0.0 ? ", " : ",  ");
        Put(at, "\n");
    }
}

void PutEclipses(char*& at, std::int16_t year, double zone, double offset, int column,
                 double& classified) {
    for (int twelfth = 0; twelfth < kTwelfths; ++twelfth) {
        const Lunation moon = ElementsOf(year, twelfth, offset);
        if (!NearNode(std::sin(moon.latitude))) {
            continue;
        }
        const double latitude = moon.latitude - 0.02665 * std::sin(moon.node);
        if (IsListed(180.0 - moon.latitude * 180.0 / kSeriesPi)) {
            const double a1 =
                (299.77 + 0.107408 * moon.k - 0.009173 * moon.T * moon.T) * kSeriesPi / 180.0;
            PutRow(at, Sum(kEclipseTerms, column, moon, latitude, a1) + moon.day, zone, "  ,  ");
            Put(at, "\r\n");
        }
        classified += GeometryOf(moon, latitude).gamma;
    }
}

std::string_view Written(std::span<char, kMoonRoom> room, const char* end) {
    return {room.data(), static_cast<std::size_t>(end - room.data())};
}

}  // namespace

std::string_view FloorMoonTables(std::int16_t year, double zone, std::span<char, kMoonRoom> room) {
    char* at = room.data();
    PutTable(at, year, zone, 0.0, kNewAndFullMoon, 0, 0.0);
    PutTable(at, year, zone, 0.25, kQuarters, 0, 1.0);
    PutTable(at, year, zone, 0.5, kNewAndFullMoon, 1, 0.0);
    PutTable(at, year, zone, 0.75, kQuarters, 0, -1.0);
    return Written(room, at);
}

std::string_view FloorEclipseLists(std::int16_t year, double zone, std::span<char, kMoonRoom> room,
                                   double& classified) {
    char* at = room.data();
    PutEclipses(at, year, zone, 0.0, 0, classified);
    PutEclipses(at, year, zone, 0.5, 1, classified);
    return Written(room, at);
}

}  // namespace horavex::bench
