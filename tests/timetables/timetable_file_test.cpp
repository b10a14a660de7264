#include "timetables/timetable_file.h"

#include "athan/athan_state.h"
#include "base/fault.h"
#include "timetables/sample_timetable.h"

namespace horavex {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class TimetableFileTest : public TimetableTest {
protected:
    std::string Written(TimetableFormat format) {
        WriteTimetable(format, "/home/year", PaperSize::kA4);
        return StringOf(platform.files.Contents("/home/year"));
    }
};

TEST(TimetableFormatOf, NamesAndSuffixesInAnyCase) {
    EXPECT_EQ(TimetableFormatOf("text"), TimetableFormat::kText);
    EXPECT_EQ(TimetableFormatOf("CSV"), TimetableFormat::kCsv);
    EXPECT_EQ(TimetableFormatOf("doc"), std::nullopt);
    EXPECT_EQ(TimetableFormatOfPath("/home/my.year.ICS"), TimetableFormat::kIcs);
    EXPECT_EQ(TimetableFormatOfPath("/home/year.htm"), TimetableFormat::kHtml);
    EXPECT_EQ(TimetableFormatOfPath("/home/year"), std::nullopt);
}

TEST_F(TimetableFileTest, EachFormatIsItsOwn) {
    EXPECT_THAT(Written(TimetableFormat::kText), HasSubstr("Prayer times of January 2026."));
    EXPECT_THAT(Written(TimetableFormat::kCsv), StartsWith("Date,Hijri,"));
    EXPECT_THAT(Written(TimetableFormat::kJson), StartsWith("{\"year\":2026,"));
    EXPECT_THAT(Written(TimetableFormat::kIcs), EndsWith("END:VCALENDAR\r\n"));
    EXPECT_THAT(Written(TimetableFormat::kHtml), StartsWith("<!DOCTYPE html>"));
}

TEST_F(TimetableFileTest, TextIsWholeAfterAnAlarmOrAnExportThatTheUserEnded) {
    alarmDismissed = -1;
    EXPECT_THAT(Written(TimetableFormat::kText), HasSubstr("Prayer times of December 2026."));
}

TEST_F(TimetableFileTest, AlarmThatTheUserClosesMeanwhileCutsNoText) {
    platform.loop.AtPump(100, [] { alarmDismissed = -1; });
    EXPECT_THAT(Written(TimetableFormat::kText), HasSubstr("Prayer times of December 2026."));
}

TEST_F(TimetableFileTest, WriteThatFailsKeepsTheFormerFile) {
    platform.files.WriteWhole("/home/year", BytesOf("last year's"));
    platform.loop.AtPump(100, [this] { platform.failingFiles.FailCall(1); });
    EXPECT_THROW(WriteTimetable(TimetableFormat::kText, "/home/year", PaperSize::kA4), FileFault);
    EXPECT_EQ(StringOf(platform.files.Contents("/home/year")), "last year's");
}

TEST_F(TimetableFileTest, PdfGoesToTheFrontEndWithPaperAndToday) {
    std::string seen;
    InstallDocumentTools({.writePdf = [&](const std::string& path, const PrintedYear& year) {
        seen = path + " " + std::to_string(year.table.days.size());
        EXPECT_EQ(year.paper, PaperSize::kLetter);
        EXPECT_EQ(year.today, DateSerial(2026, 11, 21));
    }});
    WriteTimetable(TimetableFormat::kPdf, "/home/year.pdf", PaperSize::kLetter);
    EXPECT_EQ(seen, "/home/year.pdf 365");
}

TEST_F(TimetableFileTest, PdfWithoutAFrontEndIsAFault) {
    EXPECT_THROW(WriteTimetable(TimetableFormat::kPdf, "/home/year.pdf", PaperSize::kA4), Fault);
    EXPECT_FALSE(platform.files.Exists("/home/year.pdf"));
}

}  // namespace
}  // namespace horavex
