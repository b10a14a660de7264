#include "athan/athan_state.h"

#include "base/program_state.h"

namespace horavex {

std::int16_t athanActive = 0;
std::int16_t alarmActive = 0;
std::int16_t alarmDismissed = 0;

namespace {

const ProgramStateReset reset([] {
    athanActive = 0;
    alarmActive = 0;
    alarmDismissed = 0;
});

}  // namespace

}  // namespace horavex
