#include "config/first_run.h"

#include "base/flag.h"
#include "base/program_state.h"

namespace horavex {

std::int16_t firstRun = kFalse;

namespace {

const ProgramStateReset reset([] { firstRun = kFalse; });

}  // namespace

}  // namespace horavex
