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
    const bool fits =
        IsNumeric(box.Text()) && RoundHalfEven(std::fabs(TextToNumber(box.Text()))) < kRefusedZone;
    if (!fits) {
        box.SetText(former);
    }
}

bool IsZone(const std::string& text, double last) {
    return IsNumeric(text) && TextToNumber(text) >= kFirstZone && TextToNumber(text) <= last;
}

}  // namespace horavex
