#include "desktop/form_window/tab_pages.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTabWidget>

#include "desktop/form_window/form_windows.h"
#include "support/test_platform.h"
#include "windows/horavex_main_form.h"

namespace horavex {
namespace {

/// The settings window on view, without what handlers do.
struct TabPagesTest : testing::Test {
    TabPagesTest() {
        HoravexMainForm->Show();
        QApplication::processEvents();
    }

    FormWindow& Window() { return *windows.Find(&*HoravexMainForm); }
    QTabWidget& Tabs() { return *Window().findChild<QTabWidget*>(); }

    QString FocusAfter(int key) {
        QWidget* const focus = Window().focusWidget();
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(focus == nullptr ? &Window() : focus, &press);
        QApplication::processEvents();
        EXPECT_TRUE(Window().focusWidget()->isVisible());
        return Window().focusWidget()->objectName();
    }

    /// Without the options, of whose groups the toolkit lets the key reach one.
    QStringList WalkFrom(const char* first, int key) {
        Window().findChild<QWidget*>(first)->setFocus();
        QStringList walk;
        for (QString name = FocusAfter(key); name != first && walk.size() < 60;
             name = FocusAfter(key)) {
            walk << (name.startsWith("opt") ? QStringList() : QStringList(name));
        }
        return walk;
    }

    TestPlatform platform;
    FormWindows windows{DrawnLayouts()};
};

const QStringList kInOrder = {"qt_tabwidget_tabbar",
                              "cmdChangeCity",
                              "txtTimeZone",
                              "cmdComputerZone",
                              "chkAutomaticZone",
                              "chkDayLT",
                              "hsBegin",
                              "hsEnd",
                              "cboMethod",
                              "hsDepr",
                              "hsDepr1",
                              "hsDepr2",
                              "hsDepr21",
                              "cmdAdjustments",
                              "cmdAthan",
                              "chkAlarm",
                              "hsAlarm",
                              "cmdQibla",
                              "QiblaHelpButton",
                              "lstLanguage",
                              "AboutUpdateButton",
                              "chkAddToStartup",
                              "SettingsHelp",
                              "Help",
                              "cmdDefault"};

TEST_F(TabPagesTest, TabKeyReachesEveryControlOfEveryPageInOrder) {
    EXPECT_EQ(WalkFrom("SettingsSet", Qt::Key_Tab), kInOrder);
}

TEST_F(TabPagesTest, BacktabGoesTheSameWayBack) {
    QStringList walk = WalkFrom("SettingsSet", Qt::Key_Backtab);
    std::reverse(walk.begin(), walk.end());
    EXPECT_EQ(walk, kInOrder);
}

TEST_F(TabPagesTest, FocusThatTheFormGivesShowsItsPage) {
    ASSERT_EQ(Tabs().currentIndex(), 0);
    HoravexMainForm->chkAlarm.SetFocus();
    QApplication::processEvents();
    EXPECT_EQ(Tabs().currentWidget()->objectName(), "qt_athan");
    EXPECT_EQ(Window().focusWidget()->objectName(), "chkAlarm");
}

TEST_F(TabPagesTest, TabsThatTakeTheFocusKeepIt) {
    Window().findChild<QWidget*>("SettingsSet")->setFocus();
    ASSERT_EQ(FocusAfter(Qt::Key_Tab), "qt_tabwidget_tabbar");
    EXPECT_EQ(HoravexMainForm->FocusHolder(), nullptr);
    HoravexMainForm->SetCaption("Settings of Horavex");
    QApplication::processEvents();
    EXPECT_EQ(Window().focusWidget()->objectName(), "qt_tabwidget_tabbar");
}

TEST_F(TabPagesTest, PageThatTheUserTurnsToStaysWhateverTheFormShows) {
    Window().findChild<QWidget*>("txtTimeZone")->setFocus();
    Tabs().setCurrentIndex(2);
    HoravexMainForm->SetCaption("Settings of Horavex");
    QApplication::processEvents();
    EXPECT_EQ(Tabs().currentIndex(), 2);
}

TEST_F(TabPagesTest, PageAndItsTabTurnTogetherWhateverHasTheFocus) {
    QApplication::setActiveWindow(&Window());
    Window().findChild<QWidget*>("cmdChangeCity")->setFocus();
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    Tabs().setCurrentIndex(1);
    EXPECT_EQ(Tabs().currentIndex(), 1);
    EXPECT_TRUE(Window().findChild<QWidget*>("cboMethod")->isVisible());
    EXPECT_TRUE(Window().focusWidget()->isVisible());
}

TEST_F(TabPagesTest, TitlesAreTheCaptionsOfWhatLiesOnThePage) {
    EXPECT_EQ(Tabs().tabText(1), "Method");
    HoravexMainForm->lblMethod.SetCaption("Me&thode");
    HoravexMainForm->fraLanguage.SetCaption("Sprache");
    QApplication::processEvents();
    EXPECT_EQ(Tabs().tabText(1), "Methode");
    EXPECT_EQ(Tabs().tabText(3), "Qibla, Sprache");
}

}  // namespace
}  // namespace horavex
