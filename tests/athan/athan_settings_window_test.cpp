#include "athan/athan_settings_window.h"

#include "athan/athan_state.h"
#include "athan/player.h"
#include "athan/sound.h"
#include "athan/sound_tools.h"
#include "lang/language_pack.h"
#include "support/program_test.h"
#include "windows/frm_athan.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kFolder = "/program/Athan/";

struct AthanSettingsTest : ProgramTest {
    AthanSettingsTest() {
        for (const std::string name :
             {"athan1", "athan2", "athan3", "fagr_athan1", "fagr_athan2"}) {
            Write(name + ".mp3", name);
        }
        StartAgain();
    }

    void Write(const std::string& name, const std::string& content) {
        platform.files.WriteWhole(kFolder + name, BytesOf(content));
        platform.audioFile.sounds[kFolder + name] = {Bytes(400), 100, {1}};
    }

    std::string Sound(const std::string& name) {
        return StringOf(platform.folder.ReadWhole("Athan\\" + name));
    }

    void Store(const std::string& name, const std::string& value) {
        platform.registry.SetValue("Software\\Horavex\\Settings", name, value);
    }

    /// A sound of the user's, chosen for Fajr (0) or the others (1).
    void Choose(int index, const std::string& path) {
        platform.dialogs.chosenFile = path;
        frmAthan->cmdBrowse(index).UserClick();
    }

    static std::vector<std::string> Selected() {
        std::vector<std::string> names;
        for (Control* control : frmAthan->Controls()) {
            const auto* option = dynamic_cast<OptionButton*>(control);
            if (option != nullptr && option->Value()) {
                names.push_back(option->Name());
            }
        }
        return names;
    }

    const std::vector<std::string>& Opened() const { return platform.audioFile.opened; }
};

TEST_F(AthanSettingsTest, MenuOpensItModalInFrontOfTheFace) {
    frmMain->mnuAthanSettings.UserClick();
    EXPECT_TRUE(frmAthan->Visible());
    EXPECT_TRUE(frmAthan->IsModal());
    EXPECT_EQ(frmAthan->Owner(), &*frmMain);
    EXPECT_EQ(frmAthan->Caption(), "Athan Settings");
}

TEST_F(AthanSettingsTest, SpeaksTheCurrentLanguage) {
    currentLanguage = "German";
    frmAthan->Load();
    EXPECT_EQ(frmAthan->Caption(), "Adhan-Einstellungen");
    EXPECT_EQ(frmAthan->AthanSettingSet.ToolTipText(), "Adhan-Einstellung speichern");
    EXPECT_EQ(frmAthan->Picture_(5).ToolTipText(), "Adhan unterbrechen");
}

TEST_F(AthanSettingsTest, FreshRegistrySelectsTheFirstReciterOfBoth) {
    frmAthan->Load();
    EXPECT_THAT(Selected(), ElementsAre("DessamFajr", "DessamAthan"));
    EXPECT_EQ(frmAthan->lblCustomFajr.Caption(), "");
    EXPECT_EQ(frmAthan->lblCustomOther.Caption(), "");
}

TEST_F(AthanSettingsTest, StoredTypesSelectTheirOptions) {
    const std::vector<std::string> fajr = {"DessamFajr", "CorwynFajr", "optCustomFajr"};
    const std::vector<std::string> others = {"DessamAthan", "CorwynAthan", "VarnelAthan",
                                             "optCustomAll"};
    for (std::size_t i = 0; i < others.size(); ++i) {
        Store("Fajr Athan Type", std::to_string(i % 3 + 1));
        Store("Other Athan Type", std::to_string(i + 1));
        frmAthan->Load();
        EXPECT_THAT(Selected(), ElementsAre(fajr[i % 3], others[i]));
        frmAthan->Unload();
    }
}

TEST_F(AthanSettingsTest, AnyOtherStoredTypeSelectsNothing) {
    for (const std::string type : {"0", "4", "x", ""}) {
        Store("Fajr Athan Type", type);
        Store("Other Athan Type", type == "4" ? "5" : type);
        frmAthan->Load();
        EXPECT_THAT(Selected(), IsEmpty()) << type;
        frmAthan->Unload();
    }
}

