#pragma once

namespace horavex {

/// Reads "Dat/AI.DAT" into ActiveSettings. A file longer than the record is fine (a record of
/// the fixed-length form has 128 bytes); a missing or short one gives a record of zeros.
void LoadActiveSettings();

/// Writes ActiveSettings to "Dat/AI.DAT"; bytes behind the record that the file holds already
/// stay as they are. Throws FileFault.
void SaveActiveSettings();

/// Reads "Dat/Settings.DAT" into Settings, all fields. Missing and short as above.
void LoadWorkingSettings();

/// Writes Settings to "Dat/Settings.DAT". Throws FileFault.
void SaveWorkingSettings();

/// Settings becomes a copy of ActiveSettings, and Location of ActiveLocation, with the text of the
/// place beside it.
void CopyActiveToWorking();

/// Settings as the settings window shows them: all fields from "Dat/Settings.DAT", also those
/// that a failed calculation left there, but both angles as they stand in memory.
void ReloadWorkingSettings();

}  // namespace horavex
