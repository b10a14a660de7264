// What the help tells about the largest angles is what the built bands allow.

#include <regex>

#include "data/built_data.h"
#include "store/angle_band.h"
#include "support/run_program.h"

namespace horavex {
namespace {

struct HelpAngles : BuiltData, testing::WithParamInterface<std::string> {};

std::int16_t LargestAngleAt(int degrees) {
    AngleBand = {};
    LoadAngleBand(static_cast<std::int16_t>(degrees * 100));
    return AngleBand.largest;
}

TEST_P(HelpAngles, TableOfLatitudesTellsTheLargestAngles) {
    const std::string page =
        ContentOf(BuiltProgramFolder() + "/help/" + GetParam() + "/latitudes.html");
    const std::regex row("<td>([0-9]+) [^0-9]+ ([0-9]+)</td><td>[^<]+</td><td>([0-9]+)</td>");
    const std::vector<std::smatch> rows{std::sregex_iterator(page.begin(), page.end(), row), {}};
    EXPECT_EQ(rows.size(), 13U);
    for (const std::smatch& match : rows) {
        EXPECT_EQ(LargestAngleAt(std::stoi(match[1]) + 1), std::stoi(match[3])) << match[0];
        EXPECT_EQ(LargestAngleAt(std::stoi(match[2])), std::stoi(match[3])) << match[0];
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, HelpAngles, testing::Values("Arabic", "English"),
                         [](const auto& language) { return language.param; });

}  // namespace
}  // namespace horavex
