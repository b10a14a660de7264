#include "engine/center_on_screen.h"

#include "support/test_platform.h"

namespace horavex {
namespace {

TEST(CenterOnScreen, HalvesWhatTheFormLeavesAndKeepsItsSize) {
    TestPlatform platform;
    platform.windows.screen = {19200.0, 10800.0};
    Form form("frmAny", {.width = 5400, .height = 2101});
    CenterOnScreen(form);
    EXPECT_EQ(form.Left(), 6900.0);
    EXPECT_EQ(form.Top(), 4349.5);
    EXPECT_EQ(form.Width(), 5400.0);
    EXPECT_EQ(form.Height(), 2101.0);
}

TEST(CenterOnScreen, FormLargerThanTheScreenReachesOverAllItsEdges) {
    TestPlatform platform;
    platform.windows.screen = {4000.0, 3000.0};
    Form form("frmAny", {.width = 5000, .height = 4000});
    CenterOnScreen(form);
    EXPECT_EQ(form.Left(), -500.0);
    EXPECT_EQ(form.Top(), -500.0);
}

}  // namespace
}  // namespace horavex
