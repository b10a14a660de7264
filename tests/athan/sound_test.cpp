#include "athan/sound.h"

#include "support/program_test.h"

namespace horavex {
namespace {

struct AthanFilesTest : testing::Test {
    void Write(const std::string& name, const std::string& sound) {
        platform.files.WriteWhole("/program/Athan/" + name, BytesOf(sound));
    }

    /// The sound of that name; empty where there is none.
    std::string Sound(const std::string& name) {
        const std::string path = "Athan\\" + name;
        return platform.folder.Exists(path) ? StringOf(platform.folder.ReadWhole(path)) : "";
    }

    static void ExpectSoundOffered(bool offered) {
        EXPECT_EQ(HoravexMainForm->optAthanType(kSoundAthan).Visible(), offered);
        EXPECT_EQ(HoravexMainForm->mnuPopSound.Visible(), offered);
        EXPECT_EQ(HoravexMainForm->mnuSound.Visible(), offered);
    }

    TestPlatform platform;
};

TEST_F(AthanFilesTest, FreshInstallMakesBothSoundsFromTheBuiltInOnes) {
    Write("athan1.mp3", "any prayer");
    Write("fagr_athan1.mp3", "dawn");
    CheckAthanFiles();
    EXPECT_EQ(Sound("athan.mp3"), "any prayer");
    EXPECT_EQ(Sound("fagr_athan.mp3"), "dawn");
    ExpectSoundOffered(true);
}

TEST_F(AthanFilesTest, SoundsThatAreThereStay) {
    Write("athan1.mp3", "built in");
    Write("fagr_athan1.mp3", "built in");
    Write("athan.mp3", "chosen");
    Write("fagr_athan.mp3", "chosen for dawn");
    CheckAthanFiles();
    EXPECT_EQ(Sound("athan.mp3"), "chosen");
    EXPECT_EQ(Sound("fagr_athan.mp3"), "chosen for dawn");
    ExpectSoundOffered(true);
}

TEST_F(AthanFilesTest, EachSoundIsMadeWithoutTheOther) {
    Write("athan1.mp3", "any prayer");
    CheckAthanFiles();
    EXPECT_EQ(Sound("athan.mp3"), "any prayer");
    EXPECT_EQ(Sound("fagr_athan.mp3"), "");
    Write("fagr_athan1.mp3", "dawn");
    CheckAthanFiles();
    EXPECT_EQ(Sound("fagr_athan.mp3"), "dawn");
}

TEST_F(AthanFilesTest, WithoutAFajrSoundNoneIsOffered) {
    Write("athan.mp3", "any prayer");
    CheckAthanFiles();
    ExpectSoundOffered(false);
}

TEST_F(AthanFilesTest, FajrSoundAloneIsOffered) {
    Write("fagr_athan.mp3", "dawn");
    CheckAthanFiles();
    ExpectSoundOffered(true);
}

TEST_F(AthanFilesTest, OfferComesBackWithTheSound) {
    CheckAthanFiles();
    ExpectSoundOffered(false);
    Write("fagr_athan1.mp3", "dawn");
    CheckAthanFiles();
    ExpectSoundOffered(true);
}

TEST_F(AthanFilesTest, OtherBuiltInSoundsStandInForNothing) {
    Write("athan2.mp3", "second");
    Write("athan3.mp3", "third");
    Write("fagr_athan2.mp3", "second");
    CheckAthanFiles();
    EXPECT_EQ(Sound("athan.mp3"), "");
    EXPECT_EQ(Sound("fagr_athan.mp3"), "");
}

TEST_F(AthanFilesTest, NamesAreFoundInAnyLetterCase) {
    platform.files.WriteWhole("/program/ATHAN/Fagr_Athan1.MP3", BytesOf("dawn"));
    CheckAthanFiles();
    EXPECT_EQ(Sound("fagr_athan.mp3"), "dawn");
}

TEST_F(AthanFilesTest, FailedReadOrWriteIsPassedOverAndTheNextSoundIsMade) {
    for (const int call : {1, 3}) {  // opening and writing; reading comes between
        SCOPED_TRACE(call);
        Write("athan1.mp3", "any prayer");
        Write("fagr_athan1.mp3", "dawn");
        platform.failingFiles.FailCall(call);
        EXPECT_NO_THROW(CheckAthanFiles());
        platform.failingFiles.FailCall(0);
        EXPECT_EQ(Sound("athan.mp3"), "");
        EXPECT_EQ(Sound("fagr_athan.mp3"), "dawn");
        EXPECT_TRUE(platform.dialogs.messages.empty());
        platform.files.Delete("/program/Athan/fagr_athan.mp3");
    }
}

TEST_F(AthanFilesTest, FailedCopyForDawnTakesTheOfferAway) {
    Write("athan.mp3", "any prayer");
    Write("fagr_athan1.mp3", "dawn");
    platform.failingFiles.FailCall(3);
    CheckAthanFiles();
    ExpectSoundOffered(false);
}

struct AthanStartTest : ProgramTest {};

TEST_F(AthanStartTest, StartMakesTheSoundsAndKeepsTheStoredAthanType) {
    platform.files.WriteWhole("/program/Athan/athan1.mp3", BytesOf("any prayer"));
    platform.files.WriteWhole("/program/Athan/fagr_athan1.mp3", BytesOf("dawn"));
    Start();
    EXPECT_TRUE(platform.files.Exists("/program/Athan/athan.mp3"));
    EXPECT_TRUE(platform.files.Exists("/program/Athan/fagr_athan.mp3"));
    EXPECT_TRUE(HoravexMainForm->optAthanType(kSoundAthan).Visible());
}

TEST_F(AthanStartTest, WithoutSoundsTheStoredAthanTypeStaysAndIsNotOffered) {
    Start();
    EXPECT_FALSE(HoravexMainForm->optAthanType(kSoundAthan).Visible());
    EXPECT_EQ(ActiveSettings.AthanType, kSoundAthan);
}

}  // namespace
}  // namespace horavex
