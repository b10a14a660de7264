#include <gtest/gtest.h>

#include <tuple>

#include "e2e/harness/test_desktop.h"
#include "e2e/harness/wait_until.h"
#include "support/shipped_languages.h"

namespace horavex {
namespace {

/// The face in a language, at a scale of the screen.
class FaceLanguagesTest : public testing::TestWithParam<std::tuple<std::string, int>> {
protected:
    FaceLanguagesTest() {
        desktop.StoreRegistryValue("Language", language);
        desktop.variables["QT_SCALE_FACTOR"] = std::to_string(scale);
    }

    const std::string language = std::get<0>(GetParam());
    const int scale = std::get<1>(GetParam());
    TestDesktop desktop;
};

TEST_P(FaceLanguagesTest, FaceFillsItsWindowWithinASecond) {
    const ChildProcess program = desktop.Start("horavex");
    const std::string face = desktop.WaitForWindow(program, "Horavex");
    const std::string empty = desktop.Fingerprint();
    EXPECT_TRUE(WaitUntil("a filled face", [&] { return desktop.Fingerprint() != empty; }));
    EXPECT_EQ(desktop.PlaceOf(face).width, 420 * scale);
    desktop.SaveScreen("face-" + language + "-" + std::to_string(scale) + "x");
}

INSTANTIATE_TEST_SUITE_P(All, FaceLanguagesTest,
                         testing::Combine(testing::ValuesIn(kShippedLanguages),
                                          testing::Values(1, 2)),
                         [](const auto& test) {
                             return std::get<0>(test.param) +
                                    std::to_string(std::get<1>(test.param)) + "x";
                         });

}  // namespace
}  // namespace horavex
