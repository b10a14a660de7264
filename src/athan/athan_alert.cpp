#include "athan/athan_alert.h"

#include <cstdint>

#include "athan/arrivals.h"
#include "athan/athan_notice.h"
#include "athan/athan_state.h"
#include "athan/athan_watch.h"
#include "athan/azan_window.h"
#include "athan/player.h"
#include "athan/prayer_sound.h"
#include "athan/quiet.h"
#include "base/int16.h"
#include "base/program_state.h"
#include "base/program_version.h"
#include "engine/wait.h"
#include "engine/year_table.h"
#include "platform/platform.h"
#include "store/athan_options.h"
#include "store/settings_record.h"
#include "store/text_table.h"
#include "windows/f_message.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

constexpr double kBeforeSound = 2.0;  // seconds
constexpr double kAfterBeep = 3.0;    // seconds
constexpr double kHold = 12.504;      // seconds; 20 beeps and 20 holds make about 310
constexpr double kTick = 1.0;         // seconds; one may come in the last rest of a wait
constexpr int kRepeats = 20;

double soundDue = 0.0;     // steady seconds; 0 for no athan that waits
std::uint64_t athans = 0;  // that have begun

const ProgramStateReset reset([] {
    soundDue = 0.0;
    athans = 0;
});

void WaitUntil(double start, double seconds) {
    WaitSeconds((seconds - (Ports().clock.SteadySeconds() - start)) / kSecondsPerDay);
}

void ShowAlarmMessage() {
    fMessage->Load();
    fMessage->cmdAlarmClose.SetVisible(true);
    fMessage->CmdCancel.SetCaption("Cancel");
    fMessage->CmdCancel.SetVisible(false);
    fMessage->SetCaption(kSoftwareTitle);
    fMessage->Shape1.SetVisible(false);
    fMessage->lblMessage2.SetCaption(Ports().formats.MediumTime(AlarmMoment(ActiveSettings)) +
                                     " : " +
                                     TextItem(TextEntry::kAlarmIsDue, ActiveSettings.Language));
    fMessage->Show();
}

/// A message that is gone, however it went, is an alarm that has been dismissed.
bool AlarmStands() {
    return alarmDismissed == kFalse && fMessage->Visible();
}

void BeepUntilDismissed() {
    for (int i = 0; i < kRepeats && AlarmStands(); ++i) {
        Ports().dialogs.Beep();
        WaitSeconds(kAfterBeep / kSecondsPerDay);
    }
}

void HoldUntilDismissed() {
    for (int i = 0; i < kRepeats && AlarmStands(); ++i) {
        WaitSeconds(kHold / kSecondsPerDay);
    }
}

struct ActiveAlarm {
    ActiveAlarm() { alarmActive = kTrue; }
    ~ActiveAlarm() { alarmActive = kFalse; }
};

/// An alarm that nobody dismisses is over before its message goes: nothing is cancelled by it.
void SoundAlarm(double start) {
    {
        const ActiveAlarm active;
        ShowAlarmMessage();
        WaitUntil(start, kBeforeSound);
        BeepUntilDismissed();
        HoldUntilDismissed();
    }
    fMessage->Unload();
}

/// An athan that the user asks for has its window alone, whatever shows that of a prayer.
void BringAthanUp(Alert alert) {
    const bool isAskedFor = alert == Alert::kAthanNow;
    const bool hasWindow = isAskedFor || AthanHasWindow();
    StopTone();
    BeginAthan();
    if (!isAskedFor && AthanHasNotice()) {
        ShowAthanNotice(static_cast<Prayer>(alert), LastAthan().at, !hasWindow);
    }
    if (hasWindow) {
        BringAthanWindowUp(alert);
    } else {
        athanActive = kTrue;
    }
}

/// Only an athan of sound that has been accepted is heard; a buzzer is as silent as mute.
void PlayAthan(Alert alert) {
    if (ActiveSettings.AthanType == kSoundAthan && Settings.AthanType == kSoundAthan) {
        PlayPrayerSound(alert);
        if (IsPlaying()) {
            PauseOtherPlayers();
        }
    }
}

/// Whatever has become of its window meanwhile an athan sounds. Only where it does not come back by
/// itself is it over for good: stopped, in a quiet time, or with another one in its place.
bool IsStillWanted(Alert alert, std::uint64_t number) {
    const bool comesBack =
        alert == Alert::kAthanNow || (!AthanEndsForGood(static_cast<Prayer>(alert)) &&
                                      ReadOption(option::kTellMissed) == 0 && !IsQuiet());
    if (comesBack) {
        return true;
    }
    return athanActive != kFalse && number == athans && !IsQuiet();
}

void SoundAthan(Alert alert, double start) {
    const std::uint64_t number = ++athans;
    BringAthanUp(alert);
    soundDue = start + kBeforeSound + kTick;
    WaitUntil(start, kBeforeSound);
    if (number == athans) {
        soundDue = 0.0;
    }
    if (IsStillWanted(alert, number)) {
        PlayAthan(alert);
    }
}

}  // namespace

bool AthanAwaitsItsSound() {
    return Ports().clock.SteadySeconds() < soundDue;
}

void sub04F9(Alert alert) {
    if (alert == Alert::kShurooq) {
        return;
    }
    const double start = Ports().clock.SteadySeconds();
    if (alert == Alert::kDailyAlarm) {
        SoundAlarm(start);
    } else {
        SoundAthan(alert, start);
    }
    HoravexMainForm->SetEnabled(true);
}

}  // namespace horavex
