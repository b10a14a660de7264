// A window that its program alone places, and one that comes up by itself over a modal one.

#include <QScreen>
#include <QTimer>
#include <QWindow>

#include "desktop/form_window_fixture.h"
#include "desktop/ports/qt_windows.h"

namespace horavex {
namespace {

void FillPlaced(QWidget& window) {
    window.setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    window.setProperty("placedByProgram", true);
}

struct PlacedWindowTest : testing::Test {
    ~PlacedWindowTest() override {
        form.Unload();
        modal.Unload();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    FormWindow& Window() { return *windows.Find(&form); }

    void MoveTo(double left, double top) {
        form.SetLeft(left);
        form.SetTop(top);
        QApplication::processEvents();
    }

    TestPlatform platform;
    Form form{"placed", {.width = 3000, .height = 1500}};
    Form modal{"modal", {.width = 3000, .height = 1500}};
    FormWindows windows{Layouts{{"placed", FillPlaced}, {"modal", [](QWidget&) {}}}};
    QtWindows port{windows};
};

TEST_F(PlacedWindowTest, IsHiddenWhileItLiesOutsideAllScreens) {
    const ScreenCorner corner = port.WorkArea();
    form.Load();
    MoveTo(corner.right - 3000, corner.bottom);
    form.Show();
    EXPECT_FALSE(Window().isVisible());
    MoveTo(corner.right - 3000, corner.bottom - 30);
    EXPECT_TRUE(Window().isVisible());
    EXPECT_EQ(Window().pos().y(), static_cast<int>(corner.bottom / 15) - 2);
    MoveTo(corner.right - 3000, -corner.bottom);
    EXPECT_FALSE(Window().isVisible());
    EXPECT_TRUE(form.Visible());
}

TEST_F(PlacedWindowTest, PlaceIsTheFormsAlone) {
    form.Load();
    MoveTo(1500, 1500);
    form.Show();
    Window().move(10, 10);
    QApplication::processEvents();
    EXPECT_EQ(form.Left(), 1500);
    EXPECT_EQ(form.Top(), 1500);
}

TEST_F(PlacedWindowTest, TopMostIsSetAndTakenWithoutLeavingTheScreen) {
    form.Load();
    MoveTo(1500, 1500);
    form.Show();
    port.SetTopMost("placed", true);
    EXPECT_TRUE(Window().windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(Window().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(Window().isVisible());
    port.SetTopMost("placed", false);
    EXPECT_FALSE(Window().windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
    port.SetTopMost("unknown", true);
}

TEST_F(PlacedWindowTest, WorkAreaIsThatOfTheScreen) {
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(port.WorkArea().right, area.width() * 15.0);
    EXPECT_EQ(port.WorkArea().bottom, area.height() * 15.0);
}

TEST_F(PlacedWindowTest, WindowThatComesUpOverAModalOneCanBeUsed) {
    form.Load();
    MoveTo(1500, 1500);
    QTimer::singleShot(0, [&] {
        form.Show();
        EXPECT_EQ(Window().windowHandle()->transientParent(), windows.Find(&modal)->windowHandle());
        modal.Unload();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    });
    modal.ShowModal();
    QApplication::processEvents();
    EXPECT_TRUE(Window().isVisible()) << "it outlives the modal window";
}

}  // namespace
}  // namespace horavex
