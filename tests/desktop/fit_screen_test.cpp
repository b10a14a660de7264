#include "desktop/form_window/fit_screen.h"

#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include "desktop/form_window_fixture.h"
#include "windows/horavex_main_form.h"

namespace horavex {
namespace {

constexpr QRect kArea(100, 30, 1000, 700);  // beside a panel and below another
constexpr QMargins kFrame(4, 24, 4, 6);

TEST(PutInto, LeavesAWindowAloneThatFits) {
    const QRect window(120, 50, 500, 400);
    EXPECT_EQ(PutInto(kArea, window, kFrame), window);
}

TEST(PutInto, CutsAWindowToTheAreaLessItsFrame) {
    EXPECT_EQ(PutInto(kArea, {200, 200, 1500, 900}, kFrame), QRect(100, 30, 992, 670));
}

TEST(PutInto, MovesAWindowInsideWithItsFrame) {
    EXPECT_EQ(PutInto(kArea, {0, -40, 500, 400}, kFrame).topLeft(), QPoint(100, 30));
    EXPECT_EQ(PutInto(kArea, {900, 600, 500, 400}, kFrame), QRect(592, 300, 500, 400));
}

TEST(WholeSize, CountsWhatScrolls) {
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* area = new QScrollArea;
    layout->addWidget(area);
    auto* content = new QLabel;
    content->setMinimumSize(700, 900);
    area->setWidget(content);
    EXPECT_LT(window.minimumSizeHint().height(), 300);
    const QSize whole = WholeSize(window);
    EXPECT_GE(whole.width(), 700);
    EXPECT_GE(whole.height(), 900);
    EXPECT_LT(window.minimumSizeHint().height(), 300) << "it can still be made smaller";
}

TEST(WholeSize, LeavesAWindowOfPagesBehindTabsFreeToBeSmaller) {
    const TestPlatform platform;
    const FormWindows windows{DrawnLayouts()};
    HoravexMainForm->Load();
    FormWindow& window = *windows.Find(&*HoravexMainForm);
    window.Flush();
    EXPECT_GT(WholeSize(window).height(), 350);
    window.resize(600, 300);
    window.show();
    QApplication::processEvents();
    EXPECT_EQ(window.size(), QSize(600, 300));
}

TEST_F(FormWindowTest, ComesUpInsideTheWorkArea) {
    form.SetWidth(60000);
    form.SetHeight(60000);
    form.SetLeft(15000);
    form.SetTop(-3000);
    Show();
    const QRect area = Window().screen()->availableGeometry();
    EXPECT_TRUE(area.contains(Window().frameGeometry()));
    EXPECT_GT(Window().height(), area.height() - 60);
}

}  // namespace
}  // namespace horavex
