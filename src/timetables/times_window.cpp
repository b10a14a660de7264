#include "timetables/times_window.h"

#include "base/fault.h"
#include "base/script.h"
#include "base/unbroken.h"
#include "engine/current_year.h"
#include "engine/day_driver.h"
#include "engine/moment_text.h"
#include "engine/moments.h"
#include "engine/ruled_year.h"
#include "lang/form_language.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "store/around_options.h"
#include "store/location_record.h"
#include "timetables/month_window.h"
#include "timetables/timetable_words.h"
#include "windows/frm_main.h"
#include "windows/frm_times.h"

namespace horavex {

namespace {

/// The row of a day of the table, 0-based.
std::size_t RowOfDay(double day) {
    if (day < 0.0 || day >= static_cast<double>(kYearRows)) {
        throw BoundsFault("the day lies outside the year of the table");
    }
    return static_cast<std::size_t>(day);
}

DayMoments MomentsOn(double day) {
    return MomentsOfRow(RowOfDay(day));
}

void ShowTime(int prayer, double day) {
    const Moment moment = MomentsOn(day).at(static_cast<std::size_t>(prayer));
    frmTimes->lblTime(prayer).SetCaption(MomentText(moment));
    TodayTimes.at(static_cast<std::size_t>(prayer)) = moment.hours / 24.0;
}

/// What the dagger means, on a day that has one.
void ShowNote(double day) {
    const std::string note = RuleNote(MomentsOn(day), RuledYear.rules.moments.highLatitude);
    frmTimes->lblTimesNote.SetCaption(note);
    frmTimes->lblTimesNote.SetVisible(!note.empty());
}

void ShowHijriDate(Date date) {
    frmTimes->lblShownHijri.SetCaption(TakeTimetableWords().HijriText(RuledHijriDate(date)));
}

bool ComesNext(int prayer, Date date) {
    return date == ShownDay.date && !ShownDay.next.isTomorrows && ShownDay.next.prayer == prayer &&
           ShownDay.next.moment.hours ==
               ShownDay.moments.at(static_cast<std::size_t>(prayer)).hours;
}

void MarkNext(Date date) {
    for (int prayer = 0; prayer < static_cast<int>(kPrayerCount); ++prayer) {
        frmTimes->lblShownNext(prayer).SetVisible(ComesNext(prayer, date));
    }
}

/// The times around the day in a line that wraps between them, where an option asks for them.
void ShowAround(double day) {
    const bool shown = ReadOption(option::kAroundTheDay) == 1;
    const AroundMoments moments = shown ? AroundOfRow(RowOfDay(day)) : AroundMoments();
    const std::string colon = GetLangString("timetables", "Colon", ": ");
    const std::string between = "\u00a0\u00a0 ";  // one blank at the end of a line, which shows
    std::string line;
    for (std::size_t time = 0; shown && time < kAroundCount; ++time) {
        const Moment& moment = moments.at(time);
        const std::string name = AroundName(time);
        line += (line.empty() ? "" : between) +
                Unbroken(name + colon + KeptTogether(MomentText(moment), name));
    }
    frmTimes->lblTimesAround.SetCaption(line);
    frmTimes->lblTimesAround.SetVisible(shown);
}

/// In the form of the times below.
void ShowClock(Date now) {
    const std::string byTwelve = Ports().formats.TwelveHourTime(now);
    const std::string asBelow = Ports().formats.MediumTime(now);
    frmTimes->lblCurrTime.SetCaption(byTwelve);
    frmTimes->lblShownClock.SetCaption(asBelow);
    frmTimes->lblCurrTime.SetVisible(byTwelve == asBelow);
    frmTimes->lblShownClock.SetVisible(byTwelve != asBelow);
}

void ShowDay(Date date) {
    frmTimes->shownDay = date;
    SetTimes(date);
}

bool IsShown(int day, int month) {
    const CivilDate shown = CivilFromDate(frmTimes->shownDay);
    return shown.day == day && shown.month == month;
}

void cmdToday_Click() {
    ShowDay(Ports().clock.Today());
}

void cmdPrev_Click() {
    if (!IsShown(1, 1)) {
        ShowDay(frmTimes->shownDay - 1.0);
    }
}

void cmdNext_Click() {
    if (!IsShown(31, 12)) {
        ShowDay(frmTimes->shownDay + 1.0);
    }
}

void Timer1_Timer() {
    frmTimes->Timer1.SetEnabled(false);
    cmdToday_Click();
}

/// The everyday names stand beside the Arabic ones, and would repeat them in Arabic.
void ShowEverydayNames(bool shown) {
    for (int prayer = 0; prayer < static_cast<int>(kPrayerCount); ++prayer) {
        frmTimes->lblZoritName(prayer).SetVisible(shown);
    }
}

void frmTimes_Load() {
    TranslateOnLoad(*frmTimes);
    frmTimes->lblCity.SetCaption(ActiveCityText);
    cmdToday_Click();
    ShowEverydayNames(!IsArabicPack());
}

}  // namespace

void SetTimes(Date date) {
    // On purpose: the tick compares the clock with the day on view until it sees that the day is
    // another one, and shows today again.
    TodayDate = date;
    const double day = date - DateSerial(CurrentYear, 1, 1);
    for (int prayer = 0; prayer < static_cast<int>(kPrayerCount); ++prayer) {
        RunStep([&] { ShowTime(prayer, day); });
    }
    RunStep([&] { ShowNote(day); });
    RunStep([&] { ShowAround(day); });
    RunStep([&] { ShowHijriDate(date); });
    MarkNext(date);
    frmTimes->lblDate.SetCaption(Ports().formats.LongDate(date));
    ShowClock(Ports().clock.Now());
}

void BindTimesWindow() {
    frmTimes->onLoad = frmTimes_Load;
    frmTimes->cmdToday.onClick = cmdToday_Click;
    frmTimes->cmdPrev.onClick = cmdPrev_Click;
    frmTimes->cmdNext.onClick = cmdNext_Click;
    frmTimes->cmdMonth.onClick = ShowMonthWindow;
    frmTimes->Timer1.onTimer = Timer1_Timer;
}

void ShowTimesWindow() {
    frmTimes->ShowModal(&*frmMain);
}

}  // namespace horavex
