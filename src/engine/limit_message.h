#pragma once

namespace horavex {

/// Tells the user why a calculation gave up, in the language of the accepted settings.
/// message: 'A' the twilight does not fit into the day, 'B' Fajr comes too close to Shurooq,
/// 'C' a limit is broken once the daylight hour is in.
void ShowLimitMessage(char message);

}  // namespace horavex
