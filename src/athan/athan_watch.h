#pragma once

namespace horavex {

/// What goes with an athan as long as it is up, and what ends with it: at each tick a window that
/// has been silent for long enough closes; once the athan is over its notification goes and the
/// other players go on.
void WatchAthan();

/// An athan begins, whatever has been up before it.
void BeginAthan();

/// Where nobody sees a window nobody closes it: a silent athan that the option leaves to the user
/// ends after so many minutes, too. Once a process.
void EndSilentAthansAfter(int minutes);

/// Other players pause, where the option asks for it, until the athan is over.
void PauseOtherPlayers();

/// The program ends: nothing of an athan stays behind in the session.
void LeaveSession();

}  // namespace horavex
