#pragma once

#include <span>
#include <string>

#include "engine/moment.h"

namespace horavex {

/// "12:14 AM, next day", and with a star where a rule of high latitudes made it.
std::string MomentText(const Moment& moment);

/// The same as a column of a table: a plus for the next day, a minus for the day before.
std::string MomentColumn(const Moment& moment);

/// What the marks mean that stand at these moments; empty where none does.
std::string StarNote(std::span<const Moment> moments);
std::string NextDayNote(std::span<const Moment> moments);

}  // namespace horavex
