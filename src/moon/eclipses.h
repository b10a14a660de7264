#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "moon/lunation.h"
#include "moon/moon_date.h"

namespace horavex {

// Possible eclipses of a Gregorian year after the eclipse chapter of J. Meeus, Astronomical
// Algorithms, first edition. The lists name candidates by date and clock alone; how each eclipse
// looks is worked out too and kept in four texts that no window shows. Three things differ from the
// book on purpose: the node's correction of the argument of latitude is taken as degrees but added
// to radians; A1 is not reduced; and the distance from the node is not brought onto its nearest
// multiple of half a turn, so that nearly every lunation near a node is listed. With the book's
// forms other rows would stand in the lists: docs/accuracy.md counts those without an eclipse, and
// EclipsesTest.SolarListOf2001, LunarListOf2001 and CandidateThatMissesStaysListed hold them.

/// What the lists leave behind, and the next one finds.
struct Eclipses {
    /// Entry i belongs to the twelfth i of the year: "14 December 2001  ,  20hrs 52min". An entry
    /// stays as it was where that twelfth has no candidate; after an eclipse of the Sun was
    /// classified its entry reads "14 December 2001  , 20hrs 52min".
    MoonRows SolarEclipseRows;
    MoonRows LunarEclipseRows;

    /// What the last classified eclipse left; each text keeps its former content where the
    /// classification has nothing to say.
    std::string EclipseHemisphereText;
    std::string EclipseShadowText;
    std::string EclipseKindText;
    std::string EclipseTotalityText;

    /// Texts of the last row that was written. A solar eclipse that is classified without a row of
    /// its own takes them over into its entry.
    std::string dateText;
    std::string timeText;
};

/// Empties the texts and the first entry of both tables.
void ClearEclipses(Eclipses& eclipses);

/// Clears as above, fills the table of a Gregorian year, and returns the listed rows, each with
/// Crlf behind it. zone: whole hours, as WholeZone tells them.
std::string ListSolarEclipses(Eclipses& eclipses, std::int16_t year, double zone);
std::string ListLunarEclipses(Eclipses& eclipses, std::int16_t year, double zone);

/// The candidates that the lists of a year name, in their order: Julian days, dynamical time.
std::vector<double> ListedSolarDays(std::int16_t year);
std::vector<double> ListedLunarDays(std::int16_t year);

// The steps of one lunation.

/// False for a lunation too far from a node for any eclipse. 0.36 itself passes.
bool NearNode(double sinLatitudeArgument);

/// Whether a candidate gets its row. distance: half a turn less the argument of latitude, degrees.
bool IsListed(double distance);

/// Least distance from the Earth's axis (Moon: the shadow's) in Earth radii, north positive, and
/// the radius of the penumbra's cone, as the classification takes them.
struct EclipseGeometry {
    double gamma;
    double u;
};

/// latitude: the corrected argument of latitude, radians.
EclipseGeometry GeometryOf(const Lunation& lunation, double latitude);

/// False for a miss, which leaves the four texts alone.
bool IsEclipse(const EclipseGeometry& geometry);

/// Writes the four texts.
void ClassifySolarEclipse(const EclipseGeometry& geometry, Eclipses& eclipses);
void ClassifyLunarEclipse(const EclipseGeometry& geometry, Eclipses& eclipses);

}  // namespace horavex
