#include "athan/message_window.h"

#include "athan/athan_state.h"
#include "athan/player.h"
#include "lang/language_pack.h"
#include "store/text_table.h"
#include "support/program_test.h"

namespace horavex {
namespace {

using testing::ElementsAre;

struct MessageWindowTest : ProgramTest {
    MessageWindowTest() {
        platform.audioFile.sounds["/program/Athan/athan.mp3"] = {Bytes(400), 100, {1}};
        StartAgain();
        fMessage->Show();
    }
};

TEST_F(MessageWindowTest, LoadTranslatesButKeepsItsOwnTitle) {
    currentLanguage = "German";
    fMessage->Unload();
    fMessage->Load();
    EXPECT_EQ(fMessage->lblMessage2.Caption(), "Bitte warten\u00a0…");
    EXPECT_EQ(fMessage->Caption(), "Horavex Prayer Time Software ");
}

TEST_F(MessageWindowTest, LoadTakesTheCancelButtonsCaptionFromTheAcceptedLanguage) {
    currentLanguage = "German";
    ActiveSettings.Language = 1;
    Settings.Language = 2;
    ASSERT_NE(TextItem(TextEntry::kCancel, 1), TextItem(TextEntry::kCancel, 2));
    fMessage->Unload();
    fMessage->Load();
    EXPECT_EQ(fMessage->CmdCancel.Caption(), TextItem(TextEntry::kCancel, 1));
}

TEST_F(MessageWindowTest, ButtonPlaysTheSoundOfTheOtherPrayers) {
    fMessage->Athan_Sound.UserClick();
    EXPECT_THAT(platform.audioFile.opened, ElementsAre("/program/Athan/athan.mp3"));
    EXPECT_TRUE(IsPlaying());
}

TEST_F(MessageWindowTest, UnloadStopsTheSound) {
    fMessage->Athan_Sound.UserClick();
    fMessage->Unload();
    EXPECT_FALSE(IsPlaying());
}

TEST_F(MessageWindowTest, CancelStopsTheSoundAndTheWindowStays) {
    fMessage->CmdCancel.SetVisible(true);
    fMessage->Athan_Sound.UserClick();
    fMessage->CmdCancel.UserClick();
    EXPECT_FALSE(IsPlaying());
    EXPECT_EQ(alarmDismissed, -1);
    EXPECT_TRUE(fMessage->IsLoaded());
}

}  // namespace
}  // namespace horavex
