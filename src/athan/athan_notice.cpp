#include "athan/athan_notice.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <utility>

#include "athan/athan_choices.h"
#include "athan/athan_state.h"
#include "athan/azan_window.h"
#include "base/int16.h"
#include "base/program_state.h"
#include "lang/filled_text.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

/// The notice of an athan, while that is up.
struct AthanNotice {
    bool stands = false;
    bool alone = false;
    Prayer prayer = kFajr;
    Date at = 0.0;
};
AthanNotice athanNotice;

const ProgramStateReset reset([] { athanNotice = {}; });

std::string Word(const char* key, const char* english) {
    return GetLangString("notices", key, english);
}

std::string NameOf(Prayer prayer) {
    return frmMain->lblZoritNameArabic(static_cast<int>(prayer)).Caption();
}

std::string ClockOf(Date at) {
    return Ports().formats.MediumTime(at);
}

std::string WithPrayer(const std::string& text, Prayer prayer) {
    return FilledText(text, "{prayer}", NameOf(prayer));
}

/// "Asr 3:12 PM", in the order of the pack.
std::string PrayerAt(Prayer prayer, Date at) {
    return FilledText(WithPrayer(Word("PrayerAt", "{prayer} {time}"), prayer), "{time}",
                      ClockOf(at));
}

std::string ItIsTimeFor(Prayer prayer) {
    return GetLangString("Azan", std::to_string(static_cast<int>(prayer)), "");
}

/// Quiet, with the button that every notice has.
Notice PlainNotice() {
    Notice notice;
    notice.openCaption = Word("Open", "Open Horavex");
    return notice;
}

Notice PrayerNotice(Prayer prayer, Date at) {
    Notice notice = PlainNotice();
    notice.title = PrayerAt(prayer, at);
    notice.text = ItIsTimeFor(prayer);
    return notice;
}

void OnNoticeAction(NoticeKind kind, NoticeAction action, void (*open)()) {
    if (action == NoticeAction::kOpen) {
        open();
        return;
    }
    if (kind != NoticeKind::kAthan || !athanNotice.stands) {
        return;
    }
    const bool wasAlone = std::exchange(athanNotice, {}).alone;
    // Put away beside the window it leaves the athan to that.
    if (athanActive != kFalse && (action == NoticeAction::kStop || wasAlone)) {
        StopAthan();
    }
}

}  // namespace

bool AthanHasWindow() {
    const AthanShown shown = ReadOption(option::kAthanShown);
    const bool isReplaced =
        shown == AthanShown::kNotification ||
        (shown == AthanShown::kNotificationWhileBusy && Ports().session.IsBusy());
    return !isReplaced || !Ports().notices.HasService();
}

bool AthanHasNotice() {
    return ReadOption(option::kAthanShown) == AthanShown::kBoth || !AthanHasWindow();
}

void ShowAthanNotice(Prayer prayer, Date at, bool alone) {
    Notice notice = PrayerNotice(prayer, at);
    notice.quiet = false;
    notice.stopCaption = Word("Stop", "Stop");
    Ports().notices.Withdraw(NoticeKind::kPrayer);  // its reminder, or what else stands there
    Ports().notices.Show(NoticeKind::kAthan, notice);
    athanNotice = {true, alone, prayer, at};
}

bool AthanIsNoticeAlone() {
    return athanNotice.stands && athanNotice.alone;
}

Prayer PrayerOfAthanNotice() {
    return athanNotice.prayer;
}

void SilenceAthanNotice() {
    const AthanNotice former = athanNotice;
    WithdrawAthanNotice();
    ShowSilentPrayer(former.prayer, former.at);
}

void WithdrawAthanNotice() {
    if (std::exchange(athanNotice, {}).stands) {
        Ports().notices.Withdraw(NoticeKind::kAthan);
    }
}

void ShowSilentPrayer(Prayer prayer, Date at) {
    Ports().notices.Show(NoticeKind::kPrayer, PrayerNotice(prayer, at));
}

void ShowReminder(Prayer prayer, Date at, int minutes) {
    Notice notice = PlainNotice();
    notice.title = PrayerAt(prayer, at);
    notice.text =
        FilledText(Word("InMinutes", "in {minutes} min"), "{minutes}", std::to_string(minutes));
    Ports().notices.Show(NoticeKind::kPrayer, notice);
}

void ShowIqama(Prayer prayer, Date at) {
    Notice notice = PlainNotice();
    notice.title = WithPrayer(Word("Iqama", "Iqama of {prayer}"), prayer);
    notice.text = ClockOf(at);
    Ports().notices.Show(NoticeKind::kPrayer, notice);
}

void ShowMissedPrayers(const std::vector<DatedMoment>& prayers) {
    Notice notice = PlainNotice();
    for (const auto& [prayer, at, moment] : prayers) {
        notice.title += (notice.title.empty() ? "" : " \u00b7 ") + PrayerAt(prayer, at);
    }
    notice.text = Word("Missed", "The computer was asleep at that time.");
    Ports().notices.Show(NoticeKind::kMissed, notice);
}

std::string IqamaCountdown(Prayer prayer, double seconds) {
    const int left = static_cast<int>(std::ceil(seconds));
    std::array<char, 16> clock{};
    std::snprintf(clock.data(), clock.size(), "%d:%02d", left / 60, left % 60);
    return FilledText(WithPrayer(Word("IqamaIn", "Iqama of {prayer} in {remaining}"), prayer),
                      "{remaining}", clock.data());
}

void BindNotices(void (*open)()) {
    Ports().notices.onAction = [open](NoticeKind kind, NoticeAction action) {
        OnNoticeAction(kind, action, open);
    };
}

}  // namespace horavex