TEST_F(AthanSettingsTest, RecitersOfTheOtherPrayersAreOfferedWithTheirFilesAlone) {
    platform.files.Delete(kFolder + "athan2.mp3");
    platform.files.Delete(kFolder + "fagr_athan1.mp3");
    frmAthan->Load();
    EXPECT_TRUE(frmAthan->DessamAthan.Visible());
    EXPECT_FALSE(frmAthan->CorwynAthan.Visible());
    EXPECT_TRUE(frmAthan->VarnelAthan.Visible());
    EXPECT_TRUE(frmAthan->DessamFajr.Visible()) << "those of Fajr are not looked for";
    EXPECT_TRUE(frmAthan->CorwynFajr.Visible());
}

TEST_F(AthanSettingsTest, StoredCustomFilesAreShown) {
    Store("Custom Athan File0", "/home/dawn.ogg");
    Store("Custom Athan File1", "/home/day.ogg");
    frmAthan->Load();
    EXPECT_EQ(frmAthan->lblCustomFajr.Caption(), "/home/dawn.ogg");
    EXPECT_EQ(frmAthan->lblCustomOther.Caption(), "/home/day.ogg");
    EXPECT_EQ(CustomAthanFile(0), "/home/dawn.ogg");
    EXPECT_EQ(CustomAthanFile(1), "/home/day.ogg");
}

TEST_F(AthanSettingsTest, BrowseIsForTheCustomOptionOfItsGroup) {
    frmAthan->Load();
    EXPECT_FALSE(frmAthan->cmdBrowse(0).Enabled());
    EXPECT_FALSE(frmAthan->cmdBrowse(1).Enabled());
    frmAthan->optCustomFajr.UserClick();
    EXPECT_TRUE(frmAthan->cmdBrowse(0).Enabled());
    EXPECT_FALSE(frmAthan->cmdBrowse(1).Enabled());
    frmAthan->optCustomAll.UserClick();
    EXPECT_TRUE(frmAthan->cmdBrowse(1).Enabled());
    frmAthan->CorwynFajr.UserClick();
    frmAthan->VarnelAthan.UserClick();
    EXPECT_FALSE(frmAthan->cmdBrowse(0).Enabled());
    EXPECT_FALSE(frmAthan->cmdBrowse(1).Enabled());
}

TEST_F(AthanSettingsTest, ClickOnAnOptionStopsTheSound) {
    frmAthan->Load();
    for (OptionButton* option :
         {&frmAthan->CorwynFajr, &frmAthan->optCustomFajr, &frmAthan->DessamFajr,
          &frmAthan->CorwynAthan, &frmAthan->VarnelAthan, &frmAthan->optCustomAll,
          &frmAthan->DessamAthan}) {
        OpenFileForPlay(kFolder + "athan1.mp3");
        option->UserClick();
        EXPECT_FALSE(IsPlaying()) << option->Name();
    }
}

TEST_F(AthanSettingsTest, BrowseAsksForASoundWithItsFilter) {
    Store("Fajr Athan Type", "3");
    frmAthan->Load();
    Choose(0, "");
    ASSERT_EQ(platform.dialogs.fileRequests.size(), 1U);
    const FileRequest& request = platform.dialogs.fileRequests[0];
    EXPECT_EQ(request.title, "Open Audio Or Video File");
    EXPECT_EQ(request.filterIndex, 6);
    EXPECT_EQ(request.filter,
              "All upported formats (*.*)|*.wav;*.mp3;*.mp2;*.mp1;*.mpeg;*.vox;*.raw;*.pcm;*.gsm;"
              "*adpcm;*.g726;*.g721;*.g723;*.ogg;*.mpc;*.mp+;*.dss|"
              "Wav files (*.wav)|*.wav|"
              "MPEG files (*.mp3;*.mp2;*.mp1;*.mpeg)|*.mp3;*.mp2;*.mp1;*.mpeg|"
              "Dialogic ADPCM files (*.vox)|*.vox|"
              "Raw files (*.raw;*.pcm;*.gsm;*adpcm)|*.raw;*.pcm;*.gsm;*adpcm|"
              "CCUIT G726 files (*.g726)|*.g726|"
              "CCUIT G721 files (*.g721)|*.g721|"
              "CCUIT G721 files (*.g723)|*.g723|"
              "Ogg Vorbis files (*.ogg)|*.ogg|"
              "MPPlus files (*.mpc;*.mp+)|*.mpc;*.mp+|"
              "DSS files (*.dss)|*.dss|");
}

