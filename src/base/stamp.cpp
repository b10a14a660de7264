#include "base/stamp.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace horavex {

namespace {

constexpr const char* kShape = "dddd-dd-dd dd:dd:dd";

bool HasShape(const std::string& text) {
    return std::ranges::equal(text, std::string(kShape), [](char letter, char shape) {
        return shape == 'd' ? letter >= '0' && letter <= '9' : letter == shape;
    });
}

}  // namespace

std::string StampOf(Date date) {
    const double seconds = std::floor(date * kSecondsPerDay + 0.5);
    const Date whole = std::floor(seconds / kSecondsPerDay);
    const CivilDate day = CivilFromDate(whole);
    const ClockTime clock = ClockTimeOf(seconds / kSecondsPerDay);
    std::array<char, 80> text{};  // the compiler reckons with any number
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", day.year, day.month,
                  day.day, clock.hour, clock.minute, clock.second);
    return text.data();
}

std::optional<Date> DateOfStamp(const std::string& text) {
    if (!HasShape(text)) {
        return std::nullopt;
    }
    const auto number = [&](std::size_t at, std::size_t digits) {
        return std::stoi(text.substr(at, digits));
    };
    const int year = number(0, 4);
    const int month = number(5, 2);
    const int day = number(8, 2);
    const int hour = number(11, 2);
    const int minute = number(14, 2);
    const int second = number(17, 2);
    if (!IsCivilDate(year, month, day) || hour > 23 || minute > 59 || second > 59) {
        return std::nullopt;
    }
    return DateSerial(year, month, day) + TimeSerial(hour, minute, second);
}

}  // namespace horavex
