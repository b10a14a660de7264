#include "athan/azan_window.h"

#include "athan/athan_state.h"
#include "athan/player.h"
#include "lang/language_pack.h"
#include "store/location_record.h"
#include "support/program_test.h"
#include "windows/frm_azan.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* kText = "_root.character_textField";

struct AzanWindowTest : ProgramTest {
    AzanWindowTest() { StartAgain(); }

    void TickUntilItStands() {
        for (int tick = 0; tick < 1000 && frmAzan->Timer1.Running(); ++tick) {
            frmAzan->Timer1.Tick();
        }
    }

    void PressStop() { platform.athanFace.onFSCommand("IDC_FS_Stop", ""); }

    /// Two seconds of a sound, on their way.
    void PlaySomething() {
        platform.audioFile.sounds["/sound"] = {Bytes(400), 100, {1}};
        OpenFileForPlay("/sound");
    }

    const double bottom = platform.windows.workArea.bottom;
    const double right = platform.windows.workArea.right;
};

TEST_F(AzanWindowTest, LoadBringsItsFaceUpBelowTheLowerRightCorner) {
    athanActive = -1;
    frmAzan->Load();
    EXPECT_THAT(platform.desktop.calls,
                ElementsAre("load frmAzan", "athan LoadMovie 0 /program/Azan.swf"));
    EXPECT_EQ(frmAzan->Top(), bottom);
    EXPECT_EQ(frmAzan->Left(), right - frmAzan->Width());
    EXPECT_EQ(athanActive, 0);
    EXPECT_FALSE(frmAzan->Visible());
    EXPECT_FALSE(frmAzan->Timer1.Running());
}

TEST_F(AzanWindowTest, ShowBringsItUpAndReturns) {
    frmAzan->Load();
    frmAzan->SetTop(0.0);
    platform.desktop.calls.clear();
    ShowMe();
    EXPECT_EQ(athanActive, -1);
    EXPECT_TRUE(frmAzan->Visible());
    EXPECT_FALSE(frmAzan->IsModal());
    EXPECT_EQ(frmAzan->Top(), bottom);
    EXPECT_EQ(frmAzan->Left(), right - frmAzan->Width());
    EXPECT_TRUE(frmAzan->Timer1.Running());
    EXPECT_EQ(frmAzan->Timer1.Interval(), 50);
    EXPECT_THAT(platform.desktop.calls, ElementsAre("show frmAzan", "athan Play"));
}

TEST_F(AzanWindowTest, TellsPlaceAndTimeOfAnAthanThatTheUserAskedForToo) {
    for (const Alert alert : {Alert::kAthanNow, Alert::kAsr}) {
        platform.athanFace.SetVariable("_root.place_textField", "");
        BringAthanWindowUp(alert);
        EXPECT_EQ(platform.athanFace.Value("_root.place_textField"),
                  "\u2068" + ActiveLocation.City.Name + "\u2069  ·  \u2068" +
                      platform.formats.MediumTime(platform.clock.Now()) + "\u2069");
        StopAthan();
    }
}

TEST_F(AzanWindowTest, RisesFortyTwipsATick) {
    frmAzan->Load();
    ShowMe();
    frmAzan->Timer1.Tick();
    EXPECT_EQ(frmAzan->Top(), bottom - 40.0);
    frmAzan->Timer1.Tick();
    EXPECT_EQ(frmAzan->Top(), bottom - 80.0);
}

TEST_F(AzanWindowTest, StandsTopMostWithAllButFourHundredTwipsOnTheScreen) {
    frmAzan->Load();
    ShowMe();
    platform.desktop.calls.clear();
    TickUntilItStands();
    // The last step is the first that leaves less than that below.
    const double below = frmAzan->Top() + frmAzan->Height() - bottom;
    EXPECT_LT(below, 400.0);
    EXPECT_GE(below, 400.0 - 40.0);
    EXPECT_THAT(platform.desktop.calls, ElementsAre("SetTopMost frmAzan"));
    EXPECT_TRUE(frmAzan->Visible());
}

