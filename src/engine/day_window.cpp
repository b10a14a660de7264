#include "engine/day_window.h"

#include "engine/moment_text.h"
#include "engine/next_prayer.h"
#include "platform/platform.h"
#include "windows/frm_main.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

void ShowTimes(const DayMoments& moments) {
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        frmMain->lblTime(static_cast<int>(prayer)).SetCaption(MomentText(moments[prayer]));
    }
}

void ShowDates(const DayView& day) {
    frmMain->lblDate.SetCaption(Ports().formats.LongDate(day.date));
    frmMain->lblCurrTime.SetCaption(Ports().formats.LongTime(day.now));
}

void ShowNextPrayer(const NextMoment& next) {
    frmMain->lblNextAthan.SetCaption(NextPrayerSentence(next));
    frmMain->lblRemaining.SetCaption(RemainingText(next.remainingSeconds));
}

}  // namespace

void ShowDayInLabels(const DayView& day) {
    ShowTimes(day.moments);
    ShowDates(day);
    ShowNextPrayer(day.next);
}

void EnableSettingsWindow() {
    HoravexMainForm->SetEnabled(true);
}

}  // namespace horavex
