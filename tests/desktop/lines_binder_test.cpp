#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QTextBlock>
#include <QTextEdit>
#include <QVBoxLayout>

#include "desktop/form_window/form_windows.h"
#include "forms/form.h"
#include "forms/text_box.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

class LinesForm : public Form {
public:
    LinesForm() : Form("LinesForm", {.width = 3000, .height = 6000}) {}

    TextBox text{*this, "text"};
};

/// A text box of several lines in its window; the layout gives it lines of 20 pixels.
class LinesBinderTest : public testing::Test {
protected:
    LinesBinderTest() {
        form.Show();
        Settle();
    }
    ~LinesBinderTest() override {
        form.Unload();
        Settle();
    }

    static void Fill(QWidget& window) {
        new QVBoxLayout(&window);
        auto* edit = new QTextEdit(&window);
        edit->setObjectName("text");
        edit->setReadOnly(true);
        edit->setProperty("lineHeight", 20);
        window.layout()->addWidget(edit);
    }

    static void Settle() {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QTextEdit& Edit() { return *windows.Find(&form)->findChild<QTextEdit*>("text"); }

    TestPlatform platform;
    LinesForm form;
    FormWindows windows{Layouts{{"LinesForm", Fill}}};
};

TEST_F(LinesBinderTest, ShowsTheLinesAndTheirChange) {
    form.text.SetText("one\r\ntwo\r\n");
    Settle();
    EXPECT_EQ(Edit().toPlainText(), "one\ntwo\n");
    form.text.SetText("three");
    Settle();
    EXPECT_EQ(Edit().toPlainText(), "three");
}

TEST_F(LinesBinderTest, LinesHaveTheHeightThatTheLayoutGivesThem) {
    form.text.SetText("one\r\ntwo\r\nthree\r\n");
    Settle();
    for (QTextBlock line = Edit().document()->begin(); line.isValid(); line = line.next()) {
        const QRectF place = Edit().document()->documentLayout()->blockBoundingRect(line);
        EXPECT_EQ(place.top(), 20.0 * line.blockNumber()) << line.text().toStdString();
    }
}

TEST_F(LinesBinderTest, RowsOfATableGrowWithTheTextAndTheirPicturesWithThem) {
    auto* pictures = new QWidget(windows.Find(&form));
    pictures->setObjectName("discs");
    Edit().setLineWrapMode(QTextEdit::NoWrap);
    Edit().setProperty("rows", 3);
    Edit().setProperty("rowPictures", "discs");
    form.text.SetText("one\r\ntwo\r\nthree\r\n");
    Settle();
    EXPECT_EQ(pictures->size(), QSize(20, 60));
    QFont large = Edit().font();
    large.setPointSizeF(3.0 * large.pointSizeF());
    Edit().setFont(large);
    form.text.SetText("one\r\ntwo and what a narrow box would cut off\r\nthree\r\n");
    Settle();
    const int height = Edit().fontMetrics().height();
    ASSERT_GT(height, 20);
    EXPECT_EQ(pictures->size(), QSize(height, 3 * height));
    EXPECT_GE(Edit().minimumHeight(), 3 * height);
    EXPECT_GE(Edit().minimumWidth(),
              Edit().fontMetrics().horizontalAdvance("two and what a narrow box would cut off"));
}

TEST_F(LinesBinderTest, MarksOneLineInTheColoursOfTheMoment) {
    form.text.SetText("one\r\ntwo\r\n");
    form.text.SetMarkedLine(1);
    Settle();
    ASSERT_EQ(Edit().extraSelections().size(), 1);
    const QTextEdit::ExtraSelection mark = Edit().extraSelections().first();
    EXPECT_EQ(mark.cursor.block().text(), "two");
    EXPECT_TRUE(mark.format.boolProperty(QTextFormat::FullWidthSelection));
    EXPECT_FALSE(mark.cursor.hasSelection()) << "of the text alone";
    QPalette palette;
    palette.setColor(QPalette::Highlight, Qt::red);
    Edit().setPalette(palette);
    EXPECT_EQ(Edit().extraSelections().first().format.background().color(), Qt::red);
    form.text.SetMarkedLine(-1);
    Settle();
    EXPECT_TRUE(Edit().extraSelections().isEmpty());
}

TEST_F(LinesBinderTest, SameTextLeavesTheSelectionAlone) {
    form.text.SetText("one\r\ntwo\r\n");
    Settle();
    Edit().selectAll();
    form.text.Refresh();
    Settle();
    EXPECT_TRUE(Edit().textCursor().hasSelection());
}

}  // namespace
}  // namespace horavex
