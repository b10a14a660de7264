#include "soak/soak_world.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

#include "athan/athan_state.h"
#include "base/fault.h"
#include "base/int16.h"
#include "config/commit.h"
#include "config/settings_window.h"
#include "engine/current_year.h"
#include "engine/day_driver.h"
#include "engine/year_table.h"
#include "forms/timer.h"
#include "forms/timer_delay.h"
#include "platform/fault_box.h"
#include "shell/wiring.h"
#include "store/settings_record.h"
#include "store/text_table.h"
#include "timetables/document_tools.h"
#include "windows/f_message.h"
#include "windows/frm_azan.h"
#include "windows/frm_main.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

constexpr std::size_t kDeepest = 5;    // actions inside of each other
constexpr int kPatience = 12;          // things that are done to a modal window
constexpr double kLongestPause = 2.5;  // seconds between two actions
constexpr int kSampleBlock = 1000;     // bytes

constexpr const char* kFaceCommands[] = {
    "IDC_FS_drag",  "IDC_FS_Qibla",    "IDC_FS_Clock",      "IDC_FS_Day",      "IDC_FS_place",
    "IDC_FS_azan",  "IDC_FS_settings", "IDC_FS_tools",      "IDC_FS_help",     "IDC_FS_close",
    "IDC_FS_small", "IDC_FS_minimize", "IDC_FS_fullScreen", "IDC_FS_allTimes", "IDC_FS_none"};

constexpr const char* kChosenFiles[] = {"", "/home/sound.mp3", "/home/gone.mp3"};
constexpr const char* kWrittenFiles[] = {"", "/home/year", "/home/other"};

constexpr TrayMessage kTrayMessages[] = {TrayMessage::kMove, TrayMessage::kLeftDown,
                                         TrayMessage::kLeftDoubleClick, TrayMessage::kRightDown,
                                         TrayMessage::kRightUp};

/// Files of sounds that there are, of a second each.
void AddSounds(MemoryAudioFile& audio, MemoryFiles& files) {
    for (const char* name : {"/program/Athan/athan.mp3", "/program/Athan/fagr_athan.mp3",
                             "/program/Athan/athan1.mp3", "/home/sound.mp3"}) {
        files.WriteWhole(name, Bytes(1));
        audio.sounds[name] = {Bytes(kSampleBlock), 100, {1}};
    }
}

void WriteFile(const std::string& path, const PrintedYear&) {
    Ports().files.WriteWhole(path, BytesOf("pages"));
}

void WriteDrawing(const std::string& path, const Drawing&, double, double) {
    Ports().files.WriteWhole(path, BytesOf("dots"));
}

/// As the front ends do, where a fault is told; what is none has no place there.
template <class Action>
void Guard(Action action) {
    try {
        WithMemoryFaults(action);
    } catch (const Fault& fault) {
        ShowFault(fault);
    } catch (const std::exception& error) {
        ADD_FAILURE() << error.what();
    }
}

bool TellsOfAYearThatFails(const std::string& text) {
    return text.starts_with(TextItem(TextEntry::kYearImpossible, Settings.Language)) ||
           text.starts_with(TextItem(TextEntry::kYearImpossible, ActiveSettings.Language));
}

std::vector<Timer*> TimersOf(const std::vector<Form*>& forms) {
    std::vector<Timer*> timers;
    for (const Form* form : forms) {
        for (Control* control : form->Controls()) {
            if (control->Kind() == ControlKind::kTimer) {
                timers.push_back(static_cast<Timer*>(control));
            }
        }
    }
    return timers;
}

}  // namespace

/// Who is at it, as long as it lives.
struct SoakWorld::Actor {
    Actor(SoakWorld& world, const char* name) : actors(world.actors_) { actors.push_back(name); }
    ~Actor() { actors.pop_back(); }
    Actor(const Actor&) = delete;
    Actor& operator=(const Actor&) = delete;

    std::vector<const char*>& actors;
};

SoakWorld::SoakWorld(Chance& chance, SoakRecord& record, const SoakStore& store, Date now)
    : chance_(chance),
      record_(record),
      ports_{platform.clock,
             platform.loop,
             platform.failingFiles,
             platform.folder,
             platform.formats,
             dialogs_,
             platform.registry,
             platform.instanceGuard,
             platform.face,
             windows_,
             platform.tray,
             platform.shell,
             platform.network,
             platform.athanFace,
             platform.audioFile,
             platform.audioPlayer,
             zones_,
             platform.whereabouts,
             platform.notices,
             platform.mediaPlayers,
             platform.session,
             platform.almanac,
             platform.broadcast} {
    InstallPlatform(&ports_);
    platform.files = store.files;
    platform.registry = store.registry;
    platform.clock.Set(now);
    platform.notices.hasService = true;
    platform.network.connection = {true, kLanConnection};
    platform.network.answer = [] { return "9.9"; };
    AddSounds(platform.audioFile, platform.files);
    InstallFormHost(this);
    InstallDocumentTools({WriteFile, WriteDrawing, [](auto&&...) {}, [](auto&&...) {}});
    BindHooks();
    BindWindows();
}