TEST_F(AthanSettingsTest, ChosenFileIsStoredAndShownAtOnce) {
    Store("Fajr Athan Type", "3");
    Store("Other Athan Type", "4");
    frmAthan->Load();
    Choose(0, "/home/dawn.ogg");
    EXPECT_EQ(Stored("Custom Athan File0"), "/home/dawn.ogg");
    EXPECT_EQ(frmAthan->lblCustomFajr.Caption(), "/home/dawn.ogg");
    Choose(1, "/home/day.ogg");
    EXPECT_EQ(Stored("Custom Athan File1"), "/home/day.ogg");
    EXPECT_EQ(frmAthan->lblCustomOther.Caption(), "/home/day.ogg");
    EXPECT_EQ(CustomAthanFile(0), "/home/dawn.ogg");
    EXPECT_EQ(CustomAthanFile(1), "/home/day.ogg");
}

TEST_F(AthanSettingsTest, CancelledBrowseChangesNothing) {
    Store("Fajr Athan Type", "3");
    Store("Custom Athan File0", "/home/dawn.ogg");
    frmAthan->Load();
    Choose(0, "");
    EXPECT_EQ(Stored("Custom Athan File0"), "/home/dawn.ogg");
    EXPECT_EQ(frmAthan->lblCustomFajr.Caption(), "/home/dawn.ogg");
}

TEST_F(AthanSettingsTest, SaveCopiesTheChosenRecitersStoresThemAndCloses) {
    frmAthan->Load();
    frmAthan->CorwynFajr.UserClick();
    frmAthan->CorwynAthan.UserClick();
    frmAthan->AthanSettingSet.UserClick();
    EXPECT_EQ(Sound("fagr_athan.mp3"), "fagr_athan2");
    EXPECT_EQ(Sound("athan.mp3"), "athan2");
    EXPECT_EQ(Stored("Fajr Athan Type"), "2");
    EXPECT_EQ(Stored("Other Athan Type"), "2");
    EXPECT_FALSE(frmAthan->IsLoaded());
    frmAthan->Load();
    frmAthan->DessamFajr.UserClick();
    frmAthan->DessamAthan.UserClick();
    frmAthan->AthanSettingSet.UserClick();
    EXPECT_EQ(Sound("fagr_athan.mp3"), "fagr_athan1");
    EXPECT_EQ(Sound("athan.mp3"), "athan1");
    EXPECT_EQ(Stored("Fajr Athan Type"), "1");
    EXPECT_EQ(Stored("Other Athan Type"), "1");
}

TEST_F(AthanSettingsTest, ThirdReciterIsStoredAndTheSoundInUseStays) {
    frmAthan->Load();
    frmAthan->VarnelAthan.UserClick();
    frmAthan->AthanSettingSet.UserClick();
    EXPECT_EQ(Stored("Other Athan Type"), "3");
    EXPECT_EQ(Sound("athan.mp3"), "athan1");
    EXPECT_FALSE(frmAthan->IsLoaded());
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
}

TEST_F(AthanSettingsTest, CustomFilesAreCopiedFromWhereverTheyLie) {
    platform.files.WriteWhole("/home/dawn.ogg", BytesOf("my dawn"));
    platform.files.WriteWhole("/home/day.ogg", BytesOf("my day"));
    frmAthan->Load();
    frmAthan->optCustomFajr.UserClick();
    frmAthan->optCustomAll.UserClick();
    Choose(0, "/home/dawn.ogg");
    Choose(1, "/home/day.ogg");
    frmAthan->AthanSettingSet.UserClick();
    EXPECT_EQ(Sound("fagr_athan.mp3"), "my dawn");
    EXPECT_EQ(Sound("athan.mp3"), "my day");
    EXPECT_EQ(Stored("Fajr Athan Type"), "3");
    EXPECT_EQ(Stored("Other Athan Type"), "4");
}

