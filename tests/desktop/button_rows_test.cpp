#include "desktop/form_window/button_rows.h"

#include <QHBoxLayout>
#include <QPushButton>

#include "desktop/form_window/form_windows.h"
#include "support/test_platform.h"
#include "windows/frm_date_convert.h"

namespace horavex {
namespace {

/// A row of two groups of buttons with a space between them.
struct ButtonRowsTest : testing::Test {
    ButtonRowsTest() {
        auto* row = new QHBoxLayout(&window);
        row->addWidget(&help);
        row->addWidget(&index);
        row->addStretch();
        row->addWidget(&set);
        row->addWidget(&close);
        window.resize(1000, 40);
    }

    QWidget window;
    QPushButton help{"A help on all of the settings"};
    QPushButton index{"Index"};
    QPushButton set{"Take over"};
    QPushButton close{"Close"};
};

TEST_F(ButtonRowsTest, ButtonsOfARowHaveOneWidth) {
    EvenButtonRows(window);
    for (const QPushButton* button : {&help, &index, &set, &close}) {
        EXPECT_EQ(button->minimumWidth(), help.sizeHint().width());
    }
}

TEST_F(ButtonRowsTest, ThoseThatStandTogetherHaveOneWhereTheWindowIsNarrow) {
    window.resize(400, 40);
    EvenButtonRows(window);
    EXPECT_EQ(index.minimumWidth(), help.sizeHint().width());
    EXPECT_LT(set.sizeHint().width(), help.sizeHint().width());
    EXPECT_EQ(close.minimumWidth(), set.sizeHint().width());
}

TEST_F(ButtonRowsTest, ShorterWordsMakeThemNarrowAgain) {
    EvenButtonRows(window);
    help.setText("Help");
    EvenButtonRows(window);
    EXPECT_EQ(index.minimumWidth(), std::max(set.sizeHint().width(), help.sizeHint().width()));
}

TEST(ButtonRows, WindowsOfFormsHaveEvenOnes) {
    const TestPlatform platform;
    FormWindows windows{DrawnLayouts()};
    frmDateConvert->Show();
    frmDateConvert->TodaysDate.SetCaption("The date of this very day");
    QApplication::processEvents();
    const QWidget& window = *windows.Find(&*frmDateConvert);
    EXPECT_EQ(window.findChild<QPushButton*>("cmdConvert")->width(),
              window.findChild<QPushButton*>("TodaysDate")->width());
    frmDateConvert->Unload();
}

}  // namespace
}  // namespace horavex
