#include "sky/first_days.h"

#include "calendar/umm_al_qura.h"

namespace horavex {

namespace {

SightedDays SightedDaysOf(const MonthEvenings& month, Criterion criterion) {
    return {FirstDay(month, criterion, Sight::kNakedEye),
            FirstDay(month, criterion, Sight::kAided)};
}

}  // namespace

FirstDays FirstDaysOf(const MonthEvenings& month, const HijriDate& first) {
    return {SightedDaysOf(month, Criterion::kYallop), SightedDaysOf(month, Criterion::kOdeh),
            UmmAlQura().DateOf(first), DateFromHijri(first)};
}

}  // namespace horavex
