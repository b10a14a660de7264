#pragma once

#include "base/date.h"
#include "forms/command_button.h"
#include "forms/control_array.h"
#include "forms/form.h"
#include "forms/form_instance.h"
#include "forms/label.h"
#include "forms/timer.h"
#include "windows/prayer_labels.h"

namespace horavex {

/// The day browser: the six times of one day of the year's table.
class TimesForm : public Form {
public:
    TimesForm();
    ~TimesForm() override;

    Label lblCity{*this, "lblCity"};
    Label lblDate{*this, "lblDate"};
    Label lblCurrTime{*this, "lblCurrTime"};
    /// The same time where the language writes hours by 24.
    Label lblShownClock{*this, "lblShownClock", {.visible = false}};
    Label lblShownHijri{*this, "lblShownHijri"};

    /// Stands before the prayer that comes next, on today alone.
    ControlArray<Label> lblShownNext{*this,
                                     "lblShownNext",
                                     {{0, {.caption = "●", .visible = false}},
                                      {1, {.caption = "●", .visible = false}},
                                      {2, {.caption = "●", .visible = false}},
                                      {3, {.caption = "●", .visible = false}},
                                      {4, {.caption = "●", .visible = false}},
                                      {5, {.caption = "●", .visible = false}}}};
    ControlArray<Label> lblTime{*this, "lblTime", {{0}, {1}, {2}, {3}, {4}, {5}}};

    /// What the marks beside the times mean; hidden on a day without one.
    Label lblTimesNote{*this, "lblTimesNote", {.visible = false}};

    /// The times around the day; hidden unless an option asks for them.
    Label lblTimesAround{*this, "lblTimesAround", {.visible = false}};

    ControlArray<Label> lblZoritNameArabic{*this, "lblZoritNameArabic",
                                           PrayerLabels(kDayBrowserNames)};
    ControlArray<Label> lblZoritName{*this, "lblZoritName", EverydayPrayerLabels()};
    CommandButton cmdToday{*this, "cmdToday", {.caption = "Today"}};
    CommandButton cmdPrev{*this, "cmdPrev", {.caption = "Previous Day"}};
    CommandButton cmdNext{*this, "cmdNext", {.caption = "Next Day"}};
    CommandButton cmdMonth{*this, "cmdMonth", {.caption = "Month"}};

    /// Fills the window once, half a second after its load; then it stands still.
    Timer Timer1{*this, "Timer1", {.intervalMs = 500}};

    /// The date on view.
    Date shownDay = 0.0;
};

inline const FormInstance<TimesForm> frmTimes;

}  // namespace horavex
