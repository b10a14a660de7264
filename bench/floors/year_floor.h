#pragma once

#include "engine/year_calculation.h"

namespace horavex::bench {

/// What the year's table costs at least: the engine's formulas for one place, one year and angles
/// that fit each day, in one function without a step that can fail. Bit for bit the times of
/// CalculateYear. inputs: without daylight saving.
void FloorYear(const YearInputs& inputs, YearTimes& times);

}  // namespace horavex::bench
