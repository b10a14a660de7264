// The whole program through days and years of the test clock at five places, with a user who does
// anything to all of its windows. HORAVEX_SOAK_DAYS and HORAVEX_SOAK_SEED ask for more than the
// gate does, or for other chances: tools/soak.

#include <cstdlib>
#include <iostream>

#include "soak/soak_life.h"

namespace horavex {
namespace {

int Asked(const char* variable, int usual) {
    const char* number = std::getenv(variable);
    return number == nullptr ? usual : std::atoi(number);
}

void Print(const SoakRecord& record) {
    std::cout << "seconds " << record.seconds << ", actions " << record.actions << ", starts "
              << record.starts << ", arrivals " << record.arrivals << "\n";
    for (const auto& [window, times] : record.windows) {
        std::cout << "  " << window << " " << times;
    }
    std::cout << "\n";
    for (const auto& [message, times] : record.messages) {
        std::cout << "  " << times << "  " << message << "\n";
    }
}

class SoakTest : public testing::TestWithParam<SoakPlace> {};

TEST_P(SoakTest, WhateverIsDoneToItTheProgramHoldsTogether) {
    const Date begin = DateSerial(2026, 12, 20);
    SoakLife life(GetParam(), static_cast<std::uint32_t>(Asked("HORAVEX_SOAK_SEED", 1)), begin,
                  Asked("HORAVEX_SOAK_IDLE", 12));
    life.LiveUntil(begin + Asked("HORAVEX_SOAK_DAYS", 14));
    EXPECT_FALSE(HasFailure()) << "behind:\n" << life.Record().Trace();
    EXPECT_GT(life.Record().arrivals, 0);
    Print(life.Record());
}

INSTANTIATE_TEST_SUITE_P(Places, SoakTest, testing::ValuesIn(SoakPlaces()),
                         [](const auto& place) { return place.param.name; });

}  // namespace
}  // namespace horavex
