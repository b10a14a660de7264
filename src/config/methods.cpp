#include "config/methods.h"

#include <algorithm>
#include <array>

#include "config/angle_range.h"

namespace horavex {

namespace {

Method Listed(TextEntry name, const char* key) {
    const Authority& authority = *AuthorityOfKey(key);
    return {name, authority.fajrAngle, authority.ishaAngle, &authority};
}

}  // namespace

std::span<const Method> Methods() {
    static const std::array methods = {Listed(TextEntry::kMuslimWorldLeague, "mwl"),
                                       Listed(TextEntry::kEgyptianAuthority, "egypt"),
                                       Listed(TextEntry::kKarachi, "karachi"),
                                       Listed(TextEntry::kNorthAmerica, "isna"),
                                       Listed(TextEntry::kSingaporeMalaysia, "singapore"),
                                       Listed(TextEntry::kKuwait, "kuwait"),
                                       Listed(TextEntry::kRussia, "russia"),
                                       Listed(TextEntry::kFrance, "france")};
    return methods;
}

bool FitsBand(const Method& method) {
    const auto [lower, higher] = std::minmax({method.fajrAngle, method.ishaAngle});
    const AngleLimits range = AngleRange();
    return lower >= range.smallest && higher <= range.largest;
}

}  // namespace horavex
