#include "config/methods.h"

#include <algorithm>

#include "store/angle_band.h"

namespace horavex {

namespace {

// As each authority gives them out, compared in November 2026 with the tables of conventions that
// several other calculators publish.
constexpr Method kMethods[] = {
    {TextEntry::kMuslimWorldLeague, 18.0, 17.0, "Muslim World League"},
    {TextEntry::kEgyptianAuthority, 19.5, 17.5, "Egyptian General Authority of Survey"},
    {TextEntry::kKarachi, 18.0, 18.0, "University of Islamic Sciences, Karachi"},
    {TextEntry::kNorthAmerica, 15.0, 15.0,
     "Islamic Society of North America and Fiqh Council of North America"},
    {TextEntry::kSingaporeMalaysia, 20.0, 18.0,
     "Majlis Ugama Islam Singapura and Jabatan Kemajuan Islam Malaysia"},
    {TextEntry::kKuwait, 18.0, 17.5, "Ministry of Awqaf and Islamic Affairs of Kuwait"},
    {TextEntry::kRussia, 16.0, 15.0, "Spiritual Administration of Muslims of Russia"},
    {TextEntry::kFrance, 12.0, 12.0, "Union des organisations islamiques de France"},
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
