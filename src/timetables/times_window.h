#pragma once

#include "base/date.h"

namespace horavex {

/// Fills the day browser for a date, and makes that date and its times TodayDate and TodayTimes,
/// for as long as the clock lets them stand: the next tick finds a date that is not today and
/// repairs both. A date outside the table keeps the times on view. Never fails.
void SetTimes(Date date);

/// Binds the day browser's handlers.
void BindTimesWindow();

/// Opens the day browser on today, modal, in front of the face.
void ShowTimesWindow();

}  // namespace horavex
