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
    const bool leap = CurrentYear % 4 == 0 && (CurrentYear % 100 != 0 || CurrentYear % 400 == 0);
    LeapFlag = leap ? 1 : 0;
}

}  // namespace horavex
