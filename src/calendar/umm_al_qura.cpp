#include "calendar/umm_al_qura.h"

#include <algorithm>
#include <cmath>

#include "base/bytes.h"
#include "base/fault.h"

namespace horavex {

namespace {

// A record is a year: its number, the date of its first day, the days of its twelve months.
constexpr std::size_t kRecordLength = 18;
constexpr std::size_t kFirstDayOffset = 2;
constexpr std::size_t kMonthsOffset = 6;
constexpr std::size_t kMonths = 12;

constexpr std::uint8_t kShortestMonth = 28;  // days
constexpr std::uint8_t kLongestMonth = 30;

void Expect(bool sound, std::size_t record, const char* problem) {
    if (!sound) {
        throw BoundsFault(std::string(UmmAlQura::kFile) + ": record " +
                          std::to_string(record / kRecordLength + 1) + ": " + problem);
    }
}

}  // namespace

UmmAlQura::UmmAlQura(ByteView table) {
    if (table.empty() || table.size() % kRecordLength != 0) {
        throw BoundsFault(std::string(kFile) + ": a record is cut short");
    }
    firstYear_ = GetInt16(table, 0);
    monthStarts_ = {static_cast<Date>(GetInt32(table, kFirstDayOffset))};
    for (std::size_t record = 0; record < table.size(); record += kRecordLength) {
        Expect(monthStarts_.back() == GetInt32(table, record + kFirstDayOffset), record,
               "it does not begin where the one before ends");
        for (std::size_t month = 0; month < kMonths; ++month) {
            const std::uint8_t days = table[record + kMonthsOffset + month];
            Expect(days >= kShortestMonth && days <= kLongestMonth, record,
                   "a month is not from 28 to 30 days long");
            monthStarts_.push_back(monthStarts_.back() + days);
        }
    }
}

std::optional<HijriDate> UmmAlQura::HijriOf(Date date) const {
    const Date day = std::floor(date);
    if (day < monthStarts_.front() || day >= monthStarts_.back()) {
        return std::nullopt;
    }
    const auto next = std::upper_bound(monthStarts_.begin(), monthStarts_.end(), day);
    const auto month = static_cast<int>(next - monthStarts_.begin()) - 1;
    return HijriDate{firstYear_ + month / 12, month % 12 + 1,
                     static_cast<int>(day - *(next - 1)) + 1};
}

std::optional<Date> UmmAlQura::DateOf(const HijriDate& hijri) const {
    const int month = (hijri.year - firstYear_) * 12 + hijri.month - 1;
    if (month < 0 || month + 1 >= static_cast<int>(monthStarts_.size())) {
        return std::nullopt;
    }
    return monthStarts_[static_cast<std::size_t>(month)] + hijri.day - 1;
}

HijriDate HijriOf(const UmmAlQura& published, Date date) {
    return published.HijriOf(date).value_or(HijriFromDate(date));
}

Date DateOf(const UmmAlQura& published, const HijriDate& hijri) {
    return published.DateOf(hijri).value_or(DateFromHijri(hijri));
}

}  // namespace horavex