TEST_F(AzanWindowTest, StepIsTakenAsLongAsFourHundredTwipsAreBelow) {
    frmAzan->Load();
    ShowMe();
    frmAzan->SetTop(bottom - frmAzan->Height() + 400.0);
    frmAzan->Timer1.Tick();
    EXPECT_EQ(frmAzan->Top(), bottom - frmAzan->Height() + 360.0);
    EXPECT_TRUE(frmAzan->Timer1.Running());
    frmAzan->Timer1.Tick();
    EXPECT_FALSE(frmAzan->Timer1.Running());
}

TEST_F(AzanWindowTest, StopSendsItAboveTheScreenAndSilencesTheSound) {
    frmAzan->Load();
    ShowMe();
    PlaySomething();
    platform.desktop.calls.clear();
    PressStop();
    EXPECT_EQ(athanActive, 0);
    EXPECT_FALSE(frmAzan->Timer1.Running());
    EXPECT_EQ(frmAzan->Top(), -bottom);
    EXPECT_THAT(platform.desktop.calls, ElementsAre("SetNotTopMost frmAzan"));
    EXPECT_FALSE(IsPlaying());
    EXPECT_FALSE(platform.audioPlayer.IsPlaying());
    EXPECT_TRUE(frmAzan->IsLoaded());
}

TEST_F(AzanWindowTest, OtherCommandsAreIgnored) {
    frmAzan->Load();
    ShowMe();
    platform.athanFace.onFSCommand("IDC_FS_close", "");
    EXPECT_EQ(athanActive, -1);
}

TEST_F(AzanWindowTest, NextAthanComesUpFromBelowWithoutANewLoad) {
    frmAzan->Load();
    ShowMe();
    PressStop();
    platform.desktop.calls.clear();
    ShowMe();
    EXPECT_EQ(frmAzan->Top(), bottom);
    EXPECT_TRUE(frmAzan->Timer1.Running());
    EXPECT_EQ(athanActive, -1);
    EXPECT_THAT(platform.desktop.calls, ElementsAre("athan Play"));
}

TEST_F(AzanWindowTest, UserWhoClosesItStopsTheAthan) {
    frmAzan->Load();
    ShowMe();
    PlaySomething();
    frmAzan->UserClose();
    EXPECT_EQ(athanActive, 0);
    EXPECT_FALSE(IsPlaying());
    EXPECT_TRUE(frmAzan->IsLoaded());
}

TEST_F(AzanWindowTest, UnloadStopsTheSound) {
    frmAzan->Load();
    PlaySomething();
    frmAzan->Unload();
    EXPECT_FALSE(IsPlaying());
}

struct AzanTextTest : AzanWindowTest {
    std::string TextOf(Alert prayer) {
        frmAzan->prayerIndex = prayer;
        platform.athanFace.variables.clear();
        SetAzanText();
        EXPECT_EQ(platform.athanFace.variables.size(), 1U);
        return platform.athanFace.Value(kText);
    }
};

TEST_F(AzanTextTest, ComesFromThePackForEachPrayer) {
    EXPECT_EQ(TextOf(Alert::kFajr), "It is time for the Fajr prayer");
    EXPECT_EQ(TextOf(Alert::kZuhr), "It is time for the Zuhr prayer");
    EXPECT_EQ(TextOf(Alert::kAsr), "It is time for the Asr prayer");
    EXPECT_EQ(TextOf(Alert::kMaghrib), "It is time for the Maghrib prayer");
    EXPECT_EQ(TextOf(Alert::kIsha), "It is time for the Isha prayer");
}

TEST_F(AzanTextTest, SpeaksTheCurrentLanguage) {
    currentLanguage = "Arabic";
    EXPECT_THAT(TextOf(Alert::kFajr), HasSubstr("الفجر"));
}

TEST_F(AzanTextTest, IsEmptyForAnAthanThatTheUserAskedFor) {
    EXPECT_EQ(TextOf(Alert::kAthanNow), "");
}

TEST_F(AzanTextTest, IsEmptyWithAPackThatLacksTheTexts) {
    platform.files.WriteWhole("/program/lang/Short.ini", BytesOf("[msg]\n1=a\n"));
    currentLanguage = "Short";
    EXPECT_EQ(TextOf(Alert::kFajr), "");
}

}  // namespace
}  // namespace horavex
