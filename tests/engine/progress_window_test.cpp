#include "engine/progress_window.h"

#include "support/test_platform.h"
#include "windows/f_message.h"

namespace horavex {
namespace {

TEST(ProgressWindowTest, FillsTheBarFromTheLeft) {
    TestPlatform platform;
    fMessage->Load();
    ReportProgress(25.0);
    ASSERT_EQ(fMessage->picProgress.drawing.size(), 1U);
    const auto& box = std::get<PolygonStep>(fMessage->picProgress.drawing[0]);
    EXPECT_EQ(box.fill, (Colour{250, 250, 250}));
    EXPECT_EQ(box.corners[0].x, 0.0);
    EXPECT_DOUBLE_EQ(box.corners[2].x, fMessage->picProgress.Width() / 4.0);
    EXPECT_EQ(platform.loop.Pumps(), 1);
}

TEST(ProgressWindowTest, ShowsItsTwoLinesUntilItsBlockEnds) {
    const TestPlatform platform;
    {
        const ProgressWindowCloser closer;
        ShowProgressWindow("above", "below");
        EXPECT_TRUE(fMessage->Visible());
        EXPECT_EQ(fMessage->lblMessage1.Caption(), "above");
        EXPECT_EQ(fMessage->lblMessage2.Caption(), "below");
    }
    EXPECT_FALSE(fMessage->IsLoaded());
}

}  // namespace
}  // namespace horavex
