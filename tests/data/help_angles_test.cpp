// What the help tells about the largest angles is what the built bands allow.

#include <regex>

#include "data/built_data.h"
#include "store/angle_band.h"
#include "support/run_program.h"

namespace horavex {
namespace {

/// One language's table: its columns stand in the order in which it is read, from the left in the
/// file.
struct AngleTable {
    std::string language;
    std::string row;
    std::size_t from, to, largest;  // groups of the row
};

struct HelpAngles : BuiltData, testing::WithParamInterface<AngleTable> {};

std::int16_t LargestAngleAt(int degrees) {
    AngleBand = {};
    LoadAngleBand(static_cast<std::int16_t>(degrees * 100));
    return AngleBand.largest;
}

TEST_P(HelpAngles, TableOfLatitudesTellsTheLargestAngles) {
    const auto& [language, pattern, from, to, largest] = GetParam();
    const std::string page =
        ContentOf(BuiltProgramFolder() + "/help/" + language + "/latitudes.html");
    const std::regex row(pattern);
    const std::vector<std::smatch> rows{std::sregex_iterator(page.begin(), page.end(), row), {}};
    EXPECT_EQ(rows.size(), 13U);
    for (const std::smatch& match : rows) {
        const int angle = std::stoi(match[largest]);
        EXPECT_EQ(LargestAngleAt(std::stoi(match[from]) + 1), angle) << match[0];
        EXPECT_EQ(LargestAngleAt(std::stoi(match[to])), angle) << match[0];
    }
}

constexpr const char* kFromTheLeft =
    "<td>([0-9]+)[^0-9<]+([0-9]+)</td><td>[^<]+</td><td>([0-9]+)</td>";
constexpr const char* kFromTheRight = "<td>([0-9]+)</td><td>[^<]+</td><td>([0-9]+) – ([0-9]+)</td>";

INSTANTIATE_TEST_SUITE_P(Languages, HelpAngles,
                         testing::Values(AngleTable{"English", kFromTheLeft, 1, 2, 3},
                                         AngleTable{"Bengali", kFromTheLeft, 1, 2, 3},
                                         AngleTable{"French", kFromTheLeft, 1, 2, 3},
                                         AngleTable{"German", kFromTheLeft, 1, 2, 3},
                                         AngleTable{"Indonesian", kFromTheLeft, 1, 2, 3},
                                         AngleTable{"Spanish", kFromTheLeft, 1, 2, 3},
                                         AngleTable{"Turkish", kFromTheLeft, 1, 2, 3},
                                         AngleTable{"Arabic", kFromTheRight, 2, 3, 1},
                                         AngleTable{"Urdu", kFromTheRight, 2, 3, 1}),
                         [](const auto& table) { return table.param.language; });

}  // namespace
}  // namespace horavex
