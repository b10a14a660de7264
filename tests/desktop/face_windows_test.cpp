// The window over the whole screen among the others, and what is painted when nobody sees it.

#include <QAccessible>
#include <QMessageBox>
#include <QScreen>
#include <QWindow>

#include "desktop/face_shapes_fixture.h"

namespace horavex {
namespace {

class FaceWindowsTest : public FaceShapesTest {
protected:
    /// A second of the afternoon.
    void Tick() {
        seconds_ -= 1.0;
        day.next = {kAsr, false, {15.0}, seconds_};
        face.ShowDay(day);
        QApplication::processEvents();
    }

    static void DeleteWhatIsLeft() {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    FaceView& View() { return *window.findChild<FaceView*>(); }

    DayView day;

private:
    double seconds_ = 1000.0;  // that remain
};

TEST_F(FaceWindowsTest, FullScreenOverAModalWindowIsNotShutOffByIt) {
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    face.TakeShape({.fillsScreen = true});
    const QWindow& poster = *Poster()->windowHandle();
    EXPECT_EQ(poster.transientParent(), dialog.windowHandle());
    dialog.hide();
    QApplication::processEvents();
    EXPECT_EQ(poster.transientParent(), nullptr);
}

TEST_F(FaceWindowsTest, FullScreenThatIsAskedForAnewComesToTheFront) {
    face.TakeShape({.fillsScreen = true});
    QApplication::processEvents();
    QApplication::setActiveWindow(&window);
    ASSERT_EQ(QApplication::activeWindow(), &window);
    face.TakeShape({.fillsScreen = true});
    QApplication::processEvents();
    EXPECT_EQ(QApplication::activeWindow(), Poster());
}

TEST_F(FaceWindowsTest, BoxOverTheFullScreenOutlivesItsEnd) {
    face.TakeShape({.fillsScreen = true});
    const QPointer<QWidget> poster = Poster();
    const QPointer<QMessageBox> box = new QMessageBox(poster);
    box->show();
    face.TakeShape({});
    DeleteWhatIsLeft();
    ASSERT_NE(box, nullptr);
    EXPECT_FALSE(poster->isVisible());
    delete box.data();
    DeleteWhatIsLeft();
    EXPECT_EQ(poster, nullptr);
}

TEST_F(FaceWindowsTest, FullScreenComesUpOnTheScreenOfTheFace) {
    QScreen* const second = QGuiApplication::screens().at(1);
    window.windowHandle()->setScreen(second);
    window.move(second->geometry().topLeft() + QPoint(50, 50));
    QApplication::processEvents();
    face.TakeShape({.fillsScreen = true});
    EXPECT_EQ(Poster()->windowHandle()->screen(), second);
    EXPECT_EQ(Poster()->geometry(), second->geometry());
}

TEST_F(FaceWindowsTest, LineAtTheLowerEdgeGrowsIntoTheScreen) {
    const QRect area = window.screen()->availableGeometry();
    face.TakeShape({.small = true});
    QApplication::processEvents();
    window.move(area.right() - window.width(), area.bottom() - window.height());
    face.TakeShape({});
    EXPECT_TRUE(area.contains(window.geometry()));
    EXPECT_EQ(window.geometry().bottom(), area.bottom());
}

TEST_F(FaceWindowsTest, FaceBeneathTheFullScreenIsNotPaintedUntilItIsInFront) {
    Tick();
    face.TakeShape({.fillsScreen = true});
    QApplication::setActiveWindow(Poster());
    QApplication::processEvents();
    PaintedRegion painted(View());
    Tick();
    EXPECT_TRUE(painted.region.isEmpty());
    QApplication::setActiveWindow(&window);
    QApplication::processEvents();
    EXPECT_EQ(painted.region.boundingRect(), View().rect());
    QApplication::setActiveWindow(Poster());
    painted.region = {};
    Tick();
    EXPECT_TRUE(painted.region.isEmpty());
    face.TakeShape({});
    Tick();
    EXPECT_FALSE(painted.region.isEmpty());
}

TEST_F(FaceWindowsTest, FaceBesideTheFullScreenIsPainted) {
    Tick();
    face.TakeShape({.fillsScreen = true});
    QApplication::setActiveWindow(Poster());
    const QRect screen = Poster()->geometry();
    window.move(screen.bottomLeft() - QPoint(0, window.height() / 2));  // partly on the one below
    QApplication::processEvents();
    PaintedRegion painted(View());
    Tick();
    EXPECT_FALSE(painted.region.isEmpty());
    window.move(screen.topLeft());
    QApplication::processEvents();
    painted.region = {};
    Tick();
    EXPECT_TRUE(painted.region.isEmpty());
}

TEST_F(FaceWindowsTest, FaceIsPaintedWhileTheFullScreenIsMinimised) {
    Tick();
    face.TakeShape({.fillsScreen = true});
    QApplication::setActiveWindow(Poster());
    Poster()->showMinimized();
    QApplication::setActiveWindow(Poster());  // whatever the window manager makes of it
    QApplication::processEvents();
    PaintedRegion painted(View());
    Tick();
    EXPECT_FALSE(painted.region.isEmpty());
}

TEST_F(FaceWindowsTest, FaceIsPaintedWhileAnotherWindowThanTheFullScreenIsInUse) {
    Tick();
    face.TakeShape({.fillsScreen = true});
    QApplication::setActiveWindow(Poster());
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    QApplication::processEvents();
    PaintedRegion painted(View());
    Tick();
    EXPECT_FALSE(painted.region.isEmpty());
}

TEST_F(FaceWindowsTest, MinimisedFaceIsNotPaintedAndIsPaintedWhenItComesBack) {
    Tick();
    window.setWindowState(Qt::WindowMinimized);
    QApplication::processEvents();
    PaintedRegion painted(View());
    Tick();
    EXPECT_TRUE(painted.region.isEmpty());
    EXPECT_FALSE(window.updatesEnabled());
    window.setWindowState(Qt::WindowNoState);
    QApplication::processEvents();
    EXPECT_EQ(painted.region.boundingRect(), View().rect());
}

int namesTold = 0;

TEST_F(FaceWindowsTest, NameOfTheFullScreenIsToldWhenItChangesAlone) {
    face.TakeShape({.fillsScreen = true});
    const auto former = QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
        namesTold += event->type() == QAccessible::NameChanged ? 1 : 0;
    });
    Tick();
    namesTold = 0;
    Tick();
    EXPECT_EQ(namesTold, 0);
    EXPECT_EQ(Poster()->accessibleName(), "Asr 03:00 PM");
    QAccessible::installUpdateHandler(former);
}

}  // namespace
}  // namespace horavex
