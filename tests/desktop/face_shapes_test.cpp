// The face as one line and over the whole screen.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>

#include "desktop/face/poster_view.h"
#include "desktop/face/qt_face.h"
#include "desktop/face/strip_view.h"
#include "desktop/face_values.h"
#include "sky/day_sky.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

PosterView* Poster() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* poster = dynamic_cast<PosterView*>(widget);
            poster != nullptr && poster->isVisible()) {
            return poster;
        }
    }
    return nullptr;
}

class FaceShapesTest : public testing::Test {
protected:
    FaceShapesTest() {
        face.onFSCommand = [this](const std::string& command, const std::string&) {
            commands.push_back(command);
        };
        face.Fill(window);
        face.LoadMovie(0, "");
        window.show();
        TellEnglish(face);
    }

    static void Press(QWidget& widget, Qt::Key key) {
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier);
            QApplication::sendEvent(&widget, &event);
        }
    }
    StripView* Strip() { return dynamic_cast<StripView*>(window.layout()->itemAt(1)->widget()); }
    QSize SizeOfWindow() {
        QApplication::processEvents();
        return window.size();
    }

    TestPlatform platform;
    QtFace face;
    QWidget window;
    std::vector<std::string> commands;
};

TEST_F(FaceShapesTest, SmallFaceIsALineAndTheWholeOneComesBackInItsSize) {
    const QSize whole = SizeOfWindow();
    face.TakeShape({.small = true});
    EXPECT_EQ(SizeOfWindow(), QSize(360, 44));
    face.TakeShape({});
    EXPECT_EQ(SizeOfWindow(), whole);
}

TEST_F(FaceShapesTest, LineTellsTheDayAndItsButtonAsksForTheWholeFace) {
    face.TakeShape({.small = true});
    const QImage noon = Strip()->grab().toImage();
    DayView day;
    day.next = {kIsha, false, {18.5}, 60.0};
    face.ShowDay(day);
    EXPECT_NE(Strip()->grab().toImage(), noon);
    auto& button = *Strip()->findChild<QAbstractButton*>("IDC_FS_small");
    EXPECT_EQ(button.accessibleName(), "NormalSize");  // there is no pack
    Press(button, Qt::Key_Return);
    EXPECT_EQ(commands, std::vector<std::string>{"IDC_FS_small"});
}

TEST_F(FaceShapesTest, FullScreenIsOnTopWithoutAPointerAndLeftByEscapeAndF11) {
    face.TakeShape({.fillsScreen = true});
    ASSERT_NE(Poster(), nullptr);
    EXPECT_TRUE(Poster()->isFullScreen());
    EXPECT_EQ(Poster()->cursor().shape(), Qt::BlankCursor);
    Press(*Poster(), Qt::Key_Escape);
    Press(*Poster(), Qt::Key_F11);
    Press(*Poster(), Qt::Key_A);
    EXPECT_EQ(commands, (std::vector<std::string>{"IDC_FS_fullScreen", "IDC_FS_fullScreen"}));
    face.TakeShape({});
    EXPECT_EQ(Poster(), nullptr);
}

/// Sums up what is painted.
class PaintedRegion : public QObject {
public:
    explicit PaintedRegion(QWidget& widget) { widget.installEventFilter(this); }
    QRegion region;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            region += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }
};

TEST_F(FaceShapesTest, ASecondPaintsTheCountdownOfTheFullScreenAlone) {
    face.TakeShape({.fillsScreen = true});
    DayView day;
    day.next = {kAsr, false, {15.0}, 100.0};
    face.ShowDay(day);
    QApplication::processEvents();
    PaintedRegion painted(*Poster());
    day.next.remainingSeconds = 99.0;
    face.ShowDay(day);
    QApplication::processEvents();
    EXPECT_FALSE(painted.region.isEmpty());
    EXPECT_LT(painted.region.boundingRect().height(), Poster()->height() / 5);
    day.next.prayer = kIsha;
    face.ShowDay(day);
    QApplication::processEvents();
    EXPECT_EQ(painted.region.boundingRect(), Poster()->rect());
}

TEST_F(FaceShapesTest, IqamasStandBelowTheTimesOfTheFullScreen) {
    face.TakeShape({.fillsScreen = true});
    DayView day;
    for (Moment& moment : day.moments) {
        moment.hours = 15.0;
    }
    face.ShowDay(day);
    const QImage without = Poster()->grab().toImage();
    day.iqamaMinutes[kAsr] = 10;
    face.ShowDay(day);
    EXPECT_NE(Poster()->grab().toImage(), without);
    EXPECT_EQ(FaceDayOf(day).iqamas.at(kAsr), "Iqama 03:10 PM");
    EXPECT_EQ(FaceDayOf(day).iqamas.at(kIsha), "");
    day.next = {kAsr, true, {16.0}, 60.0};
    EXPECT_EQ(FaceDayOf(day).iqamas.at(kAsr), "Iqama 04:10 PM");
}

TEST_F(FaceShapesTest, FaceThatIsNotLoadedTakesNoShape) {
    QtFace other;
    QWidget holder;
    other.Fill(holder);
    other.TakeShape({.small = true, .fillsScreen = true});
    EXPECT_EQ(Poster(), nullptr);
    EXPECT_EQ(holder.layout()->count(), 1);
}

}  // namespace
}  // namespace horavex
