#include "engine/around_day.h"
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

}  // namespace horavex
