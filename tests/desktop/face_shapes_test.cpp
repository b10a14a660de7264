// The face as one line and over the whole screen.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QMouseEvent>
#include <QShortcut>

#include "desktop/face/fitted_text.h"
#include "desktop/face/text_line.h"
#include "desktop/face_shapes_fixture.h"
#include "desktop/screen_service.h"
#include "lang/language_pack.h"

namespace horavex {
namespace {

TEST_F(FaceShapesTest, SmallFaceIsALineAndTheWholeOneComesBackInItsSize) {
    const QSize whole = SizeOfWindow();
    face.TakeShape({.small = true});
    EXPECT_EQ(SizeOfWindow(), QSize(360, 44));
    face.TakeShape({});
    EXPECT_EQ(SizeOfWindow(), whole);
}

TEST_F(FaceShapesTest, LineTellsTheDayAndItsButtonAsksForTheWholeFace) {
    face.TakeShape({.small = true});
    DayView day;
    day.moments[kIsha].hours = 18.5;
    day.next = {kIsha, false, day.moments[kIsha], 60.0};
    face.ShowDay(day);
    const auto lines = Strip()->findChildren<TextLine*>();
    EXPECT_EQ(lines.at(0)->text(), "Isha");
    EXPECT_EQ(lines.at(1)->text(), "06:30 PM");
    EXPECT_EQ(lines.at(2)->text(), "0:01:00");
    auto& button = *Strip()->findChild<QAbstractButton*>("IDC_FS_small");
    EXPECT_EQ(button.accessibleName(), "NormalSize");  // there is no pack
    Press(button, Qt::Key_Return);
    EXPECT_EQ(commands, std::vector<std::string>{"IDC_FS_small"});
}

TEST_F(FaceShapesTest, LineHasItsTimeWholeBesideALongName) {
    face.TakeShape({.small = true});
    frmMain->lblZoritNameArabic(kFajr).SetCaption("A name that has no room in one line");
    DayView day;
    day.next = {kFajr, true, {5.25}, 60.0};
    face.ShowDay(day);
    const auto lines = Strip()->findChildren<TextLine*>();
    EXPECT_EQ(lines.at(1)->text(), "05:15 AM");
    EXPECT_GE(lines.at(1)->width(), QFontMetrics(FaceFont(17)).horizontalAdvance("05:15 AM"));
    EXPECT_LT(lines.at(0)->geometry().right(), lines.at(1)->x());
    EXPECT_LT(lines.at(1)->geometry().right(), lines.at(2)->x());
}

TEST_F(FaceShapesTest, LineRunsFromRightToLeftWithItsNames) {
    face.TakeShape({.small = true});
    frmMain->lblZoritNameArabic(kFajr).SetCaption("الفجر");
    DayView day;
    day.next = {kFajr, true, {5.25}, 60.0};
    face.ShowDay(day);
    const auto lines = Strip()->findChildren<TextLine*>();
    EXPECT_EQ(lines.at(0)->geometry().right(), 360 - 14 - 1);
    EXPECT_LT(lines.at(1)->geometry().right(), lines.at(0)->x());
    EXPECT_LT(lines.at(2)->geometry().right(), lines.at(1)->x());
    const QAbstractButton& button = *Strip()->findChild<QAbstractButton*>("IDC_FS_small");
    EXPECT_LT(button.geometry().right(), lines.at(2)->x());
}

TEST_F(FaceShapesTest, LineNamesThePrayerWhoseTimeLiesBehindMidnight) {
    face.TakeShape({.small = true});
    DayView day;
    day.moments[kIsha] = {24.6};
    day.moments[kIsha].dayShift = 1;
    day.next = {kIsha, false, day.moments[kIsha], 60.0};
    face.ShowDay(day);
    const auto lines = Strip()->findChildren<TextLine*>();
    EXPECT_EQ(lines.at(1)->text(), "12:36 AM+1");
    EXPECT_GE(lines.at(0)->width(), QFontMetrics(FaceFont(17)).horizontalAdvance("Isha"));
}

TEST_F(FaceShapesTest, ButtonOfTheLineIsNamedAnewInAnotherLanguage) {
    face.TakeShape({.small = true});
    const std::string pack = "[desktop]\nNormalSize=Taille normale\n";
    platform.files.WriteWhole("/program/lang/French.ini", Bytes(pack.begin(), pack.end()));
    currentLanguage = "French";
    face.SetVariable("prayer_time", "Horaires");
    EXPECT_EQ(Strip()->findChild<QAbstractButton*>("IDC_FS_small")->accessibleName(),
              "Taille normale");
}

TEST_F(FaceShapesTest, FullScreenHasNoPointerAndIsLeftByEscapeAndF11) {
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

TEST_F(FaceShapesTest, KeyThatIsHeldDownLeavesTheFullScreenOnce) {
    face.TakeShape({.fillsScreen = true});
    Press(*Poster(), Qt::Key_F11, true);
    Press(*Poster(), Qt::Key_Escape, true);
    EXPECT_TRUE(commands.empty());
    EXPECT_FALSE(window.findChild<QShortcut*>({}, Qt::FindDirectChildrenOnly)->autoRepeat());
}

TEST_F(FaceShapesTest, DoubleClickLeavesTheFullScreen) {
    face.TakeShape({.fillsScreen = true});
    QMouseEvent event(QEvent::MouseButtonDblClick, {10, 10}, {10, 10}, Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(Poster(), &event);
    EXPECT_EQ(commands, std::vector<std::string>{"IDC_FS_fullScreen"});
}

TEST_F(FaceShapesTest, FullScreenThatIsClosedFromOutsideIsLeft) {
    face.TakeShape({.fillsScreen = true});
    Poster()->close();
    EXPECT_EQ(commands, std::vector<std::string>{"IDC_FS_fullScreen"});
    EXPECT_NE(Poster(), nullptr);  // until the command takes it away
}

TEST(FaceAwakeTest, ScreenIsKeptOnAsLongAsTheFaceFillsIt) {
    TestBus bus;
    ScreenService service{bus.Connect("service")};
    const TestPlatform platform;
    QtFace face({}, [&bus] { return bus.Connect("program"); });
    QWidget window;
    face.Fill(window);
    face.LoadMovie(0, "");
    face.TakeShape({.small = true});
    face.TakeShape({.fillsScreen = true});
    EXPECT_TRUE(Until([&] { return service.calls == QStringList{"Inhibit"}; }));
    bus.Settle();
    face.TakeShape({});
    EXPECT_TRUE(Until([&] { return service.cookies == QList<uint>{42}; }));
}

TEST(FaceEndTest, FullScreenEndsWithItsFace) {
    const TestPlatform platform;
    QWidget window;
    {
        QtFace face;
        face.Fill(window);
        face.LoadMovie(0, "");
        face.TakeShape({.fillsScreen = true});
        EXPECT_NE(Poster(), nullptr);
    }
    EXPECT_EQ(Poster(), nullptr);
}

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

TEST_F(FaceShapesTest, IqamasAreThoseOfTheTimesThatAreShown) {
    DayView day;
    for (Moment& moment : day.moments) {
        moment.hours = 15.0;
    }
    day.iqamaMinutes[kAsr] = 10;
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
