#pragma once

namespace horavex {

/// Names the scratch file and deletes it if it is there; what cannot be deleted stays. At the
/// load of HoravexMainForm.
void ClearUpdateFile();

/// Asks the web server for the newest version, tells what came of it in a message, and installs
/// nothing. The last line of the file counts, and any difference from the running version is an
/// update, an older one included. An empty answer, as a failed fetch gives it, is told as a want
/// of connection. Where a key is set (UpdateKey), a line below says whether the answer is signed by
/// it. The thread is blocked for as long as the fetch takes.
void CheckForUpdate();

/// The same, but only a difference is told, in English whatever the language; a machine that is
/// not online is told all the same.
void CheckForUpdateSilently();

/// Stops its timer and checks silently. Nothing starts the timer: there is no check of itself.
void UpdateCheckTimer_Timer();

/// The menu's way to CheckForUpdate.
void Update();

/// Binds the controls of the check on HoravexMainForm.
void BindUpdateCheck();

}  // namespace horavex
