#include "config/usual_choices.h"

#include <gtest/gtest.h>

namespace horavex {
namespace {

TEST(UsualAuthority, IsThatOfTheCountry) {
    EXPECT_STREQ(UsualAuthority("Egypt").key, "egypt");
    EXPECT_STREQ(UsualAuthority("United States").key, "isna");
}

TEST(UsualAuthority, IsTheMuslimWorldLeagueWhereNoneIsKnown) {
    EXPECT_EQ(AuthorityOfCountry("Brazil"), nullptr);
    EXPECT_STREQ(UsualAuthority("Brazil").key, "mwl");
    EXPECT_STREQ(UsualAuthority("").key, "mwl");
}

TEST(AuthorityOfCountry, IsTheInverseOfTheCountriesOfEach) {
    for (const Authority& authority : Authorities()) {
        for (const std::string& country : CountriesOf(authority)) {
            EXPECT_EQ(AuthorityOfCountry(country), &authority) << country;
        }
    }
}

TEST(UsualHighLatitudeRule, IsASeventhBeyond48DegreesAndTheMiddleBelow) {
    EXPECT_EQ(UsualHighLatitudeRule(48.01), HighLatitudeRule::kSeventh);
    EXPECT_EQ(UsualHighLatitudeRule(-54.8), HighLatitudeRule::kSeventh);
    EXPECT_EQ(UsualHighLatitudeRule(48.0), HighLatitudeRule::kMiddle);
    EXPECT_EQ(UsualHighLatitudeRule(-33.9), HighLatitudeRule::kMiddle);
}

}  // namespace
}  // namespace horavex
