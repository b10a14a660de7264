#include "moon/eclipses.h"

#include <cmath>

#include "base/program_state.h"
#include "engine/angle.h"
#include "moon/periodic_sum.h"

namespace horavex {

MoonRows SolarEclipseRows;
MoonRows LunarEclipseRows;
std::string EclipseHemisphereText;
std::string EclipseShadowText;
std::string EclipseKindText;
std::string EclipseTotalityText;

namespace {

// The series carries a pi of its own.
constexpr double kPi = 3.14159265358979;

constexpr const char* kCentral = "The Eclipse is Central";

/// Texts of the last row that was written. A solar eclipse that is classified without a row of its
/// own takes them over into its entry.
std::string dateText;
std::string timeText;

const ProgramStateReset reset([] {
    SolarEclipseRows.fill("");
    LunarEclipseRows.fill("");
    ClearEclipses();
});

// Multiples of M', M, the corrected F, O and A1; the power of E; column 0 the Sun, 1 the Moon.
constexpr PeriodicTerm kTerms[] = {
    {1, 0, 0, 0, 0, 0, {-0.4075, -0.4065}},  {0, 1, 0, 0, 0, 1, {0.1721, 0.1727}},
    {2, 0, 0, 0, 0, 0, {0.0161, 0.0161}},    {0, 0, 2, 0, 0, 0, {-0.0097, -0.0097}},
    {1, -1, 0, 0, 0, 1, {0.0073, 0.0073}},   {1, 1, 0, 0, 0, 1, {-0.005, -0.005}},
    {1, 0, -2, 0, 0, 0, {-0.0023, -0.0023}}, {0, 2, 0, 0, 0, 1, {0.0021, 0.0021}},
    {1, 0, 2, 0, 0, 0, {0.0012, 0.0012}},    {2, 1, 0, 0, 0, 1, {0.0006, 0.0006}},
    {3, 0, 0, 0, 0, 0, {-0.0004, -0.0004}},  {0, 1, 2, 0, 0, 1, {-0.0003, -0.0003}},
    {0, 0, 0, 0, 1, 0, {0.0003, 0.0003}},    {0, 1, -2, 0, 0, 1, {-0.0002, -0.0002}},
    {2, -1, 0, 0, 0, 1, {-0.0002, -0.0002}}, {0, 0, 0, 1, 0, 0, {-0.0002, -0.0002}},
};

struct Body {
    double offset;  // of the lunation number
    int column;
    MoonRows& rows;
    void (*classify)(const EclipseGeometry&);
    bool rewritesItsEntry;
};

double UnreducedA1(const Lunation& at) {
    return (299.77 + 0.107408 * at.k - 0.009173 * at.T * at.T) * kPi / 180.0;
}

/// Julian day of the greatest eclipse.
double InstantOf(const Body& body, const Lunation& at, double latitude) {
    const SeriesAngles angles = {at.moonAnomaly, at.sunAnomaly, latitude, at.node, UnreducedA1(at)};
    return PeriodicSum(kTerms, body.column, angles, at.eccentricity) + at.day;
}

void TakeTexts(double instant) {
    MoonDateFromDay(instant);
    dateText = MoonDateText();
    timeText = MoonClockText(0);
}

void SetShadowAndHemisphere(const EclipseGeometry& geometry) {
    const double size = std::fabs(geometry.gamma);
    if ((1.0128 - geometry.u - size) / 0.545 > 0.0) {
        EclipseShadowText = "The Eclipse was an umbral one";
    } else if ((geometry.u + 1.5573 - size) / 0.545 > 0.0) {
        EclipseShadowText = "The Eclipse was a penumbral one";
    }
    EclipseHemisphereText = geometry.gamma > 0.0
                                ? "The Eclipse is visible in the Northern Hemisphere"
                                : "The Eclipse is visible in the Southern Hemisphere";
}

/// A truth value as a number takes part in a comparison.
double Truth(bool value) {
    return value ? -1.0 : 0.0;
}

/// Returns the row of the list, with Crlf behind it, or nothing.
std::string ListTwelfth(const Body& body, std::int16_t year, std::size_t i) {
    const Lunation at = LunationOf(year, static_cast<std::int16_t>(i), body.offset);
    if (!NearNode(std::sin(at.latitude))) {
        return {};
    }
    const double latitude = at.latitude - 0.02665 * std::sin(at.node);
    std::string listed;
    if (IsListed(180.0 - at.latitude * 180.0 / kPi)) {
        TakeTexts(InstantOf(body, at, latitude));
        body.rows[i] = dateText + "  ,  " + timeText;
        listed = body.rows[i] + Crlf;
    }
    const EclipseGeometry geometry = GeometryOf(at, latitude);
    if (IsEclipse(geometry)) {
        body.classify(geometry);
        if (body.rewritesItsEntry) {
            body.rows[i] = dateText + "  , " + timeText;
        }
    }
    return listed;
}

std::string List(const Body& body) {
    ClearEclipses();
    const std::int16_t year = PresentYear();
    std::string text;
    for (std::size_t i = 0; i < kMoonRows; ++i) {
        text += ListTwelfth(body, year, i);
    }
    return text;
}

}  // namespace

void ClearEclipses() {
    for (std::string* text :
         {&EclipseHemisphereText, &EclipseShadowText, &EclipseKindText, &EclipseTotalityText,
          &SolarEclipseRows[0], &LunarEclipseRows[0], &dateText, &timeText}) {
        text->clear();
    }
    ClearMoonDate();
}

std::string ListSolarEclipses() {
    return List({0.0, 0, SolarEclipseRows, ClassifySolarEclipse, true});
}

std::string ListLunarEclipses() {
    return List({0.5, 1, LunarEclipseRows, ClassifyLunarEclipse, false});
}

bool NearNode(double sinLatitudeArgument) {
    return std::fabs(sinLatitudeArgument) <= 0.36;
}

bool IsListed(double distance) {
    return distance <= 13.9 || distance >= 21.0;
}

EclipseGeometry GeometryOf(const Lunation& at, double latitude) {
    const double E = at.eccentricity;
    const double M = at.sunAnomaly;
    const double moon = at.moonAnomaly;
    const double P = 0.207 * E * std::sin(M) + 0.0024 * E * std::sin(2.0 * M) -
                     0.0392 * std::sin(moon) + 0.0116 * std::sin(2.0 * moon) -
                     0.0073 * E * std::sin(M + moon) + 0.0067 * E * std::sin(moon - M) +
                     0.0118 * std::sin(2.0 * latitude);
    const double Q = 5.2207 - 0.0048 * E * std::cos(M) + 0.002 * E * std::cos(2.0 * M) -
                     0.3299 * std::cos(moon) - 0.006 * E * std::cos(M + moon) +
                     0.0041 * E * std::cos(moon - M);
    const double W = std::fabs(std::cos(latitude));
    const double u = 0.0059 + 0.0046 * E * std::cos(M) - 0.0182 * std::cos(moon) +
                     0.0004 * std::cos(2.0 * moon) - 0.0005 * std::cos(M + moon);
    return {(P * std::cos(latitude) + Q * std::sin(latitude)) * (1.0 - 0.0048 * W), u};
}

bool IsEclipse(const EclipseGeometry& geometry) {
    return 1.5433 + geometry.u >= std::fabs(geometry.gamma);
}

// The range test is a chain of two comparisons: the truth value of the first goes into the second.
// It holds for every gamma, so that each eclipse of the Sun counts as central and none as total,
// annular or partial.
void ClassifySolarEclipse(const EclipseGeometry& geometry) {
    if (Truth(std::fabs(geometry.gamma) > -0.9972) < 0.9972) {
        EclipseKindText = kCentral;
    }
    SetShadowAndHemisphere(geometry);
}

void ClassifyLunarEclipse(const EclipseGeometry& geometry) {
    if (std::fabs(geometry.gamma) < 1.005) {
        EclipseKindText = kCentral;
    } else if (geometry.u < 0.0) {
        EclipseTotalityText = "The Eclipse is TOTAL";
    } else {
        EclipseKindText = "The Eclipse is Partial";
    }
    SetShadowAndHemisphere(geometry);
}

}  // namespace horavex
