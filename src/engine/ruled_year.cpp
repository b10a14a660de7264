#include "engine/ruled_year.h"

#include <cmath>

#include "base/program_state.h"

namespace horavex {

YearBasis RuledYear;

namespace {

const ProgramStateReset reset([] { RuledYear = {}; });

}  // namespace

HijriDate RuledHijriDate(Date date) {
    const std::vector<HijriDate>& days = RuledYear.rules.hijri;
    const int year = CivilFromDate(date).year;
    const auto row = static_cast<std::size_t>(std::floor(date) - DateSerial(year, 1, 1));
    return year == RuledYear.inputs.year && row < days.size() ? days[row] : HijriFromDate(date);
}

}  // namespace horavex
