// Times of the published circumstances: NASA's canons, and for places what the local tests of the
// room sky have.

#include "ctl/ctl_json.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

/// The names of the contacts, and whether the body is up at each.
std::vector<std::string> ContactNames(const Json& here) {
    std::vector<std::string> names;
    for (const Json& contact : here["contacts"]) {
        names.push_back((contact["up"] ? "+" : "-") + contact["name"].get<std::string>());
    }
    return names;
}

TEST(CtlLocalEclipses, ObjectHasTheAgreedKeys) {
    const Json year = JsonOf(Ctl(), "eclipses --local --year 2027 --city Mecca");
    EXPECT_THAT(KeysOf(year), ElementsAre("city", "year", "eclipses", "toldButNone"));
    ASSERT_EQ(year["eclipses"].size(), 5U);
    const Json& moon = year["eclipses"][1];
    EXPECT_THAT(KeysOf(moon), ElementsAre("body", "kind", "greatest", "gamma", "magnitude",
                                          "penumbralMagnitude", "told", "here"));
    const Json& sun = year["eclipses"][3];
    EXPECT_THAT(KeysOf(sun), ElementsAre("body", "kind", "greatest", "gamma", "magnitude", "place",
                                         "told", "here"));
    EXPECT_THAT(KeysOf(sun["here"]),
                ElementsAre("kind", "magnitude", "obscuration", "contacts", "seen", "best"));
    EXPECT_THAT(KeysOf(sun["here"]["seen"][0]), ElementsAre("from", "to"));
    EXPECT_THAT(KeysOf(sun["here"]["best"]), ElementsAre("at", "magnitude"));
}

TEST(CtlLocalEclipses, TellTheSunOverThePlaceOnItsClock) {
    const Json year = JsonOf(Ctl(), "eclipses --local --year 2027 --city Mecca");
    const Json& sun = year["eclipses"][3];
    EXPECT_EQ(sun["body"], "sun");
    EXPECT_EQ(sun["kind"], "total");
    EXPECT_THAT(sun["greatest"].get<std::string>(), StartsWith("2027-08-02T13:06:"));
    const Json& here = sun["here"];
    EXPECT_EQ(here["kind"], "total");
    EXPECT_EQ(here["obscuration"], 1.0);
    EXPECT_THAT(ContactNames(here),
                ElementsAre("+begin", "+fullBegin", "+greatest", "+fullEnd", "+end"));
    EXPECT_THAT(here["contacts"][1]["at"].get<std::string>(), StartsWith("2027-08-02T13:2"));
    EXPECT_EQ(here["seen"][0]["from"], here["contacts"][0]["at"]);
    EXPECT_EQ(here["best"]["at"], here["contacts"][2]["at"]);
}

TEST(CtlLocalEclipses, TellAtWhichContactsTheMoonIsUp) {
    const Json year = JsonOf(Ctl(), "eclipses --local --year 2018 --city London");
    const Json& moon = year["eclipses"][3];
    EXPECT_THAT(moon["greatest"].get<std::string>(), StartsWith("2018-07-27T21:21:"));
    EXPECT_THAT(ContactNames(moon["here"]),
                ElementsAre("-begin", "-umbralBegin", "-fullBegin", "+greatest", "+fullEnd",
                            "+umbralEnd", "+end"));
}

TEST(CtlLocalEclipses, AreNullHereWhereTheMoonPassesTheSunBy) {
    const Json year = JsonOf(Ctl(), "eclipses --local --year 2026 --city Mecca");
    EXPECT_TRUE(year["eclipses"][0]["here"].is_null());
    const Json& moon = year["eclipses"][1]["here"];
    EXPECT_TRUE(moon["seen"].empty());
    EXPECT_TRUE(moon["best"].is_null());
}