SoakWorld::~SoakWorld() {
    InstallFormHost(nullptr);
}

// The athan's window takes no part in it: it is up for long, and would get all that is done.
void SoakWorld::BroughtUp(Form& form) {
    std::erase(loaded_, &form);
    loaded_.insert(&form == &*frmAzan ? loaded_.begin() : loaded_.end(), &form);
}

void SoakWorld::BindHooks() {
    dialogs_.onMessage = [this](const std::string& text, const std::string& title) {
        Tell(text, title);
    };
    dialogs_.onOpen = [this] { return std::string(chance_.Of(kChosenFiles)); };
    dialogs_.onSave = [this](const std::string& suffix) {
        const std::string name = chance_.Of(kWrittenFiles);
        return name.empty() ? name : name + suffix;
    };
    windows_.onMenu = [this](const std::string& form, const std::string& menu) {
        OpenMenu(form, menu);
    };
}

void SoakWorld::Start() {
    ++record_.starts;
    record_.Note("start");
    const Actor actor(*this, "start");
    ExpectSecond();
    Guard([] { frmMain->Load(); });
}

void SoakWorld::GoOnTo(int second) {
    const Date now = platform.clock.Now();
    platform.clock.Advance(second - (now - std::floor(now)) * kSecondsPerDay);
    platform.loop.Pump();
}

void SoakWorld::SetClock(Date now) {
    platform.clock.Set(now);
    arrivals_.Forget();
}

void SoakWorld::LetUserAct(int actions) {
    double when = 0.0;
    for (int i = 0; i < actions; ++i) {
        when += chance_.Between(0, static_cast<int>(kLongestPause * 10.0)) / 10.0;
        ++pending_;
        platform.loop.After(when, [this] { Act(); });
    }
    while (pending_ > 0) {
        platform.loop.Rest(1000);
    }
}

void SoakWorld::LetUserClose() {
    const Actor actor(*this, "user");
    Guard(OpenSettings);  // a wizard that was cancelled and a window that is minimised keep edits
    for (Form* form : Reachable()) {
        if (form != &*frmMain) {
            record_.Note("close " + form->Name());
            Guard([&] { form->UserClose(); });
        }
    }
}

void SoakWorld::ExpectSecond() {
    const auto now = std::llround(platform.clock.Now() * kSecondsPerDay * 1000.0);
    platform.loop.After(DelayToTick(1000, now) / 1000.0, [this] { OnSecond(); });
}

// The next second is due before this one begins: it may come in a wait of this one.
void SoakWorld::OnSecond() {
    ++record_.seconds;
    ExpectSecond();
    platform.desktop.calls.clear();
    platform.face.variables.clear();
    platform.athanFace.variables.clear();
    LetSoundGoOn();
    LetAlarmEnd();
    for (Timer* timer : TimersOf(loaded_)) {
        if (timer == &frmMain->tmrUpdate) {
            Tick();
        } else {
            const Actor actor(*this, "timer");
            Guard([&] { timer->Tick(); });
        }
    }
}

void SoakWorld::Tick() {
    if (!frmMain->tmrUpdate.Running()) {
        return;
    }
    const bool isOutermost = actors_.empty() && !CommitIsRunning();
    const auto former = std::tuple(record_.actions, LastRefreshDate, CurrentYear);
    const Date now = platform.clock.Now();
    const Actor actor(*this, "clock");
    Guard([] { frmMain->tmrUpdate.Tick(); });
    record_.arrivals += arrivals_.Take(now, platform.broadcast.signals);
    if (!isOutermost || !modals_.empty()) {
        return;
    }
    // One in which the user acts, or the year is calculated, ends with another year or seconds
    // late.
    if (former == std::tuple(record_.actions, LastRefreshDate, CurrentYear)) {
        ArrivalLedger::ExpectAllTold(now);
    }
    CheckWhatIsShown(platform);
}

