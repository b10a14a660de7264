#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace horavex {

/// Labels of Hijri months with their years, "Safar  1447", for the rows of the moon tables. The
/// names of some months end in a blank of their own, so that two stand before the year
/// (MoonLabelsTest.TableHoldsFourBlocks). Entry 39 stays empty; the year of
/// entries 27 to 38 is 0, and they are never shown.
using MoonMonthLabels = std::array<std::string, 40>;

/// The table for a Gregorian year, by fixed offsets. Throws OverflowFault for a year whose Hijri
/// year leaves a 16-bit field.
MoonMonthLabels BuildMoonMonthLabels(std::int16_t year);

/// The entries that label the rows of a Gregorian year, both ends included.
struct LabelSlice {
    std::size_t first;
    std::size_t last;

    bool operator==(const LabelSlice&) const = default;
};

/// Nothing for the years after 2020, whose labels come from HijriLabelForMoonRow. 2007, 2019 and
/// 2020 have 12 labels for 13 rows; all years before 2000 share one slice.
std::optional<LabelSlice> MoonLabelRows(std::int16_t year);

/// 1 to 12 for the English name of a month, in any letter case; -1 for anything else.
int MonthNumberFromName(const std::string& name);

/// The Hijri month and year that begin after the new moon of a row ("6 January 2000, 18hrs
/// 14min"), with a blank in front: those of the day two days later. Anything that fails on the way,
/// a row without a comma and a missing table of months among them, gives the pack's text for an
/// error.
std::string HijriLabelForMoonRow(const std::string& row);

}  // namespace horavex
