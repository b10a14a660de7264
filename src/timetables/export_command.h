#pragma once

namespace horavex {

/// Writes the year as text into a file of the user's choice, behind the progress window. The
/// window's cancel, and whatever else dismisses an alarm, ends the run and deletes the file. Throws
/// FileFault; the window then stays.
void mnuExport_Click();

}  // namespace horavex
