#include "terminal/face/arc_lines.h"

#include <algorithm>
#include <cmath>

#include "sky/day_sky.h"

namespace horavex {

namespace {

constexpr double kLeastHeight = 4.0;  // degrees that are on view on either side of the horizon
constexpr double kNightScale = 0.4;   // a degree below the horizon is so much of one above it
constexpr double kSunrise = -0.83;    // altitude of the centre, with refraction

double Scaled(double altitude) {
    return altitude < 0.0 ? altitude * kNightScale : altitude;
}

/// Rows and columns of one day's way.
class ArcField {
public:
    ArcField(const Area& area, const DaySky& sky) : area_(area), sky_(sky) {
        const auto [low, high] = std::ranges::minmax(sky.sunArc);
        lowest_ = Scaled(std::min(low, -kLeastHeight));
        highest_ = Scaled(std::max(high, kLeastHeight));
    }

    int RowOf(double altitude) const {
        const double part =
            (std::clamp(Scaled(altitude), lowest_, highest_) - lowest_) / (highest_ - lowest_);
        return area_.row + area_.height - 1 -
               static_cast<int>(std::lround(part * (area_.height - 1)));
    }

    CellPlace At(double dayPart) const {
        return {RowOf(AltitudeOnArc(sky_.sunArc, dayPart)),
                area_.column + static_cast<int>(std::lround(dayPart * (area_.width - 1)))};
    }

private:
    Area area_;
    const DaySky& sky_;
    double lowest_;
    double highest_;
};

}  // namespace

void PutDayArc(Cells& cells, const Area& area, const FaceWords& day) {
    if (day.sky == nullptr || day.sky->sunArc.empty() || area.height < 2) {
        return;
    }
    const DaySky& sky = *day.sky;
    const ArcField field(area, sky);
    for (int column = 0; column < area.width; ++column) {
        cells.Put(field.RowOf(0.0), area.column + column, "─", Tone::kFaint);
    }
    for (int column = 0; column < area.width; ++column) {
        const CellPlace at = field.At(static_cast<double>(column) / std::max(1, area.width - 1));
        cells.Put(at.row, at.column, "·");
    }
    for (std::size_t prayer = 0; prayer < day.prayers.size(); ++prayer) {
        if (day.prayers[prayer].part) {
            const CellPlace at = field.At(*day.prayers[prayer].part);
            const bool isNext = prayer == day.next;
            cells.Put(at.row, at.column, "◆", isNext ? Tone::kAccent : Tone::kStrong);
        }
    }
    const CellPlace now = field.At(sky.local - std::floor(sky.local));
    cells.Put(now.row, now.column, sky.sunAltitude >= kSunrise ? "●" : "○", Tone::kAccent);
}

}  // namespace horavex
