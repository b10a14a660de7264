// Pages and pictures as the toolkit draws them.

#include <QApplication>
#include <QImage>
#include <QPicture>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QTimer>

#include "desktop/documents/month_page.h"
#include "desktop/documents/pdf_file.h"
#include "desktop/documents/usual_paper.h"
#include "desktop/printing/document_desk.h"
#include "timetables/sample_timetable.h"

namespace horavex {
namespace {

using testing::StartsWith;

class DocumentsTest : public TimetableTest {
protected:
    /// May 2026 at 96 dots an inch on paper of 600 by 800 of them.
    QImage Page(Date today) {
        const Timetable table = TakeTimetable();
        QImage page(600, 800, QImage::Format_RGB32);
        page.fill(Qt::white);
        QPainter painter(&page);
        DrawMonthPage(painter, QRectF(0, 0, 600, 800), 96.0, {table, words, today}, 5);
        return page;
    }

    static int Count(const QImage& page, const QColor& colour, int left, int right) {
        int count = 0;
        for (int y = 0; y < page.height(); ++y) {
            for (int x = left; x < right; ++x) {
                count += page.pixelColor(x, y) == colour ? 1 : 0;
            }
        }
        return count;
    }

    /// Pixels that are not paper.
    static int Ink(const QImage& page, int left, int right) {
        return (right - left) * page.height() - Count(page, Qt::white, left, right);
    }

    TimetableWords words = TakeTimetableWords();
};

const QColor kFridayShade(0xe8, 0xef, 0xf6);

TEST_F(DocumentsTest, FridaysAreShadedOverTheWholeWidth) {
    const QImage page = Page(0.0);
    EXPECT_GT(Count(page, kFridayShade, 0, 10), 5 * 10 * 10) << "five Fridays";
    EXPECT_GT(Count(page, kFridayShade, 590, 600), 5 * 10 * 10);
}

TEST_F(DocumentsTest, TodayIsFramed) {
    EXPECT_NE(Page(0.0), Page(DateSerial(2026, 5, 12)));
    EXPECT_EQ(Page(0.0), Page(DateSerial(2026, 6, 12)));
}

TEST_F(DocumentsTest, ChangeOfDaylightSavingIsMarkedAndTold) {
    const QImage before = Page(0.0);
    Daylight(122, 273);
    EXPECT_GT(Ink(Page(0.0), 0, 600), Ink(before, 0, 600));
}

TEST_F(DocumentsTest, MarkedTimesKeepToTheirColumn) {
    Oslo();
    const QImage page = Page(0.0);
    int dark = 0;
    for (int y = 0; y < page.height(); ++y) {
        dark += qGray(page.pixel(599, y)) < 120 ? 1 : 0;
    }
    EXPECT_LE(dark, 2) << "but for the rule below the heads";
}

TEST_F(DocumentsTest, LanguageFromRightToLeftBeginsAtTheRight) {
    const QImage ltr = Page(0.0);
    words.rightToLeft = true;
    const QImage rtl = Page(0.0);
    EXPECT_GT(Ink(ltr.copy(0, 0, 600, 80), 0, 100), 0);
    EXPECT_EQ(Ink(rtl.copy(0, 0, 600, 80), 0, 100), 0);
    EXPECT_GT(Ink(rtl.copy(0, 0, 600, 80), 500, 600), 0);
}

TEST(UsualPaper, IsA4WhereTheLocaleHasNoOther) {
    EXPECT_EQ(UsualPaper().id(), QPageSize::A4);
}

TEST(UsualPaper, HeightOfTheSheetTellsLetter) {
    EXPECT_EQ(PaperOfHeight(279).id(), QPageSize::Letter);
    EXPECT_EQ(PaperOfHeight(297).id(), QPageSize::A4);
}

TEST_F(DocumentsTest, PdfIsWrittenWholeThroughTheFiles) {
    const Timetable table = TakeTimetable();
    WritePdf("/home/year.pdf", {table, words, 0.0});
    EXPECT_THAT(StringOf(platform.files.Contents("/home/year.pdf")), StartsWith("%PDF-"));
}

TEST_F(DocumentsTest, RecordedPageHoldsOutlinesAndNoTextThatWouldBeLaidOutAnew) {
    const Timetable table = TakeTimetable();
    QPicture record;
    {
        QPainter painter(&record);
        DrawMonthPage(painter, QRectF(0, 0, 600, 800), 96.0, {table, words, 0.0}, 5);
    }
    const QByteArray recorded(record.data(), static_cast<qsizetype>(record.size()));
    QByteArray place;  // as the toolkit records texts
    for (const char c : std::string("Cairo")) {
        place += QByteArray(1, '\0') + QByteArray(1, c);
    }
    EXPECT_FALSE(recorded.contains(place));
    EXPECT_GT(recorded.size(), 10000);
}

TEST_F(DocumentsTest, PreviewShowsTheOnePageOfTheMonth) {
    InstallDesktopDocuments();
    const Timetable table = TakeTimetable();
    int pages = 0;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        pages = dialog->findChild<QPrintPreviewWidget*>()->pageCount();
        dialog->reject();
    });
    InstalledDocumentTools().previewMonth({table, words, 0.0}, 5);
    EXPECT_EQ(pages, 1);
}

TEST_F(DocumentsTest, PrintingAsksForThePrinterAndLetsTheUserCancel) {
    InstallDesktopDocuments();
    const Timetable table = TakeTimetable();
    bool asked = false;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        asked = true;
        dialog->reject();
    });
    InstalledDocumentTools().printMonth({table, words, 0.0}, 5);
    EXPECT_TRUE(asked);
}

TEST_F(DocumentsTest, PngHasTwicePixelsOfTheScreen) {
    InstallDesktopDocuments();
    const Drawing drawing = {
        PolygonStep{{{0.0, 0.0}, {150.0, 0.0}, {150.0, 150.0}, {0.0, 150.0}}, {255, 0, 0}}};
    InstalledDocumentTools().writePng("/home/year.png", drawing, 300.0, 150.0);
    const Bytes& bytes = platform.files.Contents("/home/year.png");
    const QImage image = QImage::fromData(bytes.data(), static_cast<int>(bytes.size()));
    EXPECT_EQ(image.size(), QSize(40, 20));
    EXPECT_EQ(image.pixelColor(10, 10), QColor(255, 0, 0));
    EXPECT_EQ(image.pixelColor(30, 10), QColor(Qt::white));
}

}  // namespace
}  // namespace horavex
