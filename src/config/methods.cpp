#include "config/methods.h"

#include <algorithm>

#include "store/angle_band.h"

namespace horavex {

namespace {

// As each authority gives them out, compared in November 2026 with the tables of conventions that
// several other calculators publish.
constexpr Method kMethods[] = {
    {82, 18.0, 17.0, "Muslim World League"},
    {83, 19.5, 17.5, "Egyptian General Authority of Survey"},
    {84, 18.0, 18.0, "University of Islamic Sciences, Karachi"},
    {85, 15.0, 15.0, "Islamic Society of North America and Fiqh Council of North America"},
    {86, 20.0, 18.0, "Majlis Ugama Islam Singapura and Jabatan Kemajuan Islam Malaysia"},
    {87, 18.0, 17.5, "Ministry of Awqaf and Islamic Affairs of Kuwait"},
    {88, 16.0, 15.0, "Spiritual Administration of Muslims of Russia"},
    {89, 12.0, 12.0, "Union des organisations islamiques de France"},
};

}  // namespace

std::span<const Method> Methods() {
    return kMethods;
}

bool FitsBand(const Method& method) {
    const auto [lower, higher] = std::minmax({method.fajrAngle, method.ishaAngle});
    return lower >= AngleBand.smallest && higher <= AngleBand.largest;
}

}  // namespace horavex
