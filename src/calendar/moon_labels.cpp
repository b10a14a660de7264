#include "calendar/moon_labels.h"

#include <algorithm>
#include <iterator>

#include "base/date.h"
#include "base/fault.h"
#include "base/int16.h"
#include "base/text.h"
#include "calendar/date_entry.h"
#include "lang/language_pack.h"

namespace horavex {

namespace {

constexpr double kDaysToVisibility = 2.0;

constexpr const char* kLeadingNames[] = {"Shawwal", "Zul Qaada", "Zul Hijja"};
constexpr const char* kNames[] = {"Muharram",   "Safar ",      "Rabi'Awal", "Rabi'Thani",
                                  "Jamad Awal", "Jamad Thani", "Rajab",     "Sha'ban",
                                  "Ramadan ",   "Shawwal ",    "Zul Qaada", "Zul Hijja"};

/// The slice of all years up to one; the first row that fits counts.
struct YearSlice {
    std::int16_t lastYear;
    LabelSlice slice;
};

constexpr YearSlice kFrom2000[] = {
    {2002, {0, 12}}, {2006, {1, 13}}, {2007, {2, 13}}, {2010, {3, 15}},
    {2013, {4, 16}}, {2016, {5, 17}}, {2018, {6, 18}}, {2020, {7, 18}},
};
constexpr LabelSlice kBefore2000 = {3, 15};

std::string Label(const char* name, std::int16_t year) {
    return std::string(name) + " " + std::to_string(year);
}

void FillYear(MoonMonthLabels& labels, std::size_t first, std::int16_t year) {
    for (std::size_t month = 0; month < std::size(kNames); ++month) {
        labels[first + month] = Label(kNames[month], year);
    }
}

/// The date in front of a row's comma.
Date DateOfRow(const std::string& row) {
    const std::size_t comma = row.find(',');
    const auto words = Split(row.substr(0, comma), ' ');
    if (comma == std::string::npos || words.size() < 3) {
        throw BoundsFault("\"" + row + "\" is no row of a moon table");
    }
    const std::string text =
        words[0] + "/" + std::to_string(MonthNumberFromName(words[1])) + "/" + words[2];
    const auto date = ReadDateText(text);
    if (!date || !IsCivilDate(date->year, date->month, date->day)) {
        throw TypeMismatchFault("\"" + text + "\" is no date");
    }
    return DateSerial(date->year, date->month, date->day);
}

/// The words between the second and the last, each behind a blank.
std::string MonthAndYear(const std::string& hijri) {
    const auto words = Split(hijri, ' ');
    std::string label;
    for (std::size_t i = 2; i + 1 < words.size(); ++i) {
        label += " " + words[i];
    }
    return label;
}

std::string LabelOfRow(const std::string& row) {
    const CivilDate seen = CivilFromDate(DateOfRow(row) + kDaysToVisibility);
    const auto hijri =
        ConvertDateEntry(Conversion::kToHijri, ToInt16(seen.year), seen.month, seen.day);
    return hijri ? MonthAndYear(*hijri) : std::string();
}

}  // namespace

MoonMonthLabels BuildMoonMonthLabels(std::int16_t year) {
    MoonMonthLabels labels;
    for (std::size_t i = 0; i < std::size(kLeadingNames); ++i) {
        labels[i] = Label(kLeadingNames[i], SubtractInt16(year, 580));
    }
    FillYear(labels, 3, SubtractInt16(year, 579));
    FillYear(labels, 15, SubtractInt16(year, 578));
    FillYear(labels, 27, 0);
    return labels;
}

std::optional<LabelSlice> MoonLabelRows(std::int16_t year) {
    if (year < 2000) {
        return kBefore2000;
    }
    const auto* const found = std::ranges::find_if(
        kFrom2000, [year](const YearSlice& slice) { return year <= slice.lastYear; });
    return found == std::end(kFrom2000) ? std::nullopt : std::optional(found->slice);
}

int MonthNumberFromName(const std::string& name) {
    constexpr const char* kMonths[] = {"january",   "february", "march",    "april",
                                       "may",       "june",     "july",     "august",
                                       "september", "october",  "november", "december"};
    const auto* const found = std::ranges::find(kMonths, AsciiLower(name));
    return found == std::end(kMonths) ? -1 : static_cast<int>(found - kMonths) + 1;
}

std::string HijriLabelForMoonRow(const std::string& row) {
    try {
        return LabelOfRow(row);
    } catch (const Fault&) {
        return GetLangString("msg", "12", "Error");
    }
}

}  // namespace horavex
