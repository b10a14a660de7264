#include "timetables/year_names.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace horavex {

namespace {

constexpr std::size_t kFromMonth = 2;  // days from the line of a month to a name
constexpr std::size_t kNameDays = 32;  // that a name lies over
constexpr double kMidnight = 24.0;     // ends the picture
constexpr double kEnough = 1.5;        // height of a name with what is free around it, hours

/// Hours of the clock between which nothing is drawn.
struct Gap {
    double from;
    double to;

    double Height() const { return to - from; }
};

std::size_t FirstRow(const Timetable& table, int month) {
    return static_cast<std::size_t>(DaysOfMonth(table, month).data() - table.days.data());
}

std::span<const TimetableDay> DaysBeneath(const Timetable& table, std::size_t row) {
    return std::span(table.days).subspan(row, kNameDays);
}

/// From a time to the next one on each of the days; none where one of them is missing.
std::optional<Gap> GapBelow(std::span<const TimetableDay> days, std::size_t prayer) {
    Gap gap{0.0, kMidnight};
    for (const TimetableDay& day : days) {
        const auto& moment = day.moments[prayer];
        if (!moment) {
            return std::nullopt;
        }
        gap.from = std::max(gap.from, moment->hours);
        if (prayer == kIsha) {
            continue;
        }
        const auto& next = day.moments[prayer + 1];
        if (!next) {
            return std::nullopt;
        }
        gap.to = std::min(gap.to, next->hours);
    }
    return gap;
}

/// The first part of a gap that no line goes through and that is enough for a name; else the
/// tallest one.
Gap RoomIn(const Gap& gap, int hoursPerLine) {
    Gap tallest{gap.from, gap.from};
    for (double from = gap.from; from < gap.to && tallest.Height() < kEnough;) {
        const double line = (std::floor(from / hoursPerLine) + 1.0) * hoursPerLine;
        const Gap part{from, std::min(line, gap.to)};
        tallest = part.Height() > tallest.Height() ? part : tallest;
        from = part.to;
    }
    return {tallest.from, std::min(tallest.to, tallest.from + kEnough)};
}

struct Column {
    std::vector<YearName> names;
    double narrowest = std::numeric_limits<double>::max();  // of the places of names, hours

    bool IsBetterThan(const Column& other) const {
        return names.size() == other.names.size() ? narrowest > other.narrowest
                                                  : names.size() > other.names.size();
    }
};

Column ColumnAt(const Timetable& table, std::size_t row, int hoursPerLine) {
    Column column;
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        const auto gap = GapBelow(DaysBeneath(table, row), prayer);
        if (!gap || gap->Height() <= 0.0) {
            continue;
        }
        const Gap room = RoomIn(*gap, hoursPerLine);
        column.narrowest = std::min(column.narrowest, room.Height());
        column.names.push_back({prayer, row, (room.from + room.to) / 2.0});
    }
    return column;
}

}  // namespace

std::vector<YearName> PlaceYearNames(const Timetable& table, int hoursPerLine) {
    Column best;
    for (int month = 1; month <= 11; ++month) {  // a name may be longer than a month is wide
        const std::size_t row = FirstRow(table, month) + kFromMonth;
        if (const Column column = ColumnAt(table, row, hoursPerLine); column.IsBetterThan(best)) {
            best = column;
        }
    }
    return best.names;
}

}  // namespace horavex
