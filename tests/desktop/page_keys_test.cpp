#include "desktop/form_window/page_keys.h"

#include <QPushButton>
#include <QTabWidget>
#include <QWindow>

#include "desktop/form_window/form_windows.h"
#include "support/test_platform.h"
#include "windows/horavex_main_form.h"

// The toolkit's own way for tests to press a key as the screen's server does.
Q_GUI_EXPORT bool qt_handleKeyEvent(QWindow* window, QEvent::Type type, int key,
                                    Qt::KeyboardModifiers held, const QString& text, bool repeated,
                                    ushort count);

namespace horavex {
namespace {

void PressWithAlt(const QWidget& window, Qt::Key key) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        qt_handleKeyEvent(window.windowHandle(), type, key, Qt::AltModifier, QString(), false, 1);
    }
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// The settings window on view, without what handlers do.
struct SettingsKeysTest : testing::Test {
    SettingsKeysTest() {
        HoravexMainForm->Show();
        QApplication::processEvents();
        QApplication::setActiveWindow(&Window());
        for (auto* button : Window().findChildren<QPushButton*>()) {
            QObject::connect(button, &QPushButton::pressed, &Window(), [this, button] {
                pressed += button->objectName().toStdString() + " ";
            });
        }
    }

    FormWindow& Window() { return *windows.Find(&*HoravexMainForm); }
    QTabWidget& Tabs() { return *Window().findChild<QTabWidget*>(); }

    /// What has the focus after the key was pressed while the page was in front.
    std::string ReachedFrom(int page, Qt::Key key) {
        Tabs().setCurrentIndex(page);
        PressWithAlt(Window(), key);
        EXPECT_TRUE(Window().focusWidget()->isVisible());
        return Window().focusWidget()->objectName().toStdString();
    }

    TestPlatform platform;
    FormWindows windows{DrawnLayouts()};
    std::string pressed;
};

TEST_F(SettingsKeysTest, KeyOfAnotherPageShowsItAndPressesItsButton) {
    EXPECT_EQ(ReachedFrom(3, Qt::Key_C), "cmdChangeCity");
    EXPECT_EQ(ReachedFrom(1, Qt::Key_Z), "cmdComputerZone");
    EXPECT_EQ(ReachedFrom(0, Qt::Key_J), "cmdAdjustments");
    EXPECT_EQ(ReachedFrom(0, Qt::Key_A), "cmdAthan");
    EXPECT_EQ(ReachedFrom(0, Qt::Key_Q), "cmdQibla");
    EXPECT_EQ(pressed, "cmdChangeCity cmdComputerZone cmdAdjustments cmdAthan cmdQibla ");
}

TEST_F(SettingsKeysTest, KeyOfALabelOnAnotherPageGivesTheFocusToWhatItStandsBefore) {
    EXPECT_EQ(ReachedFrom(0, Qt::Key_M), "cboMethod");
    EXPECT_EQ(ReachedFrom(2, Qt::Key_M), "cboMethod");
}

TEST_F(SettingsKeysTest, CaptionsOfAnotherLanguageBringTheirOwnKeys) {
    HoravexMainForm->cmdQibla.SetCaption("Al&quibla");
    HoravexMainForm->cmdAdjustments.SetCaption("A&npassungen");
    QApplication::processEvents();
    EXPECT_EQ(ReachedFrom(0, Qt::Key_N), "cmdAdjustments");
    Tabs().setCurrentIndex(0);
    PressWithAlt(Window(), Qt::Key_J);
    EXPECT_EQ(Tabs().currentIndex(), 0);
}

TEST_F(SettingsKeysTest, ControlThatIsShutOffOrHiddenHasNoKey) {
    HoravexMainForm->cmdQibla.SetEnabled(false);
    HoravexMainForm->cmdAthan.SetVisible(false);
    QApplication::processEvents();
    PressWithAlt(Window(), Qt::Key_Q);
    PressWithAlt(Window(), Qt::Key_A);
    EXPECT_EQ(Tabs().currentIndex(), 0);
}

TEST_F(SettingsKeysTest, KeyThatTwoPagesShareStaysWithTheOneInFront) {
    HoravexMainForm->cmdQibla.SetCaption("Qibl&a");
    QApplication::processEvents();
    Tabs().setCurrentIndex(3);
    PressWithAlt(Window(), Qt::Key_A);
    EXPECT_EQ(Tabs().currentIndex(), 3);
    EXPECT_EQ(pressed, "cmdQibla ");
    EXPECT_EQ(ReachedFrom(0, Qt::Key_A), "cmdAthan");
}

TEST_F(SettingsKeysTest, KeyBelowThePagesStaysThere) {
    HoravexMainForm->cmdQibla.SetCaption("Qibla &direction");
    QApplication::processEvents();
    PressWithAlt(Window(), Qt::Key_D);
    EXPECT_EQ(pressed, "cmdDefault ");
    EXPECT_EQ(Tabs().currentIndex(), 0);
}

}  // namespace
}  // namespace horavex
