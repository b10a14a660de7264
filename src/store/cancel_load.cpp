#include "store/cancel_load.h"

#include "base/program_state.h"

namespace horavex {

std::int16_t CancelLoad = 0;

namespace {

const ProgramStateReset reset([] { CancelLoad = 0; });

}  // namespace

}  // namespace horavex
