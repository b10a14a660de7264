#include "ctl/ctl_json.h"

namespace horavex {
namespace {

Json Distance(const std::string& from, const std::string& to, const std::string& unit) {
    return JsonOf(Ctl(), "distance --from " + from + " --to " + to + " --unit " + unit);
}

TEST(CtlDistance, GivesTheValueAndItsUnit) {
    const Json distance = Distance("0:0:0N,0:0:0E", "0:0:0N,1:0:0E", "km");
    EXPECT_THAT(KeysOf(distance), testing::ElementsAre("value", "unit"));
    EXPECT_NEAR(distance["value"].get<double>(), 111.3195, 1e-3);
    EXPECT_EQ(distance["unit"], "km");
}

TEST(CtlDistance, EqualPointsGiveZero) {
    EXPECT_EQ(Distance("30:3:0N,31:15:0E", "30:3:0N,31:15:0E", "mi")["value"], 0.0);
}

TEST(CtlDistance, UnitsDifferByTheirFactors) {
    const std::string from = "30:3:0N,31:15:0E";
    const double kilometres = Distance(from, "mecca", "km")["value"];
    const double miles = Distance(from, "mecca", "mi")["value"];
    EXPECT_DOUBLE_EQ(miles, kilometres * 1000.0 / 1609.344);
    EXPECT_DOUBLE_EQ(Distance(from, "mecca", "nmi")["value"].get<double>(),
                     miles * 0.8689927583936801);
}

TEST(CtlDistance, MeccaIsTheRoundedPlaceOfTheWindow) {
    EXPECT_EQ(Distance("30:3:0N,31:15:0E", "mecca", "km"),
              Distance("30:3:0N,31:15:0E", "21:25:0N,39:49:0E", "km"));
}

TEST(CtlDistance, HemispheresCount) {
    EXPECT_GT(Distance("30:0:0N,31:0:0E", "30:0:0S,31:0:0E", "km")["value"].get<double>(), 6000.0);
    EXPECT_GT(Distance("30:0:0N,31:0:0E", "30:0:0N,31:0:0W", "km")["value"].get<double>(), 5000.0);
}

TEST(CtlDistance, SecondsMayBeLeftOutOrHaveAFraction) {
    EXPECT_EQ(Distance("30:3N,31:15E", "mecca", "km"), Distance("30:3:0N,31:15:0E", "mecca", "km"));
    EXPECT_NE(Distance("30:3:0.5N,31:15E", "mecca", "km"), Distance("30:3N,31:15E", "mecca", "km"));
}

TEST(CtlDistance, TextForPeopleNamesTheUnit) {
    EXPECT_THAT(Ctl().Run("distance --from 0:0N,0:0E --to 0:0N,1:0E --unit nmi").out,
                testing::MatchesRegex("60\\.[0-9]+ Nautical Miles\n"));
}

}  // namespace
}  // namespace horavex
