#include "shell/face_fast.h"

#include "engine/day_view.h"
#include "engine/ruled_year.h"
#include "lang/language_pack.h"

namespace horavex {

namespace {

constexpr int kRamadan = 9;

}  // namespace

// Before the first day there is a meal, and behind the last one none: the day of the prayer counts.
std::string FastOfFace(const DayView& day) {
    const Date of = day.now + (day.next.isTomorrows ? 1.0 : 0.0);
    if (RuledHijriDate(of).month != kRamadan) {
        return {};
    }
    switch (day.next.prayer) {
        case kMaghrib:
            return GetLangString("desktop", "Iftar", "Iftar in");
        case kFajr:
            return GetLangString("desktop", "Suhoor", "Suhoor ends in");
        default:
            return {};
    }
}

}  // namespace horavex
