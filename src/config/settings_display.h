#pragma once

#include <cstdint>
#include <string>

#include "forms/range.h"

namespace horavex {

/// "degrees 18.5", in the language of Settings.
std::string AngleText(double angle);

/// A day of CurrentYear, 1 for the first of January, in the user's long form.
std::string DayText(std::int16_t day);

// What the settings window shows beside its controls, each from the working settings.

void sub0690();  // lblAlarm: the alarm's time
void sub06C6();  // lblBegin: the first day of daylight saving
void sub071C();  // lblEnd: the last day of daylight saving
void sub06FB();  // lblDepr and lblDepr1: the two angles

/// Enables or disables what depends on daylight saving and on the alarm.
void sub0602();
void sub05CD();

/// Ranges and values of the two sliders of daylight saving.
void ShowDaylightDays();

/// Sets the range of a slider of daylight saving: the days of CurrentYear less one.
void SetDaylightRange(ScrollBar& bar);

/// The texts of a place and the zone hint in the window, in the language of Settings.
void ShowLocationInWindow();

/// The same after a change of city: in Arabic they are rewritten.
void ShowNewLocation();

/// The window's labels in a language column of the text table, and the place anew.
void TranslateSettingsWindow(std::int16_t language);

/// The labels of the qibla's part of the window: the sentence of the last calculation.
void LoadQiblaLabels();

/// A time zone as the box shows it: "+2.00", "-5.50", "+0.00".
void ShowTimeZone();

}  // namespace horavex
