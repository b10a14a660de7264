#pragma once

namespace horavex {

// The year of the accepted state: the table and the place of the last calculation that did not
// give up. One that gives up leaves a table of its own, partly filled and for a place that was
// refused; people, the athan and the timetables go by the accepted one.

/// Remembers the table, the place and the year as they stand.
void KeepYear();

/// Puts the kept table and place back. False, with nothing changed, where none is kept for
/// CurrentYear.
bool BringYearBack();

}  // namespace horavex
