#include "shell/tray_icon.h"

#include "lang/language_pack.h"
#include "support/program_test.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class TrayIconTest : public ProgramTest {
protected:
    TrayIconTest() {
        StartAgain();
        frmMain->Label1.SetCaption("Next:");
        frmMain->lblNextAthan.SetCaption("Asr 3:15");
        frmMain->Label3.SetCaption("Left:");
        frmMain->lblRemaining.SetCaption("0:9:59");
    }

    void Send(TrayMessage message) { platform.tray.onMessage(message); }

    const std::string tip = "TraySetTip Next:Asr 3:15 Left:0:9:59";
};

TEST_F(TrayIconTest, TipTellsTheNextPrayerThenTheRemainingTime) {
    for (const char* language : {"English", "German", "whatever"}) {
        currentLanguage = language;
        EXPECT_EQ(TrayTip(), "Next:Asr 3:15 Left:0:9:59") << language;
    }
}

TEST_F(TrayIconTest, ArabicTipBeginsWithTheRemainingTimeAndHasNoSeparatingBlanks) {
    for (const char* language : {"Arabic", "arabic", "ARABIC"}) {
        currentLanguage = language;
        EXPECT_EQ(TrayTip(), "Left:0:9:59Next:Asr 3:15") << language;
    }
}

TEST_F(TrayIconTest, MovesAndPressesFreshenTheTipAndNothingMore) {
    for (const TrayMessage message :
         {TrayMessage::kMove, TrayMessage::kLeftDown, TrayMessage::kRightDown}) {
        platform.desktop.calls.clear();
        Send(message);
        EXPECT_THAT(platform.desktop.calls, ElementsAre(tip));
    }
}

TEST_F(TrayIconTest, DoubleClickBringsAHiddenFaceBack) {
    frmMain->Hide();
    Send(TrayMessage::kLeftDoubleClick);
    EXPECT_TRUE(frmMain->Visible());
    EXPECT_THAT(platform.desktop.calls, ElementsAre(tip, "show frmMain", "Activate frmMain"));
}

TEST_F(TrayIconTest, DoubleClickRestoresAMinimisedFace) {
    frmMain->SetWindowState(WindowState::kMinimized);
    Send(TrayMessage::kLeftDoubleClick);
    EXPECT_EQ(frmMain->State(), WindowState::kNormal);
}

TEST_F(TrayIconTest, RightReleaseOpensTheMenuOverTheFace) {
    Send(TrayMessage::kRightUp);
    EXPECT_THAT(platform.desktop.calls,
                ElementsAre(tip, "SetForeground frmMain", "PopUpMenuAtPointer frmMain mnuPopup"));
}

TEST_F(TrayIconTest, TicksFreshenTheTipOnlyWithAnotherText) {
    SetClock(2026, 11, 21, 12, 30, 0);
    frmMain->tmrUpdate.Tick();
    EXPECT_THAT(platform.desktop.calls, ElementsAre(HasSubstr("TraySetTip ")));
    platform.desktop.calls.clear();
    frmMain->tmrUpdate.Tick();
    EXPECT_THAT(platform.desktop.calls, IsEmpty());
    SetClock(2026, 11, 21, 12, 30, 1);
    frmMain->tmrUpdate.Tick();
    EXPECT_THAT(platform.desktop.calls, ElementsAre("TraySetTip " + TrayTip()));
}

TEST_F(TrayIconTest, IconComesWithTheTitleAndGoesAtTheExit) {
    TrayAdd();
    TrayRemove();
    EXPECT_THAT(platform.desktop.calls, ElementsAre("TrayAdd Horavex", "TrayRemove"));
}

}  // namespace
}  // namespace horavex
