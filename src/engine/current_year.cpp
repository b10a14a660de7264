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

std::int16_t LeapFlagOf(std::int16_t year) {
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return leap ? 1 : 0;
}

void LeapYearFlag() {
    LeapFlag = LeapFlagOf(CurrentYear);
}

}  // namespace horavex