TEST_F(AthanSettingsTest, CustomFileKnownByItsEndingAloneIsSavedReencoded) {
    InstallSoundTools({[](const std::string& path) {
                           return path.ends_with(".vox") ? SoundKind::kByEnding
                                                         : SoundKind::kByContent;
                       },
                       [](const std::string& path) { return BytesOf("flac of " + path); }});
    platform.files.WriteWhole("/home/dawn.vox", BytesOf("bare"));
    platform.files.WriteWhole("/home/day.ogg", BytesOf("my day"));
    frmAthan->Load();
    frmAthan->optCustomFajr.UserClick();
    frmAthan->optCustomAll.UserClick();
    Choose(0, "/home/dawn.vox");
    Choose(1, "/home/day.ogg");
    frmAthan->AthanSettingSet.UserClick();
    EXPECT_EQ(Sound("fagr_athan.mp3"), "flac of /home/dawn.vox");
    EXPECT_EQ(Sound("athan.mp3"), "my day");
}

struct BareSamplesTest : AthanSettingsTest {
    BareSamplesTest() {
        InstallSoundTools({[](const std::string&) { return SoundKind::kBareSamples; }, {}});
        platform.files.WriteWhole("/home/dawn.raw", BytesOf("bare"));
        frmAthan->Load();
        frmAthan->optCustomFajr.UserClick();
        Choose(0, "/home/dawn.raw");
    }

    void ExpectTold() {
        ASSERT_EQ(platform.dialogs.messages.size(), 1U);
        EXPECT_THAT(platform.dialogs.messages[0].text, testing::HasSubstr("WAV, FLAC, Ogg or MP3"));
        EXPECT_EQ(platform.dialogs.messages[0].icon, MessageIcon::kExclamation);
    }
};

TEST_F(BareSamplesTest, AreRefusedAtListen) {
    frmAthan->Picture_(4).UserClick();
    ExpectTold();
    EXPECT_THAT(Opened(), IsEmpty());
}

TEST_F(BareSamplesTest, AreRefusedAtSavingAndTheWindowStays) {
    frmAthan->AthanSettingSet.UserClick();
    ExpectTold();
    EXPECT_TRUE(frmAthan->IsLoaded());
    EXPECT_EQ(Sound("fagr_athan.mp3"), "fagr_athan1");
    EXPECT_EQ(Stored("Fajr Athan Type"), "");
}

TEST_F(BareSamplesTest, DoNotConcernAReciter) {
    frmAthan->DessamFajr.UserClick();
    frmAthan->Picture_(4).UserClick();
    frmAthan->AthanSettingSet.UserClick();
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
    EXPECT_FALSE(frmAthan->IsLoaded());
}

TEST_F(AthanSettingsTest, CustomFajrWithoutAFileIsRefusedAndNothingIsSaved) {
    frmAthan->Load();
    frmAthan->optCustomFajr.UserClick();
    frmAthan->CorwynAthan.UserClick();
    frmAthan->AthanSettingSet.UserClick();
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(platform.dialogs.messages[0].text, "No custom file selected");
    EXPECT_EQ(platform.dialogs.messages[0].title, "");
    EXPECT_EQ(platform.dialogs.messages[0].icon, MessageIcon::kExclamation);
    EXPECT_TRUE(frmAthan->IsLoaded());
    EXPECT_EQ(Sound("fagr_athan.mp3"), "fagr_athan1");
    EXPECT_EQ(Sound("athan.mp3"), "athan1");
    EXPECT_EQ(Stored("Fajr Athan Type"), "");
    EXPECT_EQ(Stored("Other Athan Type"), "");
}

TEST_F(AthanSettingsTest, OtherCustomWithoutAFileIsRefusedBehindTheFajrGroup) {
    frmAthan->Load();
    frmAthan->CorwynFajr.UserClick();
    frmAthan->optCustomAll.UserClick();
    frmAthan->AthanSettingSet.UserClick();
    EXPECT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_TRUE(frmAthan->IsLoaded());
    EXPECT_EQ(Stored("Fajr Athan Type"), "2");
    EXPECT_EQ(Sound("fagr_athan.mp3"), "fagr_athan2");
    EXPECT_EQ(Stored("Other Athan Type"), "");
}

