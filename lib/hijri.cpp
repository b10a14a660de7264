#include "base/date.h"
#include "lib/answers.h"
#include "lib/published_months.h"

namespace horavex {

const UmmAlQura& PublishedMonths() {
    static const UmmAlQura months(ByteView(kPublishedTable, kPublishedTableSize));
    return months;
}

namespace {

constexpr int kLastYear = 9999;
constexpr double kLargestAdjustment = 2.0;  // days

void RequireCalendar(std::int32_t calendar, std::int32_t adjustment) {
    RequireRange("calendar", calendar, HORAVEX_UMM_AL_QURA, HORAVEX_ARITHMETIC);
    RequireRange("adjustment", adjustment, -kLargestAdjustment, kLargestAdjustment);
}

HijriDate HijriBy(std::int32_t calendar, Date date) {
    return calendar == HORAVEX_UMM_AL_QURA ? HijriOf(PublishedMonths(), date) : HijriFromDate(date);
}

Date DateBy(std::int32_t calendar, const HijriDate& hijri) {
    return calendar == HORAVEX_UMM_AL_QURA ? DateOf(PublishedMonths(), hijri)
                                           : DateFromHijri(hijri);
}

bool IsPlausible(const horavex_date& hijri) {
    return hijri.year >= 1 && hijri.year <= kLastYear && hijri.month >= 1 && hijri.month <= 12 &&
           hijri.day >= 1 && hijri.day <= 30;
}

}  // namespace

}  // namespace horavex

using namespace horavex;

horavex_status horavex_hijri_of(std::int32_t calendar, std::int32_t adjustment,
                                const horavex_date* date, horavex_date* hijri,
                                horavex_error* error) {
    return Answer(error, [&] {
        RequireCalendar(calendar, adjustment);
        Require(date != nullptr && hijri != nullptr, "a date is NULL");
        Require(IsCivilDate(date->year, date->month, date->day),
                "the Gregorian calendar has no such date");
        const HijriDate found =
            HijriBy(calendar, DateSerial(date->year, date->month, date->day) + adjustment);
        *hijri = {found.year, found.month, found.day};
    });
}

horavex_status horavex_date_of(std::int32_t calendar, std::int32_t adjustment,
                               const horavex_date* hijri, horavex_date* date,
                               horavex_error* error) {
    return Answer(error, [&] {
        RequireCalendar(calendar, adjustment);
        Require(date != nullptr && hijri != nullptr, "a date is NULL");
        Require(IsPlausible(*hijri), "the Hijri calendar has no such date");
        const HijriDate asked{hijri->year, hijri->month, hijri->day};
        const Date day = DateBy(calendar, asked);
        Require(HijriBy(calendar, day) == asked, "the Hijri calendar has no such date");
        Require(day - adjustment <= DateSerial(kLastYear, 12, 31), "the date is behind year 9999");
        const CivilDate civil = CivilFromDate(day - adjustment);
        *date = {civil.year, civil.month, civil.day};
    });
}
