#pragma once

#include <algorithm>

#include "athan/athan_choices.h"
#include "support/program_test.h"
#include "windows/frm_reminders.h"

namespace horavex {

/// The window "Athan and Reminders" over all its sounds, one of the user's, and two devices.
struct RemindersTest : ProgramTest {
    static constexpr const char* kFolder = "/program/Athan/";
    static constexpr const char* kOwn = "/music/cairo.ogg";

    // Rows of a list of sounds without a file of the user's.
    static constexpr int kToneRow = 6;
    static constexpr int kNoSoundRow = 7;

    // The file of the user's, in a list that has one.
    static constexpr int kOwnFileRow = 6;

    RemindersTest() {
        for (const char* name : {"athan.mp3", "fagr_athan.mp3", "athan1.mp3", "athan2.mp3",
                                 "athan3.mp3", "fagr_athan1.mp3", "fagr_athan2.mp3", "tone.mp3"}) {
            AddSound(Path(name));
        }
        AddSound(kOwn);
        platform.audioPlayer.devices = {{"hall", "The hall"}, {"desk", "The desk"}};
        StartAgain();
        ActiveSettings.AthanType = kSoundAthan;
    }

    static std::string Path(const std::string& name) { return kFolder + name; }

    void AddSound(const std::string& path) {
        platform.files.WriteWhole(path, BytesOf("sound"));
        platform.audioFile.sounds[path] = {Bytes(400), 100, {1}};
    }

    static void Open() { frmMain->mnuReminders.UserClick(); }
    void OpenAgain() {
        form.cmdOK.UserClick();
        Open();
    }

    /// The user chooses a file of the own in a prayer's list.
    void ChooseOwn(int prayer, const std::string& path) {
        platform.dialogs.chosenFile = path;
        const auto& items = form.cboSound(prayer).Items();
        const auto row = std::ranges::find(items, "Own file\u2026") - items.begin();
        form.cboSound(prayer).UserSelect(static_cast<int>(row));
    }

    const std::vector<std::string>& Opened() const { return platform.audioFile.opened; }
    std::string Said() const { return form.lblShownSound.Caption(); }

    RemindersForm& form = *frmReminders;
};

}  // namespace horavex
