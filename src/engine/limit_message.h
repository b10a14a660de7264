#pragma once

namespace horavex {

/// Tells the user why a calculation gave up, in the language of the accepted settings.
/// message: 'A' the twilight does not fit into the day, 'B' Fajr comes too close to Shurooq,
/// 'C' a limit is broken once the daylight hour is in.
void ShowLimitMessage(char message);

/// Makes an undefined angle end the program: a critical message in the language of the accepted
/// settings, then the end of the process. A front end calls it once at start.
void InstallUndefinedAngleReport();

}  // namespace horavex
