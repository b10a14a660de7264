#include "engine/current_year.h"

#include "base/program_state.h"

namespace horavex {

std::int16_t CurrentYear = 0;
std::int16_t LeapFlag = 0;

namespace {

const ProgramStateReset reset([] {
    CurrentYear = 0;
    LeapFlag = 0;
});

}  // namespace

void LeapYearFlag() {
    LeapFlag = LeapFlagOf(CurrentYear);
}

}  // namespace horavex
