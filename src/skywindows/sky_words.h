#pragma once

#include <optional>
#include <string>

#include "sky/sky_day.h"
#include "skywindows/sky_place.h"

namespace horavex {

// The sky in the words of the current pack, by the clock of a place and in the user's forms.

/// A text of the pack's section "sky".
std::string SkyWord(const char* key, const char* english);

/// The clock to the nearest minute; "--:--" for nothing.
std::string SkyTime(const ZoneClock& clock, const std::optional<Date>& universal);

/// "21 November".
std::string SkyDate(const ZoneClock& clock, Date universal);

/// The same with the clock: "21 November  05:31 PM".
std::string SkyDayAndTime(const ZoneClock& clock, Date universal);

/// With the year, too: "21 November 2026  05:31 PM".
std::string SkyDateAndTime(const ZoneClock& clock, Date universal);

/// To a tenth: "23.4°".
std::string DegreesText(double degrees);

/// The same inside a text, whose script may run from right to left.
std::string DegreesIn(const std::string& text, double degrees);

std::string ShapeName(MoonShape shape);

}  // namespace horavex
