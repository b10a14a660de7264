#pragma once

#include "engine/day_view.h"
#include "platform/broadcast.h"

namespace horavex {

/// A day of the chosen place as the running program would tell it.
ToldState ToldDay(const DayView& day);

}  // namespace horavex
