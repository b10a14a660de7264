#include <numbers>

#include "ctl/ctl_json.h"

namespace horavex {
namespace {

TEST(CtlQibla, ObjectHasTheAgreedKeysAndTypes) {
    const Json qibla = JsonOf(Ctl(), "qibla --latitude 30.05 --longitude 31.25");
    EXPECT_THAT(KeysOf(qibla),
                testing::ElementsAre("radians", "degrees", "whole", "minutes", "text"));
    EXPECT_TRUE(qibla["radians"].is_number_float());
    EXPECT_TRUE(qibla["degrees"].is_number_float());
    EXPECT_TRUE(qibla["whole"].is_number_integer());
    EXPECT_TRUE(qibla["minutes"].is_number_integer());
}

TEST(CtlQibla, CairoLooksSouthEast) {
    const Json qibla = JsonOf(Ctl(), "qibla --latitude 30.05 --longitude 31.25");
    EXPECT_NEAR(qibla["degrees"].get<double>(), 136.2, 0.05);
    EXPECT_NEAR(qibla["radians"].get<double>() * 180.0 / std::numbers::pi,
                qibla["degrees"].get<double>(), 1e-9);
    EXPECT_EQ(qibla["whole"], 136);
    EXPECT_EQ(qibla["minutes"], 13);
    EXPECT_EQ(qibla["text"], "Qibla: 136 degrees, 13 minutes East of North");
}

TEST(CtlQibla, PlacesEastOfMeccaHaveANegativeBearing) {
    const Json qibla = JsonOf(Ctl(), "qibla --latitude -6.21 --longitude 106.85");
    EXPECT_LT(qibla["degrees"].get<double>(), 0.0);
    EXPECT_LT(qibla["whole"].get<int>(), 0);
    EXPECT_THAT(qibla["text"].get<std::string>(), testing::EndsWith(" West of North"));
}

TEST(CtlQibla, CoordinatesAreRoundedToTheHundredth) {
    EXPECT_EQ(JsonOf(Ctl(), "qibla --latitude 30.0549 --longitude 31.2451"),
              JsonOf(Ctl(), "qibla --latitude 30.05 --longitude 31.25"));
}

TEST(CtlQibla, TextForPeopleIsTheSentence) {
    EXPECT_EQ(Ctl().Run("qibla --latitude 30.05 --longitude 31.25").out,
              "Qibla: 136 degrees, 13 minutes East of North\n");
}

}  // namespace
}  // namespace horavex
