#include "athan/athan_settings_window.h"

#include <array>
#include <string>
#include <vector>

#include "athan/bare_samples.h"
#include "athan/prayer_sound.h"
#include "athan/sound.h"
#include "athan/sound_tools.h"
#include "base/fault.h"
#include "base/program_state.h"
#include "engine/center_on_screen.h"
#include "lang/form_language.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "store/register.h"
#include "windows/frm_athan.h"

namespace horavex {

namespace {

std::array<std::string, 2> customAthanFiles;

const ProgramStateReset reset([] { customAthanFiles = {}; });

/// A built-in sound and the option that stands for it.
struct Reciter {
    OptionButton* option;
    const char* heard;   // when the user tries it
    const char* copied;  // when it is saved
};

/// One group of options. The options of the reciters have the types "1", "2" and so on, the custom
/// one that behind theirs.
struct Group {
    int index;  // of its custom file, browse button and registry value
    std::vector<Reciter> reciters;
    OptionButton* custom;
    Label* customPath;
    const char* played;  // what the choice is copied to
    const char* typeValue;

    std::string CustomType() const { return std::to_string(reciters.size() + 1); }
};

Group FajrGroup() {
    FrmAthan& form = *frmAthan;
    return {0,
            {{&form.DessamFajr, "Athan\\fagr_athan1.mp3", "athan\\fagr_athan1.mp3"},
             {&form.CorwynFajr, "Athan\\fagr_athan2.mp3", "athan\\fagr_athan2.mp3"}},
            &form.optCustomFajr,
            &form.lblCustomFajr,
            "athan\\fagr_athan.mp3",
            "Fajr Athan Type"};
}

Group OtherGroup() {
    FrmAthan& form = *frmAthan;
    return {1,
            {{&form.DessamAthan, "Athan\\athan1.mp3", "athan\\athan1.mp3"},
             {&form.CorwynAthan, "Athan\\athan2.mp3", "athan\\athan2.mp3"},
             // No sound has that ending: the choice is stored, and the sound in use stays.
             {&form.VarnelAthan, "Athan\\athan3.mp3", "athan\\athan3.wmp3"}},
            &form.optCustomAll,
            &form.lblCustomOther,
            "athan\\athan.mp3",
            "Other Athan Type"};
}

constexpr const char* kFilter =
    "All upported formats (*.*)|*.wav;*.mp3;*.mp2;*.mp1;*.mpeg;*.vox;*.raw;*.pcm;*.gsm;*adpcm;"
    "*.g726;*.g721;*.g723;*.ogg;*.mpc;*.mp+;*.dss|"
    "Wav files (*.wav)|*.wav|"
    "MPEG files (*.mp3;*.mp2;*.mp1;*.mpeg)|*.mp3;*.mp2;*.mp1;*.mpeg|"
    "Dialogic ADPCM files (*.vox)|*.vox|"
    "Raw files (*.raw;*.pcm;*.gsm;*adpcm)|*.raw;*.pcm;*.gsm;*adpcm|"
    "CCUIT G726 files (*.g726)|*.g726|"
    "CCUIT G721 files (*.g721)|*.g721|"
    "CCUIT G721 files (*.g723)|*.g723|"
    "Ogg Vorbis files (*.ogg)|*.ogg|"
    "MPPlus files (*.mpc;*.mp+)|*.mpc;*.mp+|"
    "DSS files (*.dss)|*.dss|";
constexpr int kFirstFilter = 6;

void SaveValue(const std::string& name, const std::string& value) {
    std::int32_t result = 0;
    CRegister().REGSaveSetting(kLocalMachine, kSettingsKey, name, value, result);
}

std::string& CustomFile(const Group& group) {
    return customAthanFiles[static_cast<std::size_t>(group.index)];
}

void ShowCustomFile(const Group& group) {
    group.customPath->SetCaption(CustomFile(group));
}

// Load.

void SelectStored(const Group& group) {
    std::string type;
    CRegister().REGGetSetting(kLocalMachine, kSettingsKey, group.typeValue, "1", type);
    for (std::size_t i = 0; i < group.reciters.size(); ++i) {
        if (type == std::to_string(i + 1)) {
            group.reciters[i].option->SetValue(true);
        }
    }
    if (type == group.CustomType()) {
        group.custom->SetValue(true);
    }
}

void frmAthan_Load() {
    TranslateOnLoad(*frmAthan);
    LoadCustomAthanFiles();
    const Group fajr = FajrGroup();
    const Group other = OtherGroup();
    ShowCustomFile(fajr);
    ShowCustomFile(other);
    for (const Reciter& reciter : other.reciters) {
        reciter.option->SetVisible(Ports().programFolder.Exists(reciter.heard));
    }
    SelectStored(fajr);
    SelectStored(other);
    CenterOnScreen(*frmAthan);
}

// Options and browse buttons.

void BindOptions(const Group& group) {
    const auto choose = [index = group.index](bool custom) {
        return [index, custom] {
            StopSound();
            frmAthan->cmdBrowse(index).SetEnabled(custom);
        };
    };
    for (const Reciter& reciter : group.reciters) {
        reciter.option->onClick = choose(false);
    }
    group.custom->onClick = choose(true);
}

/// The chosen path is stored at once; it needs no saving.
void Browse(const Group& group) {
    const std::string path =
        Ports().dialogs.OpenFile({"Open Audio Or Video File", kFilter, kFirstFilter});
    if (path.empty()) {
        return;
    }
    CustomFile(group) = path;
    SaveValue("Custom Athan File" + std::to_string(group.index), path);
    ShowCustomFile(group);
}

// Saving. What cannot be copied leaves the former sound in place.

void SaveReciter(const Group& group, const Reciter& reciter, const std::string& type) {
    RunStep([&] {
        const ProgramFolder& folder = Ports().programFolder;
        folder.WriteWhole(group.played, folder.ReadWhole(reciter.copied, kLargestSound));
    });
    SaveValue(group.typeValue, type);
}

void SaveCustom(const Group& group) {
    RunStep([&] {
        Ports().programFolder.WriteWhole(group.played, PlayableByAnyName(CustomFile(group)));
    });
    SaveValue(group.typeValue, group.CustomType());
}

/// False, with a message, where the custom file is to be taken and there is none or none that
/// plays.
bool Save(const Group& group) {
    for (std::size_t i = 0; i < group.reciters.size(); ++i) {
        if (group.reciters[i].option->Value()) {
            SaveReciter(group, group.reciters[i], std::to_string(i + 1));
        }
    }
    if (!group.custom->Value()) {
        return true;
    }
    if (group.customPath->Caption().empty()) {
        Ports().dialogs.ShowMessage(GetLangString("msg", "23", "No custom file selected"), "",
                                    MessageIcon::kExclamation);
        return false;
    }
    if (RefusesBareSamples(CustomFile(group))) {
        return false;
    }
    SaveCustom(group);
    return true;
}

void AthanSettingSet_Click() {
    if (Save(FajrGroup()) && Save(OtherGroup())) {
        frmAthan->Unload();
    }
}

// Trying the sounds.

void Listen(const Group& group) {
    UseChosenDevice();
    for (const Reciter& reciter : group.reciters) {
        if (reciter.option->Value()) {
            PlayFile(FullPath(reciter.heard));
            return;
        }
    }
    if (!RefusesBareSamples(CustomFile(group))) {
        PlayFile(CustomFile(group));
    }
}

void Picture_Click(int index) {
    switch (index) {
        case 1:
            return Listen(OtherGroup());
        case 4:
            return Listen(FajrGroup());
        case 2:
        case 5:
            return PauseSound();
        default:
            return StopSound();
    }
}

}  // namespace

void LoadCustomAthanFiles() {
    for (std::size_t i = 0; i < customAthanFiles.size(); ++i) {
        CRegister().REGGetSetting(kLocalMachine, kSettingsKey,
                                  "Custom Athan File" + std::to_string(i), "", customAthanFiles[i]);
    }
}

const std::string& CustomAthanFile(std::size_t group) {
    return customAthanFiles.at(group);
}

void BindAthanSettingsWindow() {
    FrmAthan& form = *frmAthan;
    form.onLoad = frmAthan_Load;
    form.onUnload = StopSound;
    BindOptions(FajrGroup());
    BindOptions(OtherGroup());
    form.cmdBrowse(0).onClick = [] { Browse(FajrGroup()); };
    form.cmdBrowse(1).onClick = [] { Browse(OtherGroup()); };
    form.Picture_.Bind([](CommandButton& button) {
        button.onClick = [&button] { Picture_Click(button.Index()); };
    });
    form.cmdClose.onClick = [] { frmAthan->Unload(); };
    form.AthanSettingSet.onClick = AthanSettingSet_Click;
}

}  // namespace horavex
