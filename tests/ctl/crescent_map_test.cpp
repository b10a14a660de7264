#include <filesystem>

#include "ctl/ctl_json.h"

namespace horavex {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kMonth = "crescent --month 9 --year 1445 --city Cairo";

class CtlCrescentMap : public testing::Test {
protected:
    Json Map(const std::string& name, const std::string& more = "") const {
        return JsonOf(ctl, kMonth + more, {"--map", ctl / name});
    }
    ProgramRun To(const std::string& path, const std::string& more = "") const {
        return ctl.Run(kMonth + more, {"--map", path});
    }

    const Ctl ctl;
};

TEST_F(CtlCrescentMap, IsOfTheEveningOnWhichTheCrescentComesIntoSight) {
    const Json month = Map("map.svg");
    EXPECT_THAT(KeysOf(month),
                ElementsAre("city", "month", "year", "newMoon", "evenings", "firstDays", "map"));
    EXPECT_EQ(month["map"]["file"], ctl / "map.svg");
    EXPECT_EQ(month["map"]["evening"], "2024-03-11");
    EXPECT_EQ(month["map"]["date"], "2024-03-11");
    EXPECT_EQ(month["map"]["criterion"], "yallop");
    const std::string svg = ContentOf(ctl / "map.svg");
    EXPECT_THAT(svg, StartsWith("<svg "));
    EXPECT_THAT(svg, HasSubstr(">Crescent on the evening of 2024-03-11, criterion of Yallop<"));
    EXPECT_THAT(svg, HasSubstr(">New moon 2024-03-10 09:00 Universal Time<"));
    EXPECT_THAT(svg, HasSubstr(">F  not visible<"));
}

TEST_F(CtlCrescentMap, IsOfTheAskedEveningAndCriterion) {
    const Json map = Map("map.svg", " --evening 2 --criterion odeh")["map"];
    EXPECT_EQ(map["evening"], "2024-03-10");
    EXPECT_EQ(map["criterion"], "odeh");
    const std::string svg = ContentOf(ctl / "map.svg");
    EXPECT_THAT(svg, HasSubstr(">Crescent on the evening of 2024-03-10, criterion of Odeh<"));
    EXPECT_THAT(svg, HasSubstr(">C  visible by optical aid alone<"));
}

TEST_F(CtlCrescentMap, IsAPngByItsName) {
    EXPECT_THAT(To(ctl / "map.PNG").out,
                HasSubstr("\nMap of the evening of 2024-03-11: " + (ctl / "map.PNG") + "\n"));
    EXPECT_THAT(ContentOf(ctl / "map.PNG"), StartsWith("\x89PNG"));
}

// The clock of Samoa counts the islands to the west of the date line; the map ends there.
TEST_F(CtlCrescentMap, IsOfTheDateOfTheSunBeyondTheDateLine) {
    const std::string line =
        "crescent --month 9 --year 1445 --latitude -13.83 --longitude -171.77 --time-zone "
        "Pacific/Apia";
    const Json month = JsonOf(ctl, line, {"--map", ctl / "map.svg"});
    EXPECT_EQ(month["map"]["evening"], "2024-03-11");
    EXPECT_EQ(month["map"]["date"], "2024-03-10");
    EXPECT_THAT(ContentOf(ctl / "map.svg"),
                HasSubstr(">Crescent on the evening of 2024-03-10, criterion of Yallop<"));
    EXPECT_THAT(ctl.Run(line, {"--map", ctl / "map.svg"}).out,
                HasSubstr("\nMap of the evening of 2024-03-11, on the map 2024-03-10: "));
}

TEST_F(CtlCrescentMap, RefusesAnotherEndingBeforeAnythingIsDone) {
    const ProgramRun run = To(ctl / "map.jpg");
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.err, HasSubstr("its name has to end with .svg or .png"));
    EXPECT_EQ(run.out, "");
    EXPECT_FALSE(fs::exists(ctl / "map.jpg"));
}

TEST_F(CtlCrescentMap, TakesItsOptionsWithAMapAlone) {
    EXPECT_EQ(ctl.Run(std::string(kMonth) + " --evening 2").status, 2);
    EXPECT_EQ(ctl.Run(std::string(kMonth) + " --criterion odeh").status, 2);
    EXPECT_EQ(To(ctl / "map.svg", " --evening 6").status, 2);
    EXPECT_EQ(To(ctl / "map.svg", " --criterion danjon").status, 2);
}

TEST_F(CtlCrescentMap, SaysThatItCannotBeWrittenAndLeavesNothing) {
    for (const char* name : {"none/map.svg", "none/map.png"}) {
        const ProgramRun run = To(ctl / name);
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err, HasSubstr(name));
    }
    EXPECT_FALSE(fs::exists(ctl / "none"));
}

TEST_F(CtlCrescentMap, ReplacesAFileWhole) {
    Map("map.svg");
    const std::string first = ContentOf(ctl / "map.svg");
    Map("map.svg", " --evening 1");
    const std::string second = ContentOf(ctl / "map.svg");
    EXPECT_NE(first, second);
    EXPECT_THAT(second, testing::EndsWith("</svg>\n"));
    int files = 0;
    for (const auto& entry : fs::directory_iterator(fs::path(ctl / "map.svg").parent_path())) {
        files += entry.path().filename().string().starts_with("map") ? 1 : 0;
    }
    EXPECT_EQ(files, 1);
}

}  // namespace
}  // namespace horavex
