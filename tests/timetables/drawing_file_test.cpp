#include "timetables/drawing_file.h"

#include "base/bytes.h"
#include "base/fault.h"
#include "support/test_platform.h"
#include "timetables/document_tools.h"

namespace horavex {
namespace {

using testing::StartsWith;

struct DrawingFileTest : testing::Test {
    TestPlatform platform;
};

TEST_F(DrawingFileTest, KnowsItsEndingsInEitherCase) {
    EXPECT_TRUE(IsDrawingPath("/home/map.svg"));
    EXPECT_TRUE(IsDrawingPath("map.PNG"));
    EXPECT_FALSE(IsDrawingPath("map.jpg"));
    EXPECT_FALSE(IsDrawingPath("svg"));
}

TEST_F(DrawingFileTest, WritesAnSvgUnlessThePathEndsWithPng) {
    std::string png;
    InstallDocumentTools(
        {.writePng = [&](const std::string& path, const Drawing&, double, double) { png = path; }});
    WriteDrawing("/home/map.svg", {}, 150.0, 150.0);
    EXPECT_THAT(StringOf(platform.files.Contents("/home/map.svg")), StartsWith("<svg "));
    WriteDrawing("/home/map.Png", {}, 150.0, 150.0);
    EXPECT_EQ(png, "/home/map.Png");
}

TEST_F(DrawingFileTest, SaysThatAPngNeedsTheDesktop) {
    try {
        WriteDrawing("/home/map.png", {}, 150.0, 150.0);
        FAIL();
    } catch (const Fault& fault) {
        EXPECT_THAT(fault.what(), testing::HasSubstr("comes with the desktop program"));
    }
}

TEST_F(DrawingFileTest, PassesOnThatAFileCannotBeWritten) {
    platform.failingFiles.FailCall(1);
    EXPECT_THROW(WriteDrawing("/home/map.svg", {}, 150.0, 150.0), FileFault);
}

}  // namespace
}  // namespace horavex
