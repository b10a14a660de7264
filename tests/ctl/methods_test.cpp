#include "ctl/ctl_json.h"

namespace horavex {
namespace {

/// The method of a key; null for none.
Json MethodOf(const Json& methods, const std::string& key) {
    for (const Json& method : methods) {
        if (method["key"] == key) {
            return method;
        }
    }
    return nullptr;
}

TEST(CtlMethods, EachHasTheAgreedKeysAndTypes) {
    const Json methods = JsonOf(Ctl(), "methods");
    ASSERT_GE(methods.size(), 25U);
    for (const Json& method : methods) {
        EXPECT_THAT(KeysOf(method),
                    testing::ElementsAre("key", "name", "fajrAngle", "ishaAngle", "ishaInterval",
                                         "ishaIntervalRamadan", "maghribAngle", "offsets",
                                         "asrRatio", "countries", "source"));
        EXPECT_THAT(KeysOf(method["offsets"]),
                    testing::ElementsAre("Fajr", "Shurooq", "Zuhr", "Asr", "Maghrib", "Isha"));
        EXPECT_TRUE(method["countries"].is_array());
        EXPECT_NE(method["source"], "");
    }
}

TEST(CtlMethods, IshaByAnAngleHasNoInterval) {
    const Json turkey = MethodOf(JsonOf(Ctl(), "methods"), "turkey");
    EXPECT_EQ(turkey["fajrAngle"], 18.0);
    EXPECT_EQ(turkey["ishaAngle"], 17.0);
    EXPECT_EQ(turkey["ishaInterval"], 0);
    EXPECT_EQ(turkey["ishaIntervalRamadan"], 0);
    EXPECT_EQ(turkey["countries"], Json::array({"Turkey"}));
    EXPECT_EQ(
        turkey["offsets"],
        Json({{"Fajr", 0}, {"Shurooq", -7}, {"Zuhr", 5}, {"Asr", 4}, {"Maghrib", 7}, {"Isha", 0}}));
}

TEST(CtlMethods, IshaByAnIntervalHasNoAngle) {
    const Json mecca = MethodOf(JsonOf(Ctl(), "methods"), "umm-al-qura");
    EXPECT_EQ(mecca["fajrAngle"], 18.5);
    EXPECT_EQ(mecca["ishaAngle"], nullptr);
    EXPECT_EQ(mecca["ishaInterval"], 90);
    EXPECT_EQ(mecca["ishaIntervalRamadan"], 120);
}

TEST(CtlMethods, TextTellsFiguresCountriesAndSource) {
    const ProgramRun run = Ctl().Run("methods");
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out,
                testing::HasSubstr("tehran\tInstitute of Geophysics, University of Tehran\n"
                                   "\tFajr 17.7°, Isha 14°, Maghrib 4.5°\n"
                                   "\tusual in Iran\n"
                                   "\tPray Times, Calculation Methods, http://"));
    EXPECT_THAT(run.out, testing::HasSubstr("Isha 90 min (Ramadan 120 min)\n"));
    EXPECT_THAT(run.out,
                testing::HasSubstr("\tFajr 20°, Isha 18°, Asr ratio 1, Fajr +2 min, "
                                   "Shurooq -2 min, Zuhr +3 min, Asr +2 min, Maghrib +2 min, "
                                   "Isha +2 min\n"));
}

}  // namespace
}  // namespace horavex
