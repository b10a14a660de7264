#pragma once

#include "engine/day_view.h"

namespace horavex {

/// Puts a day into the labels of frmMain.
void ShowDayInLabels(const DayView& day);

/// Opens the settings window to the user, from whom a set keeps it shut.
void EnableSettingsWindow();

}  // namespace horavex
