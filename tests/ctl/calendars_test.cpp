#include "ctl/ctl_json.h"

namespace horavex {
namespace {

TEST(CtlHijri, GivesNumbersAndTheText) {
    const Json hijri = JsonOf(Ctl(), "hijri --date 2026-11-21");
    EXPECT_THAT(KeysOf(hijri), testing::ElementsAre("day", "month", "year", "text"));
    EXPECT_EQ(hijri, Json({{"day", 11},
                           {"month", 6},
                           {"year", 1448},
                           {"text", "Saturday 11 Jamad Thani 1448 AH"}}));
}

TEST(CtlHijri, DateMayHaveZerosInFront) {
    EXPECT_EQ(JsonOf(Ctl(), "hijri --date 2026-01-02"), JsonOf(Ctl(), "hijri --date 2026-1-2"));
}

TEST(CtlHijri, SpeaksTheStoredLanguage) {
    const Ctl ctl;
    ctl.StoreRegistryValue("Language", "Arabic");
    EXPECT_EQ(JsonOf(ctl, "hijri --date 2026-11-21")["text"], "Saturday 11 جمادى الآخرة 1448 هـ");
}

TEST(CtlGregorian, GivesNumbersAndTheText) {
    EXPECT_EQ(
        JsonOf(Ctl(), "gregorian --date 1448-6-11"),
        Json(
            {{"day", 21}, {"month", 11}, {"year", 2026}, {"text", "Saturday, November 21, 2026"}}));
}

TEST(CtlGregorian, DaysOutsideTheTableAreArithmetic) {
    EXPECT_EQ(JsonOf(Ctl(), "gregorian --date 1-1-1")["text"], "Friday, July 19, 622");
}

TEST(CtlGregorian, TextForPeopleIsOneLine) {
    EXPECT_EQ(Ctl().Run("gregorian --date 1448-6-11").out, "Saturday, November 21, 2026\n");
}

}  // namespace
}  // namespace horavex
