#include "config/usual_choices.h"

#include <cmath>

namespace horavex {

namespace {

constexpr double kWhiteNights = 48.0;  // degrees; beyond, twilight of 18 degrees may last all night

}  // namespace

const Authority& UsualAuthority(std::string_view country) {
    const Authority* usual = AuthorityOfCountry(country);
    return usual != nullptr ? *usual : *AuthorityOfKey("mwl");
}

HighLatitudeRule UsualHighLatitudeRule(double latitude) {
    return std::fabs(latitude) > kWhiteNights ? HighLatitudeRule::kSeventh
                                              : HighLatitudeRule::kMiddle;
}

}  // namespace horavex
