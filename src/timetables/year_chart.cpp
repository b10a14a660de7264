#include "timetables/year_chart.h"

#include <algorithm>
#include <cmath>

#include "forms/inks.h"
#include "timetables/year_names.h"

namespace horavex {

namespace {

// Margins around the days, twips.
constexpr double kLeft = 750.0;
constexpr double kTop = 150.0;
constexpr double kRight = 150.0;
constexpr double kBottom = 450.0;

/// What lies between a time and the next one of the day.
struct Band {
    std::size_t from;
    std::size_t to;
    Colour fill;
    Colour ink;  // of the name of the time that it begins with
};

constexpr Band kBands[] = {{kFajr, kShurooq, ink::kDawn, ink::kOnDark},
                           {kShurooq, kZuhr, ink::kMorning, ink::kOnLight},
                           {kZuhr, kAsr, ink::kNoon, ink::kOnLight},
                           {kAsr, kMaghrib, ink::kAfternoon, ink::kOnLight},
                           {kMaghrib, kIsha, ink::kDusk, ink::kOnDark}};

constexpr int kHoursPerLine = 3;
constexpr double kShortestMonth = 28.0;  // days
constexpr double kMonthGap = 60.0;       // between the names of two months at least, twips
constexpr double kHalfText = 120.0;      // of the height of a text, twips

}  // namespace

YearChart::YearChart(const Timetable& table, const TimetableWords& words, double width,
                     double height)
    : table_(table), words_(words), width_(width), height_(height) {}

double YearChart::X(double row) const {
    return kLeft + (width_ - kLeft - kRight) * row / static_cast<double>(table_.days.size());
}

double YearChart::Y(double hours) const {
    return kTop + (height_ - kTop - kBottom) * std::clamp(hours, 0.0, 24.0) / 24.0;
}

std::optional<std::size_t> YearChart::RowAt(Point at) const {
    const auto days = static_cast<double>(table_.days.size());
    const double row = std::floor((at.x - kLeft) * days / (width_ - kLeft - kRight));
    if (row < 0.0 || row >= days) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(row);
}

Drawing YearChart::Draw(Date today) const {
    Drawing drawing;
    drawing.push_back(PolygonStep{{{0.0, 0.0}, {width_, 0.0}, {width_, height_}, {0.0, height_}},
                                  ink::kChartPaper,
                                  {ink::kChartPaper}});
    DrawBands(drawing);
    DrawHours(drawing);
    DrawMonths(drawing);
    DrawNames(drawing);
    DrawToday(drawing, today);
    return drawing;
}

void YearChart::DrawBands(Drawing& drawing) const {
    const double right = X(static_cast<double>(table_.days.size()));
    drawing.push_back(
        PolygonStep{{{kLeft, Y(0.0)}, {right, Y(0.0)}, {right, Y(24.0)}, {kLeft, Y(24.0)}},
                    ink::kChartNight,
                    {ink::kChartNight}});
    for (const Band& band : kBands) {
        DrawBand(drawing, band.from, band.to, band.fill);
    }
}

/// Days without one of the two times interrupt the band.
void YearChart::DrawBand(Drawing& drawing, std::size_t from, std::size_t to, Colour fill) const {
    std::vector<Point> upper;
    std::vector<Point> lower;
    const auto finish = [&] {
        if (!upper.empty()) {
            upper.insert(upper.end(), lower.rbegin(), lower.rend());
            drawing.push_back(PolygonStep{std::move(upper), fill, {fill}});
        }
        upper.clear();
        lower.clear();
    };
    for (std::size_t row = 0; row < table_.days.size(); ++row) {
        const auto& moments = table_.days[row].moments;
        if (!moments[from] || !moments[to]) {
            finish();
            continue;
        }
        for (const double x : {X(static_cast<double>(row)), X(static_cast<double>(row) + 1.0)}) {
            upper.push_back({x, Y(moments[from]->hours)});
            lower.push_back({x, Y(moments[to]->hours)});
        }
    }
    finish();
}

void YearChart::DrawHours(Drawing& drawing) const {
    const double right = X(static_cast<double>(table_.days.size()));
    for (int hour = 0; hour <= 24; hour += kHoursPerLine) {
        drawing.push_back(LineStep{{kLeft, Y(hour)}, {right, Y(hour)}, {ink::kChartGrid}});
        drawing.push_back(
            TextStep{{150.0, Y(hour) - kHalfText}, IsoTime(hour * 60), ink::kChartText});
    }
}

void YearChart::DrawMonths(Drawing& drawing) const {
    TextRowStep names{{}, X(kShortestMonth) - X(0.0) - kMonthGap, ink::kChartText};
    for (std::size_t row = 0; row < table_.days.size(); ++row) {
        const CivilDate date = CivilFromDate(table_.days[row].date);
        if (date.day == 1) {
            const double x = X(static_cast<double>(row));
            drawing.push_back(LineStep{{x, Y(0.0)}, {x, Y(24.0)}, {ink::kChartGrid}});
            names.entries.push_back({{x + 30.0, Y(24.0) + 90.0},
                                     words_.MonthAlone(date.month),
                                     words_.MonthBriefly(date.month)});
        }
    }
    drawing.push_back(std::move(names));
}

void YearChart::DrawNames(Drawing& drawing) const {
    for (const YearName& name : PlaceYearNames(table_, kHoursPerLine)) {
        const auto* band = std::ranges::find(kBands, name.prayer, &Band::from);
        const Colour ink = band == std::end(kBands) ? ink::kOnDark : band->ink;
        drawing.push_back(TextStep{{X(static_cast<double>(name.row)), Y(name.hours) - kHalfText},
                                   words_.prayers.at(name.prayer),
                                   ink});
    }
}

void YearChart::DrawToday(Drawing& drawing, Date today) const {
    const double row = today - table_.days.front().date;
    if (row < 0.0 || row >= static_cast<double>(table_.days.size())) {
        return;
    }
    const double x = X(row + 0.5);
    for (const Pen& pen :
         {Pen{ink::kOnDark, 4}, Pen{ink::kToday, 2}}) {  // told apart from any band
        drawing.push_back(LineStep{{x, Y(0.0)}, {x, Y(24.0)}, pen});
    }
}

}  // namespace horavex
