#pragma once

namespace horavex {

// The page of the moon window that tells rise and set for a day and a place.

/// Binds the page's controls and forgets the last good texts of its date.
void BindRiseSetPage();

/// Shows the place and the zone of the settings window, and today.
void LoadRiseSetPage();

/// Tells rise and set of the day and the place on view where none was asked for yet. A place that
/// is to be typed waits for its button.
void FillRiseSetPage();

}  // namespace horavex
