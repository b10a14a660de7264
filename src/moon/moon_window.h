#pragma once

namespace horavex {

/// Opens the moon window in front of the face and returns when it is closed. Its tables are made
/// for the year of the clock before it comes up, and stay as they are while it is open. Throws
/// TypeMismatchFault for a zone of the settings window that is no number.
void ShowMoonPhases();

/// Opens the help on finding the first day of a lunar month, in front of the moon window, and
/// returns when it is closed. Its text is the language pack's; without one it stays empty.
void ShowRamadanHelp();

}  // namespace horavex
