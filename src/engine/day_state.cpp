#include "engine/day_state.h"

#include "base/program_state.h"

namespace horavex {

std::array<double, kPrayerCount> TodayTimes{};
std::int16_t NextPrayer = 0;
DayView ShownDay;
Date TodayDate = 0.0;
Date LastRefreshDate = 0.0;

namespace {

const ProgramStateReset reset([] {
    TodayTimes = {};
    NextPrayer = 0;
    ShownDay = {};
    TodayDate = 0.0;
    LastRefreshDate = 0.0;
});

}  // namespace

}  // namespace horavex
