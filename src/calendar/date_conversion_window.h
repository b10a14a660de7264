#pragma once

namespace horavex {

/// Opens the date conversion window in front of the face and returns when it is closed. While it is
/// open, CurrentCalendar follows its direction and the clock of the face stands still; closing it
/// gives both back, but leaves the two timers of the settings window stopped. Throws FileFault
/// without the table of Hijri months.
void ShowDateConversion();

}  // namespace horavex
