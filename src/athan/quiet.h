#pragma once

#include <optional>
#include <string>

#include "base/date.h"

namespace horavex {

// Times in which the user wants to hear nothing: until a moment, or in hours of the day. Prayers,
// reminders and iqamas that fall into them come as silent notifications. The daily alarm, which one
// sets by oneself, is none of them.

/// Where the quiet that counts at a moment ends, local date and time; none without one.
std::optional<Date> QuietEnd(Date now);

/// Whether it is quiet now.
bool IsQuiet();

/// Quiet until the next prayer, which is heard again; until the end of the day. What sounds falls
/// silent. The one that holds already is taken back instead.
void ChooseQuietUntilNextPrayer();
void ChooseQuietToday();

/// Quiet for so many minutes from now, at most a day; 0 ends a quiet that was chosen.
void ChooseQuietFor(int minutes);

/// Switches the hours of the day on or off.
void ChooseQuietHours();

/// Quiet in words, "Quiet until 3:12 PM"; empty without one.
std::string QuietText();

/// Shows on the icon and in its menu what counts now. Called by the clock.
void ShowQuiet();

/// Binds the entries of the icon's menu.
void BindQuiet();

}  // namespace horavex
