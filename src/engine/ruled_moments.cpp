#include "engine/around_day.h"
#include "engine/current_year.h"
#include "engine/moments.h"
#include "engine/ruled_year.h"
#include "engine/year_table.h"
#include "store/around_options.h"

namespace horavex {

namespace {

YearSource ProgramYear() {
    return {RuledYear.inputs, Times, RuledYear.rules.moments};
}

}  // namespace

AroundMoments AroundOfRow(std::size_t row) {
    return AroundOf(ProgramYear(), row, ReadOption(option::kImsakMinutes));
}

DayMoments MomentsOfRow(std::size_t row) {
    return MomentsOf(ProgramYear(), row);
}

std::vector<DayMoments> MomentsOfAllRows() {
    YearSource year = ProgramYear();
    SharedByDays shared(year.inputs);
    year.shared = &shared;
    return MomentsOfRows(year, 365U + static_cast<std::size_t>(LeapFlag));
}

}  // namespace horavex
