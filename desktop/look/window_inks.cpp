#include "desktop/look/window_inks.h"

#include <algorithm>
#include <iterator>

#include "desktop/look/roles.h"
#include "forms/inks.h"

namespace horavex::look {

namespace {

struct DarkInk {
    Colour paper;
    Colour dark;
};

// What does not stand here is the same on dark ground: skies, moons, and scales of classes, whose
// colours are what they tell.
constexpr DarkInk kDarkInks[] = {
    {ink::kMark, {255, 140, 120}},     {ink::kAccent, {143, 187, 232}},
    {ink::kScale, {184, 196, 208}},    {ink::kSea, {22, 40, 62}},
    {ink::kLand, {62, 72, 82}},        {ink::kCoast, {160, 170, 176}},
    {ink::kUnjudged, {70, 110, 108}},  {ink::kChartPaper, {15, 25, 36}},
    {ink::kChartText, {236, 235, 228}}};

QColor OnDark(const Colour& colour) {
    const auto* found = std::ranges::find(kDarkInks, colour, &DarkInk::paper);
    return OnPaper(found == std::end(kDarkInks) ? colour : found->dark);
}

}  // namespace

Inks WindowInks(const QPalette& palette) {
    return [text = palette.color(QPalette::Text), field = palette.color(QPalette::Base),
            isDark = IsDark(palette)](const Colour& colour) {
        if (colour == kBlack) {
            return text;
        }
        if (colour == kWhite) {
            return field;
        }
        return isDark ? OnDark(colour) : OnPaper(colour);
    };
}

}  // namespace horavex::look
