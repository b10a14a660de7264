#pragma once

#include "engine/moment_rules.h"
#include "engine/year_calculation.h"

namespace horavex {

/// What the program's moments are made by besides its table.
struct YearBasis {
    YearInputs inputs;  // those of the table
    MomentRules rules;
};

/// That of Times. Written by RecalculateYear and BringYearBack.
extern YearBasis RuledYear;

}  // namespace horavex
