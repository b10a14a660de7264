#include "engine/current_year.h"

namespace horavex {

std::int16_t LeapFlagOf(std::int16_t year) {
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return leap ? 1 : 0;
}

}  // namespace horavex
