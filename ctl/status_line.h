#pragma once

#include <map>
#include <optional>
#include <string>

#include "base/date.h"
#include "platform/broadcast.h"

namespace horavex {

/// Values that a template for a status bar may name between braces: place, zone, hijri, next, time,
/// remaining, seconds, athan, quiet, and the six prayers by their own names.
using StatusFields = std::map<std::string, std::string>;

StatusFields FieldsOf(const ToldState& state, Date universalNow);

/// Seconds until the next prayer, from 0 on; 0 where there is none.
long SecondsLeft(const ToldState& state, Date universalNow);

/// The template with its values; braces around anything but letters stay. A name that there is
/// not is bad usage.
std::string FilledLine(const std::string& line, const StatusFields& fields);

/// Refuses a line with such a name.
void CheckLine(const std::string& line);

/// Seconds until the line reads otherwise although nothing has changed but the time that is left;
/// none where it never does.
std::optional<long> SecondsToChange(const std::string& line, long secondsLeft);

}  // namespace horavex
