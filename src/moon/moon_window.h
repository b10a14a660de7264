#pragma once

namespace horavex {

/// Opens the moon window in front of the face and returns when it is closed. Its tables are made
/// for the year of the clock before it comes up, and stay as they are while it is open. Throws
/// TypeMismatchFault for a zone of the settings window that is no number.
void ShowMoonPhases();

}  // namespace horavex