void SoakWorld::LetSoundGoOn() {
    const Actor actor(*this, "sound");
    Guard([this] {
        if (chance_.OneIn(8)) {
            platform.audioPlayer.PlayToTheEnd();
        } else if (chance_.OneIn(40)) {
            platform.audioPlayer.LoseDevice();
        } else {
            platform.audioPlayer.FinishBlock();
        }
    });
}

/// It would go on for five minutes.
void SoakWorld::LetAlarmEnd() {
    if (alarmActive != kFalse && chance_.OneIn(5)) {
        const Actor actor(*this, "user");
        Guard([] { fMessage->cmdAlarmClose.UserClick(); });
    }
}

void SoakWorld::Act() {
    --pending_;
    if (actors_.size() >= kDeepest) {
        return;
    }
    ++record_.actions;
    const Actor actor(*this, "user");
    Guard([this] { chance_.OneIn(4) ? ActFromOutside() : ActOnWindows(); });
}

/// Of a modal window, or of all, the one that came up last behind the others; the athan and a
/// message can be put away at any time.
std::vector<Form*> SoakWorld::Reachable() const {
    std::vector<Form*> forms;
    for (Form* form : loaded_) {
        const bool isFree =
            modals_.empty() || form == modals_.back() || form == &*frmAzan || form == &*fMessage;
        if (form->Visible() && isFree) {
            forms.push_back(form);
        }
    }
    return forms;
}

void SoakWorld::ActOnWindows() {
    const std::vector<Form*> forms = Reachable();
    if (forms.empty()) {
        return;
    }
    Form& form = chance_.OneIn(4) ? *chance_.Of(forms) : *forms.back();
    ++record_.windows[form.Name()];
    if (&form == &*frmMain && !chance_.OneIn(8)) {
        const std::string command = chance_.Of(kFaceCommands);
        record_.Note(command);
        return platform.face.onFSCommand(command, "");
    }
    if (&form == &*frmAzan && chance_.OneIn(2)) {
        record_.Note("stop athan");
        return platform.athanFace.onFSCommand("IDC_FS_Stop", "");
    }
    if (&form == &*HoravexMainForm && chance_.OneIn(5)) {
        record_.Note("set");
        return HoravexMainForm->SettingsSet.UserClick();
    }
    record_.Note(form.Name());
    monkey_.ActOn(form, record_.last.back());
}

void SoakWorld::ActFromOutside() {
    const Broadcast& asked = platform.broadcast;
    const int what = chance_.Below(10);
    record_.Note("outside " + std::to_string(what));
    switch (what) {
        case 0:
            return asked.onShow();
        case 1:
            return asked.onHide();
        case 2:
            return asked.onAthanNow();
        case 3:
            return asked.onStopAthan();
        case 4:
            return asked.onQuiet(chance_.Between(-1, 90));
        case 5:
            return platform.notices.onAction(static_cast<NoticeKind>(chance_.Below(3)),
                                             static_cast<NoticeAction>(chance_.Below(3)));
        case 6:
            return platform.session.onResume();
        default:
            return platform.tray.onMessage(chance_.Of(kTrayMessages));
    }
}

void SoakWorld::OpenMenu(const std::string& form, const std::string& menu) {
    for (Form* one : std::vector<Form*>(loaded_)) {
        for (Control* control : one->Controls()) {
            if (one->Name() == form && control->Name() == menu) {
                record_.Note("menu");
                return monkey_.ChooseIn(static_cast<MenuItem&>(*control), record_.last.back());
            }
        }
    }
}

void SoakWorld::Tell(const std::string& text, const std::string& title) {
    const std::string actor = actors_.empty() ? "" : actors_.back();
    record_.Note("told: " + text);
    ++record_.messages[actor + ": " + title + "|" + text];
    EXPECT_TRUE(actor == "user" || TellsOfAYearThatFails(text)) << actor << ": " << text;
    for (int second = 0; second < 2; ++second) {
        platform.loop.Rest(1000);
    }
}

void SoakWorld::RunModal(Form& form) {
    modals_.push_back(&form);
    struct Pop {
        std::vector<Form*>& forms;
        ~Pop() { forms.pop_back(); }
    } const pop{modals_};
    for (int turn = 0; turn < kPatience && form.Visible(); ++turn) {
        platform.loop.Rest(700);
        ++pending_;
        Act();
    }
    for (int turn = 0; turn < kPatience && form.Visible(); ++turn) {
        Guard([&] { form.UserClose(); });
        platform.loop.Rest(1000);
    }
    EXPECT_FALSE(form.Visible()) << form.Name() << " cannot be closed\n" << record_.Trace();
    form.Hide();
}

}  // namespace horavex
