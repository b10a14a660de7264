#pragma once

#include "base/date.h"
#include "calendar/hijri_calendar.h"
#include "engine/year_calculation.h"
#include "engine/year_rules.h"

namespace horavex {

/// What the program's year goes by besides its table.
struct YearBasis {
    YearInputs inputs;  // those of the table
    YearRules rules;
};

/// That of Times. Written by RecalculateYear and BringYearBack.
extern YearBasis RuledYear;

/// The Hijri date of a moment by the rules of the program's year; by the arithmetic calendar where
/// they have none of that day.
HijriDate RuledHijriDate(Date date);

}  // namespace horavex