TEST_F(AthanSettingsTest, FailedCopyIsPassedOverAndTheChoiceIsStored) {
    platform.files.Delete(kFolder + "fagr_athan2.mp3");
    frmAthan->Load();
    frmAthan->CorwynFajr.UserClick();
    frmAthan->optCustomAll.UserClick();
    Choose(1, "/home/gone.ogg");
    frmAthan->AthanSettingSet.UserClick();
    EXPECT_EQ(Sound("fagr_athan.mp3"), "fagr_athan1");
    EXPECT_EQ(Sound("athan.mp3"), "athan1");
    EXPECT_EQ(Stored("Fajr Athan Type"), "2");
    EXPECT_EQ(Stored("Other Athan Type"), "4");
    EXPECT_FALSE(frmAthan->IsLoaded());
}

TEST_F(AthanSettingsTest, WithNothingSelectedSaveStoresNothingAndCloses) {
    Store("Fajr Athan Type", "0");
    Store("Other Athan Type", "0");
    frmAthan->Load();
    frmAthan->AthanSettingSet.UserClick();
    EXPECT_EQ(Stored("Fajr Athan Type"), "0");
    EXPECT_EQ(Stored("Other Athan Type"), "0");
    EXPECT_FALSE(frmAthan->IsLoaded());
}

TEST_F(AthanSettingsTest, ListenPlaysTheSelectedReciter) {
    frmAthan->Load();
    for (OptionButton* option :
         {&frmAthan->DessamAthan, &frmAthan->CorwynAthan, &frmAthan->VarnelAthan}) {
        option->UserClick();
        frmAthan->Picture_(1).UserClick();
    }
    for (OptionButton* option : {&frmAthan->DessamFajr, &frmAthan->CorwynFajr}) {
        option->UserClick();
        frmAthan->Picture_(4).UserClick();
    }
    EXPECT_THAT(Opened(),
                ElementsAre(kFolder + "athan1.mp3", kFolder + "athan2.mp3", kFolder + "athan3.mp3",
                            kFolder + "fagr_athan1.mp3", kFolder + "fagr_athan2.mp3"));
}

TEST_F(AthanSettingsTest, ListenPlaysTheCustomFileWhereNoReciterIsSelected) {
    Store("Fajr Athan Type", "3");
    Store("Other Athan Type", "0");
    Store("Custom Athan File0", "/home/dawn.ogg");
    Store("Custom Athan File1", "/home/day.ogg");
    frmAthan->Load();
    frmAthan->Picture_(1).UserClick();
    frmAthan->Picture_(4).UserClick();
    EXPECT_THAT(Opened(), ElementsAre("/home/day.ogg", "/home/dawn.ogg"));
}

TEST_F(AthanSettingsTest, ListenWithoutACustomFileLeavesNothingPlaying) {
    Store("Fajr Athan Type", "3");
    frmAthan->Load();
    frmAthan->Picture_(4).UserClick();
    EXPECT_FALSE(IsPlaying());
    EXPECT_THAT(Opened(), IsEmpty());
}

TEST_F(AthanSettingsTest, PauseAndStopServeBothGroups) {
    frmAthan->Load();
    for (const int pause : {2, 5}) {
        frmAthan->Picture_(1).UserClick();
        frmAthan->Picture_(pause).UserClick();
        EXPECT_EQ(Paused, -1);
        frmAthan->Picture_(pause).UserClick();
        EXPECT_EQ(Paused, 0);
        frmAthan->Picture_(pause + 1).UserClick();
        EXPECT_FALSE(IsPlaying());
    }
}

TEST_F(AthanSettingsTest, ListenWhilePausedGoesOnWithTheFormerSound) {
    frmAthan->Load();
    frmAthan->Picture_(1).UserClick();
    frmAthan->Picture_(2).UserClick();
    frmAthan->Picture_(4).UserClick();
    EXPECT_THAT(Opened(), ElementsAre(kFolder + "athan1.mp3"));
    EXPECT_EQ(Paused, 0);
}

TEST_F(AthanSettingsTest, EndOfATriedSoundClearsAnAthan) {
    athanActive = -1;
    frmAthan->Load();
    frmAthan->Picture_(1).UserClick();
    platform.audioPlayer.PlayToTheEnd();
    EXPECT_EQ(athanActive, 0);
}

TEST_F(AthanSettingsTest, CloseUnloadsAndTheSoundStops) {
    frmAthan->Load();
    frmAthan->Picture_(1).UserClick();
    frmAthan->cmdClose.UserClick();
    EXPECT_FALSE(frmAthan->IsLoaded());
    EXPECT_FALSE(IsPlaying());
}

}  // namespace
}  // namespace horavex
