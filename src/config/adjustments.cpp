#include "config/adjustments.h"

#include <algorithm>

#include "base/fault.h"
#include "config/angle_range.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "store/stored_values.h"

namespace horavex {

namespace {

bool Holds(const AngleLimits& limits, double angle) {
    return angle >= limits.smallest && angle <= limits.largest;
}

}  // namespace

Adjustments AcceptedAdjustments() {
    return {ActiveSettings.FajrAngle, ActiveIshaAngle, ReadRuleOptions()};
}

void TakeMethod(const Authority& authority, Adjustments& adjustments) {
    adjustments.fajrAngle = authority.fajrAngle;
    if (authority.ishaInterval == 0) {
        adjustments.ishaAngle = authority.ishaAngle;
    }
    TakeAuthority(authority, adjustments.options);
}

bool IsMethod(const Authority& authority, const Adjustments& adjustments) {
    Adjustments byMethod = adjustments;
    TakeMethod(authority, byMethod);
    return byMethod == adjustments;
}

const Authority* MethodOf(const Adjustments& adjustments, const std::string& country) {
    const Authority* usual = AuthorityOfCountry(country);
    if (usual != nullptr && IsMethod(*usual, adjustments)) {
        return usual;
    }
    const auto all = Authorities();
    const auto fits = [&](const Authority& method) { return IsMethod(method, adjustments); };
    const auto found = std::ranges::find_if(all, fits);
    return std::ranges::count_if(all, fits) == 1 ? &*found : nullptr;
}

AngleLimits AcceptedAngleRange(HighLatitudeRule rule) {
    AngleLimits band = AngleBand;
    RunStep([&] { band = BandOf(ActiveLocation.City.Latitude, band); });
    return AngleRangeUnder(rule, band);
}

bool FitsLimits(const Authority& authority, const AngleLimits& limits) {
    const bool ishaCounts = authority.ishaInterval == 0;
    return Holds(limits, authority.fajrAngle) &&
           (!ishaCounts || Holds(limits, authority.ishaAngle));
}

}  // namespace horavex
