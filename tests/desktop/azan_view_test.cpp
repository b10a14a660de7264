#include "desktop/face/azan_view.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>

#include "desktop/face/azan_face.h"
#include "desktop/form_window_fixture.h"
#include "desktop/look/contrast.h"
#include "desktop/scoped_look.h"
#include "lang/language_pack.h"

namespace horavex {
namespace {

constexpr const char* kText = "_root.character_textField";

struct AzanFaceTest : testing::Test {
    AzanFaceTest() { face.Fill(window); }

    QString Shown() const { return window.findChild<QLabel*>()->text(); }

    TestPlatform platform;
    QWidget window;
    AzanFace face;
};

TEST_F(AzanFaceTest, ShowsTheTextOfItsVariable) {
    face.LoadMovie(0, "");
    face.SetVariable(kText, "It is time");
    EXPECT_EQ(Shown(), "It is time");
    face.SetVariable("_root.other", "no");
    EXPECT_EQ(Shown(), "It is time");
    face.SetVariable(kText, "");
    EXPECT_EQ(Shown(), "");
}

TEST_F(AzanFaceTest, TellsPlaceAndTimeBelow) {
    face.LoadMovie(0, "");
    face.SetVariable(kText, "It is time");
    face.SetVariable("_root.place_textField", "Cairo, 4:56 PM");
    const auto lines = window.findChildren<QLabel*>();
    EXPECT_EQ(lines.back()->text(), "Cairo, 4:56 PM");
    EXPECT_GE(lines.back()->y(), lines.front()->geometry().bottom() - 2);
    const auto* button = window.findChild<QAbstractButton*>("IDC_FS_Stop");
    EXPECT_GT(button->y(), lines.back()->geometry().bottom());
}

TEST_F(AzanFaceTest, ItsButtonIsNamedInTheLanguageOfThePack) {
    platform.files.WriteWhole("/program/lang/German.ini", BytesOf("[notices]\nStop=Stopp\n"));
    currentLanguage = "German";
    face.LoadMovie(0, "");
    face.SetVariable(kText, "Es ist Zeit");
    EXPECT_EQ(window.findChild<QAbstractButton*>("IDC_FS_Stop")->accessibleName(), "Stopp");
}

TEST_F(AzanFaceTest, DropsWhatIsSetBeforeItIsUp) {
    face.SetVariable(kText, "It is time");
    EXPECT_EQ(Shown(), "");
}

TEST_F(AzanFaceTest, ItsButtonAsksToStopByMouseAndByKey) {
    std::vector<std::string> commands;
    face.onFSCommand = [&](const std::string& command, const std::string&) {
        commands.push_back(command);
    };
    auto* button = window.findChild<QAbstractButton*>("IDC_FS_Stop");
    button->click();
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(button, &enter);
    EXPECT_EQ(commands, std::vector<std::string>(2, "IDC_FS_Stop"));
    EXPECT_EQ(button->accessibleName(), "Stop");
    EXPECT_TRUE(button->focusPolicy() & Qt::TabFocus);
}

/// Rows of the middle column whose colour the sky does not have: the frame, the moon, the text.
struct DrawnRows {
    int first;
    int last;
};

DrawnRows RowsOf(AzanView& view, int column) {
    const QImage image = view.grab().toImage();
    DrawnRows rows{-1, -1};
    for (int y = 1; y < image.height() - 1; ++y) {
        if (image.pixelColor(column, y).red() > 60) {
            rows.first = rows.first < 0 ? y : rows.first;
            rows.last = y;
        }
    }
    return rows;
}

// The lowest 26 pixels of the window stand below the screen where the program places it.
TEST(AzanViewTest, ItsFrameIsAsFarFromEveryEdgeThatIsSeen) {
    constexpr int kBesideAll = 30;  // a column of the frame alone
    for (const auto& [isWhole, seen] : {std::pair(false, 199), std::pair(true, 226)}) {
        AzanView view(isWhole);
        const auto [first, last] = RowsOf(view, kBesideAll);
        EXPECT_NEAR(first, seen - 1 - last, 1) << seen;
        EXPECT_LT(first, 10);
    }
}

TEST(AzanViewTest, WhatStandsInItsFrameIsInTheMiddleOfIt) {
    const auto button = [](AzanView& view) {
        return view.findChild<QAbstractButton*>("IDC_FS_Stop")->geometry().bottom();
    };
    AzanView part(false);
    AzanView whole(true);
    EXPECT_EQ(button(whole), button(part) + 13);
}

TEST(AzanView, IsBlackWithAFrameThatIsSeenWhereTheDesktopWantsContrast) {
    const auto dot = [](look::Theme theme, QPoint at) {
        const ScopedLook look(theme);
        AzanView view(true);
        return view.grab().toImage().pixelColor(at);
    };
    constexpr QPoint kEdgeAt(0, 100);
    constexpr QPoint kGroundAt(3, 100);
    for (const look::Theme theme : {look::Theme::kContrast, look::Theme::kLightContrast}) {
        EXPECT_EQ(dot(theme, kGroundAt), Qt::black);
        EXPECT_GE(look::Contrast(dot(theme, kEdgeAt), Qt::black), 3.0);
    }
    EXPECT_GT(dot(look::Theme::kLight, kGroundAt).blue(), 0x20);
}

TEST_F(AzanFaceTest, OutlivesItsWindow) {
    {
        QWidget other;
        face.Fill(other);
    }
    face.LoadMovie(0, "");
    face.SetVariable(kText, "It is time");
}

}  // namespace
}  // namespace horavex
