#include "config/authority_rules.h"

#include "calendar/hijri_converter.h"

namespace horavex {

namespace {

constexpr int kRamadan = 9;

std::bitset<kYearRows> RamadanOf(int year) {
    const HijriConverter converter;
    const Date first = DateSerial(year, 1, 1);
    std::bitset<kYearRows> days;
    for (std::size_t row = 0; row < kYearRows; ++row) {
        days[row] = converter.ToHijri(first + static_cast<double>(row)).month == kRamadan;
    }
    return days;
}

}  // namespace

MomentRules RulesOf(const Authority& authority, int year) {
    MomentRules rules;
    rules.ishaInterval = authority.ishaInterval;
    rules.maghribAngle = authority.maghribAngle;
    rules.offsets = authority.margins;
    if (authority.ishaIntervalRamadan != authority.ishaInterval) {
        rules.ishaIntervalRamadan = authority.ishaIntervalRamadan;
        rules.ramadan = RamadanOf(year);
    }
    return rules;
}

}  // namespace horavex
