#include "moon/eclipses.h"

#include <cmath>

#include "engine/angle.h"
#include "moon/eclipse_terms.h"

namespace horavex {

namespace {

constexpr const char* kCentral = "The Eclipse is Central";

struct Body {
    double offset;  // of the lunation number
    int column;
    MoonRows Eclipses::*rows;
    void (*classify)(const EclipseGeometry& geometry, Eclipses& eclipses);
    bool rewritesItsEntry;
};

constexpr Body kSun = {0.0, 0, &Eclipses::SolarEclipseRows, ClassifySolarEclipse, true};
constexpr Body kMoon = {0.5, 1, &Eclipses::LunarEclipseRows, ClassifyLunarEclipse, false};

double UnreducedA1(const Lunation& at) {
    return (299.77 + 0.107408 * at.k - 0.009173 * at.T * at.T) * kSeriesPi / 180.0;
}

/// Julian day of the greatest eclipse.
double InstantOf(const Body& body, const Lunation& at, double latitude) {
    const SeriesAngles angles = {at.moonAnomaly, at.sunAnomaly, latitude, at.node, UnreducedA1(at)};
    return PeriodicSum(kEclipseTerms, body.column, angles, at.eccentricity) + at.day;
}

void TakeTexts(double instant, double zone, Eclipses& eclipses) {
    const MoonDate date = MoonDateFromDay(instant, zone);
    eclipses.dateText = MoonDateText(date);
    eclipses.timeText = MoonClockText(date, zone, 0);
}

void SetShadowAndHemisphere(const EclipseGeometry& geometry, Eclipses& eclipses) {
    const double size = std::fabs(geometry.gamma);
    if ((1.0128 - geometry.u - size) / 0.545 > 0.0) {
        eclipses.EclipseShadowText = "The Eclipse was an umbral one";
    } else if ((geometry.u + 1.5573 - size) / 0.545 > 0.0) {
        eclipses.EclipseShadowText = "The Eclipse was a penumbral one";
    }
    eclipses.EclipseHemisphereText = geometry.gamma > 0.0
                                         ? "The Eclipse is visible in the Northern Hemisphere"
                                         : "The Eclipse is visible in the Southern Hemisphere";
}

/// Whether a lunation gets a row.
bool IsCandidate(const Lunation& at) {
    return NearNode(std::sin(at.latitude)) && IsListed(180.0 - at.latitude * 180.0 / kSeriesPi);
}

double CorrectedLatitude(const Lunation& at) {
    return at.latitude - 0.02665 * std::sin(at.node);
}

std::vector<double> ListedDays(const Body& body, std::int16_t year) {
    std::vector<double> days;
    for (std::size_t i = 0; i < kMoonRows; ++i) {
        const Lunation at = LunationOf(year, static_cast<std::int16_t>(i), body.offset);
        if (IsCandidate(at)) {
            days.push_back(InstantOf(body, at, CorrectedLatitude(at)));
        }
    }
    return days;
}

/// A truth value as a number takes part in a comparison.
double Truth(bool value) {
    return value ? -1.0 : 0.0;
}

/// One list in the making.
struct Listing {
    const Body& body;
    Eclipses& eclipses;
    std::int16_t year;
    double zone;

    std::string& Row(std::size_t i) const { return (eclipses.*body.rows)[i]; }

    /// Writes the row of a candidate and returns it with Crlf behind it.
    std::string ListRow(std::size_t i, double instant) const {
        TakeTexts(instant, zone, eclipses);
        Row(i) = eclipses.dateText + "  ,  " + eclipses.timeText;
        return Row(i) + Crlf;
    }

    void Classify(std::size_t i, const EclipseGeometry& geometry) const {
        body.classify(geometry, eclipses);
        if (body.rewritesItsEntry) {
            Row(i) = eclipses.dateText + "  , " + eclipses.timeText;
        }
    }

    /// Returns the row of the list, or nothing.
    std::string ListTwelfth(std::size_t i) const {
        const Lunation at = LunationOf(year, static_cast<std::int16_t>(i), body.offset);
        if (!NearNode(std::sin(at.latitude))) {
            return {};
        }
        const double latitude = CorrectedLatitude(at);
        std::string listed;
        if (IsCandidate(at)) {
            listed = ListRow(i, InstantOf(body, at, latitude));
        }
        const EclipseGeometry geometry = GeometryOf(at, latitude);
        if (IsEclipse(geometry)) {
            Classify(i, geometry);
        }
        return listed;
    }
};

std::string List(const Listing& listing) {
    ClearEclipses(listing.eclipses);
    std::string text;
    for (std::size_t i = 0; i < kMoonRows; ++i) {
        text += listing.ListTwelfth(i);
    }
    return text;
}

}  // namespace

void ClearEclipses(Eclipses& eclipses) {
    for (std::string* text :
         {&eclipses.EclipseHemisphereText, &eclipses.EclipseShadowText, &eclipses.EclipseKindText,
          &eclipses.EclipseTotalityText, &eclipses.SolarEclipseRows[0],
          &eclipses.LunarEclipseRows[0], &eclipses.dateText, &eclipses.timeText}) {
        text->clear();
    }
}

std::string ListSolarEclipses(Eclipses& eclipses, std::int16_t year, double zone) {
    return List({kSun, eclipses, year, zone});
}

std::string ListLunarEclipses(Eclipses& eclipses, std::int16_t year, double zone) {
    return List({kMoon, eclipses, year, zone});
}

std::vector<double> ListedSolarDays(std::int16_t year) {
    return ListedDays(kSun, year);
}

std::vector<double> ListedLunarDays(std::int16_t year) {
    return ListedDays(kMoon, year);
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
void ClassifySolarEclipse(const EclipseGeometry& geometry, Eclipses& eclipses) {
    if (Truth(std::fabs(geometry.gamma) > -0.9972) < 0.9972) {
        eclipses.EclipseKindText = kCentral;
    }
    SetShadowAndHemisphere(geometry, eclipses);
}

void ClassifyLunarEclipse(const EclipseGeometry& geometry, Eclipses& eclipses) {
    if (std::fabs(geometry.gamma) < 1.005) {
        eclipses.EclipseKindText = kCentral;
    } else if (geometry.u < 0.0) {
        eclipses.EclipseTotalityText = "The Eclipse is TOTAL";
    } else {
        eclipses.EclipseKindText = "The Eclipse is Partial";
    }
    SetShadowAndHemisphere(geometry, eclipses);
}

}  // namespace horavex
