// A window that its program alone places, and one that comes up by itself over a modal one.

#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include "desktop/form_window_fixture.h"
#include "desktop/ports/qt_dialogs.h"
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

TEST_F(PlacedWindowTest, IsHiddenBelowAndAboveItsScreenWithMonitorsThereToo) {
    ASSERT_EQ(QGuiApplication::screens().size(), 3);
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

TEST_F(PlacedWindowTest, BoxThatOpensFromItDoesNotBelongToWhatBelongsToIt) {
    form.Load();
    MoveTo(0.0, 0.0);
    form.Show();
    QApplication::setActiveWindow(&Window());
    const QWindow* parentOfTheBox = Window().windowHandle();
    QTimer::singleShot(0, [&] {
        parentOfTheBox = QGuiApplication::modalWindow()->transientParent();
        QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
        QtDialogs([] {}).ShowMessage("a box over the box", "", MessageIcon::kNone);
        QApplication::activeModalWidget()->close();
    });
    QtDialogs([] {}).ShowMessage("a box", "", MessageIcon::kNone);
    EXPECT_NE(parentOfTheBox, Window().windowHandle());
}

TEST_F(PlacedWindowTest, PartBeyondItsScreenIsMasked) {
    const ScreenCorner corner = port.WorkArea();
    form.Load();
    form.Show();
    MoveTo(corner.right - 3000, corner.bottom - 600);
    EXPECT_EQ(Window().mask(), QRegion(0, 0, 200, 40));
    MoveTo(corner.right - 3000, corner.bottom - 1500);
    EXPECT_TRUE(Window().mask().isEmpty());
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

TEST_F(PlacedWindowTest, ModalWindowThatIsOpenedLaterDoesNotShutItOff) {
    form.Load();
    MoveTo(1500, 1500);
    form.Show();
    QTimer::singleShot(0, [&] {
        EXPECT_EQ(Window().windowHandle()->transientParent(), windows.Find(&modal)->windowHandle());
        modal.Unload();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    });
    modal.ShowModal();
    QApplication::processEvents();
    EXPECT_TRUE(Window().isVisible());
}

/// Whether a modal window shuts a window off at this moment.
class Blocked : public QObject {
public:
    explicit Blocked(QWindow& window) { window.installEventFilter(this); }
    explicit operator bool() const { return isBlocked_; }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::WindowUnblocked) {
            isBlocked_ = event->type() == QEvent::WindowBlocked;
        }
        return false;
    }

private:
    bool isBlocked_ = false;
};

TEST_F(PlacedWindowTest, MessageBoxAndFileDialogueDoNotShutItOff) {
    form.Load();
    MoveTo(1500, 1500);
    form.Show();
    const Blocked blocked(*Window().windowHandle());
    const auto look = [&] {
        QWidget* const open = QApplication::activeModalWidget();
        ASSERT_NE(open, nullptr);
        EXPECT_FALSE(blocked);
        EXPECT_EQ(Window().windowHandle()->transientParent(), open->windowHandle());
        open->close();
    };
    QTimer::singleShot(0, look);
    QtDialogs([] {}).ShowMessage("text", "", MessageIcon::kNone);
    QTimer::singleShot(0, look);
    QtDialogs([] {}).OpenFile({"Open", "All|*|", 1});
    QTimer::singleShot(0, look);
    QPrinter printer;
    QPrintDialog(&printer).exec();
}

TEST_F(PlacedWindowTest, EndOfABoxLeavesItUsableOverTheModalWindowBehind) {
    form.Load();
    MoveTo(1500, 1500);
    form.Show();
    const Blocked blocked(*Window().windowHandle());
    QTimer::singleShot(0, [&] {
        QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
        QtDialogs([] {}).ShowMessage("text", "", MessageIcon::kNone);
        QApplication::processEvents();
        EXPECT_FALSE(blocked);
        EXPECT_EQ(Window().windowHandle()->transientParent(), windows.Find(&modal)->windowHandle());
        modal.Unload();
    });
    modal.ShowModal();
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

TEST_F(PlacedWindowTest, StandsInFrontOfAWindowThatFillsTheScreen) {
    QWidget filling;
    filling.showFullScreen();
    form.Load();
    MoveTo(1500, 1500);
    form.Show();
    EXPECT_EQ(Window().windowHandle()->transientParent(), filling.windowHandle());
    filling.hide();
    QApplication::processEvents();
    EXPECT_EQ(Window().windowHandle()->transientParent(), nullptr);
    EXPECT_TRUE(Window().isVisible());
}

}  // namespace
}  // namespace horavex
