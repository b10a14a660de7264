#pragma once

#include <optional>

#include "forms/drawing.h"
#include "timetables/timetable.h"
#include "timetables/timetable_words.h"

namespace horavex {

/// The year as a picture: days from left to right, hours of the clock from top to bottom, a band
/// between each two times, the night dark, a step where daylight saving begins or ends, a line at
/// today where it lies in the year. What lies outside the day's 24 hours is cut off.
class YearChart {
public:
    /// Size in twips. Table and words outlive the chart.
    YearChart(const Timetable& table, const TimetableWords& words, double width, double height);

    Drawing Draw(Date today) const;

    /// The row of the table at a place of the picture; none beside the days.
    std::optional<std::size_t> RowAt(Point at) const;

private:
    double X(double row) const;
    double Y(double hours) const;

    void DrawBands(Drawing& drawing) const;
    void DrawBand(Drawing& drawing, std::size_t from, std::size_t to, Colour fill) const;
    void DrawHours(Drawing& drawing) const;
    void DrawMonths(Drawing& drawing) const;
    void DrawNames(Drawing& drawing) const;
    void DrawToday(Drawing& drawing, Date today) const;

    const Timetable& table_;
    const TimetableWords& words_;
    double width_;
    double height_;
};

}  // namespace horavex
