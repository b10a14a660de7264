#include "base/program_state.h"
#include "engine/sun.h"

namespace horavex {

YearConstants CurrentYearConstants;

namespace {

const ProgramStateReset reset([] { CurrentYearConstants = {}; });

}  // namespace

void ComputeYearConstants(std::int16_t year, YearStart start) {
    CurrentYearConstants = YearConstantsOf(year, start);
}

}  // namespace horavex
