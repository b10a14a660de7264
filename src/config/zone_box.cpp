#include "config/zone_box.h"

#include <cmath>

#include "base/number_text.h"
#include "base/rounding.h"

namespace horavex {

namespace {

constexpr double kRefusedZone = 13.0;  // hours; what rounds to this or more is thrown out
constexpr double kFirstZone = -12.0;   // hours

}  // namespace

void GuardZone(TextBox& box, const std::string& former) {
    const auto number = NumberIn(box.Text());
    if (!number || RoundHalfEven(std::fabs(*number)) >= kRefusedZone) {
        box.SetText(former);
    }
}

std::optional<double> ZoneIn(const std::string& text, double last) {
    const auto number = NumberIn(text);
    return number && *number >= kFirstZone && *number <= last ? number : std::nullopt;
}

}  // namespace horavex
