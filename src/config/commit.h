#pragma once

namespace horavex {

struct Adjustments;

// A commit calculates the year with the working values and, if that succeeds, accepts and stores
// them; the working settings and the Isha angle are stored in either case. The windows that edit
// working values are shut to the user from its beginning to its end; where an athan opens one of
// them all the same, its set button has no effect until then.

/// The set button: a commit of what the window shows, which hides it. A time zone that is no number
/// from -12 to 12 is refused with a message and nothing is stored.
void SettingsSet_Click();

/// The set button pressed by the wizard.
void SetSettings();

/// The set action that the clock runs by itself: a commit of the accepted values. Edits of an open
/// window, or those that a cancelled wizard left, are neither accepted nor lost, and an open window
/// stays open. Does nothing while another commit runs.
void SetAcceptedAgain();

/// The accepted values with other adjustments. True where they are accepted; then the angles are
/// those of an open settings window too, and options that it has waiting give way. Its other edits
/// stay. A failure has been told, and the
/// former adjustments count. Does nothing while another commit runs.
bool SetAdjustments(const Adjustments& adjustments);

/// The turn of the year: the accepted values are calculated for the present one. A commit that runs
/// comes first; the next tick finds the year still to be turned.
void RefreshAcceptedYear();

/// True while the windows are shut for a commit.
bool CommitIsRunning();

}  // namespace horavex