TEST(CtlLocalEclipses, MarkWhatTheToldListsLackAndWhatTheyHaveInVain) {
    const Json year = JsonOf(Ctl(), "eclipses --local --year 2027 --city Cairo");
    EXPECT_FALSE(year["eclipses"][0]["told"]);
    EXPECT_FALSE(year["eclipses"][1]["told"]);
    EXPECT_TRUE(year["eclipses"][3]["told"]);
    const Json before = JsonOf(Ctl(), "eclipses --local --year 2026 --city Cairo");
    ASSERT_EQ(before["toldButNone"].size(), 1U);
    EXPECT_EQ(before["toldButNone"][0]["body"], "sun");
    EXPECT_EQ(before["toldButNone"][0]["told"], "2026-03-19");
}

TEST(CtlLocalEclipses, TextHasWhatThePlaceSees) {
    const std::string text = Ctl().Run("eclipses --local --year 2027 --city Cairo").out;
    EXPECT_THAT(text, HasSubstr("Sun   2027-02-06 18:00  annular 0.928  (not in the told list)\n"
                                "      not seen here\n"));
    EXPECT_THAT(text, HasSubstr("Sun   2027-08-02 13:07  total 1.079\n"
                                "      here partial 0.946, 11:33 to 14:16, greatest 12:56\n"
                                "      seen 11:33 to 14:16, at most 0.946 at 12:56\n"));
    EXPECT_THAT(Ctl().Run("eclipses --local --year 2026 --city Cairo").out,
                HasSubstr("Sun   2026-03-19  none, though the told list has it\n"));
}

TEST(CtlLocalEclipses, TextOfTheMoonHasItsPhases) {
    EXPECT_THAT(Ctl().Run("eclipses --local --year 2018 --city London").out,
                HasSubstr("Moon  2018-07-27 21:22  total 1.608\n"
                          "      penumbra (18:15) to 00:29+1, umbra (19:24) to 23:19, total "
                          "(20:30) to 22:13, greatest 21:22\n"
                          "      seen 20:49 to 00:29+1, at most 1.608 at 21:22\n"));
}

std::string TextOver(int year, const std::string& latitude, const std::string& longitude) {
    return Ctl()
        .Run("eclipses --local --year " + std::to_string(year) + " --latitude " + latitude +
             " --longitude " + longitude + " --zone 0")
        .out;
}

TEST(CtlLocalEclipses, TextTellsWhatIsLeftOfThemAboveTheHorizon) {
    EXPECT_THAT(TextOver(2015, "69", "100"),
                HasSubstr("total (11:58) to (12:03), greatest (12:00)\n"
                          "      seen 12:22 to 14:59, at most 0.9"));
    EXPECT_THAT(TextOver(2026, "38", "7"),
                HasSubstr("      here total 1.030, 17:40 to (19:22), total (18:32) to (18:33), "
                          "greatest (18:32)\n"
                          "      seen 17:40 to 18:29, at most 0.950 at 18:29\n"));
    EXPECT_THAT(TextOver(2010, "62", "60"), HasSubstr(", the penumbra alone\n"));
}

TEST(CtlLocalEclipses, TextTellsBothSpansWhereTheMoonDipsOrTheSun) {
    EXPECT_THAT(TextOver(2010, "65", "45"), HasSubstr("      seen 05:29 to 07:36 and 10:28 to "
                                                      "11:04, at most 0.940 at 07:36\n"));
    EXPECT_THAT(TextOver(2011, "67", "45"), HasSubstr("      seen 20:28 to 20:38 and 21:18 to "
                                                      "22:06, at most 0.601 at 21:18\n"));
}

TEST(CtlLocalEclipses, TakeAZoneByHand) {
    const std::string point = "eclipses --local --year 2027 --latitude 21.42 --longitude 39.83";
    EXPECT_EQ(
        JsonOf(Ctl(), point + " --zone -5")["eclipses"][3]["greatest"].get<std::string>().substr(
            19),
        "-05:00");
    EXPECT_THAT(JsonOf(Ctl(), point + " --time-zone Europe/Paris")["eclipses"][3]["greatest"]
                    .get<std::string>(),
                StartsWith("2027-08-02T12:06:"));
}

}  // namespace
}  // namespace horavex
