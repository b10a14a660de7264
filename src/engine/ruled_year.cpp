#include "engine/ruled_year.h"

#include "base/program_state.h"

namespace horavex {

YearBasis RuledYear;

namespace {

const ProgramStateReset reset([] { RuledYear = {}; });

}  // namespace

}  // namespace horavex
