#include "moon/moon_pictures.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "engine/angle.h"
#include "engine/year_table.h"
#include "forms/inks.h"
#include "moon/moon_position.h"
#include "platform/platform.h"
#include "store/location_record.h"
#include "store/settings_record.h"

namespace horavex {

namespace {

constexpr int kLimbSteps = 32;  // from pole to pole
constexpr double kRim = 15.0;   // around the lit side, twips

bool PlaceIsSouth() {
    return ActiveLocation.City.Latitude < 0;
}

/// The lit side between the limb and the terminator, an ellipse through both poles.
PolygonStep LitSide(Point centre, double radius, double elongation, double side) {
    PolygonStep lit{{}, ink::kMoonLit, {ink::kMoonLit}};
    const auto add = [&](int step, double width) {
        const double angle = Pi * step / kLimbSteps;  // from the upper pole
        lit.corners.push_back({centre.x + side * width * radius * std::sin(angle),
                               centre.y - radius * std::cos(angle)});
    };
    for (int step = 0; step <= kLimbSteps; ++step) {
        add(step, 1.0);
    }
    for (int step = kLimbSteps; step >= 0; --step) {
        add(step, std::cos(DegToRad(elongation)));
    }
    return lit;
}

double HoursOf(const MoonClock& time) {
    return std::min(time.hour + time.minute / 60.0, 24.0);
}

/// The strip of the day in an area: its hours run from left to right.
class DayStrip {
public:
    DayStrip(double width, double height) : width_(width), height_(height) {}

    void Fill(double fromHour, double toHour, Colour colour) {
        const double left = XOf(fromHour);
        const double right = XOf(toHour);
        drawing_.emplace_back(PolygonStep{
            {{left, 0.0}, {right, 0.0}, {right, Bottom()}, {left, Bottom()}}, colour, {colour}});
    }

    void DrawScale() {
        for (int hour = 0; hour <= 24; ++hour) {
            const double length = hour % 6 == 0 ? 120.0 : 60.0;
            drawing_.emplace_back(
                LineStep{{XOf(hour), Bottom()}, {XOf(hour), Bottom() + length}, {ink::kScale}});
            if (hour % 6 == 0) {
                drawing_.emplace_back(TextStep{{XOf(hour), Bottom() + 130.0},
                                               std::to_string(hour),
                                               ink::kScale,
                                               Anchor::kMiddle});
            }
        }
    }

    Drawing Taken() { return std::move(drawing_); }

private:
    static constexpr double kMargin = 200.0;
    static constexpr double kScaleHeight = 420.0;

    double XOf(double hour) const { return kMargin + (width_ - 2.0 * kMargin) * hour / 24.0; }
    double Bottom() const { return height_ - kScaleHeight; }

    double width_;
    double height_;
    Drawing drawing_;
};

}  // namespace

void AddMoonDisc(Drawing& drawing, Point centre, double radius, double elongation, bool south) {
    const double phase = Normalize360(elongation);
    const bool waxing = phase < 180.0;
    drawing.emplace_back(FilledCircleStep{centre, radius, ink::kMoonDark, {ink::kMoonRim}});
    if (phase == 0.0) {
        return;  // not even a line of light
    }
    drawing.emplace_back(LitSide(centre, radius - kRim, phase, waxing != south ? 1.0 : -1.0));
}

Drawing PhaseDiscs(double width, const MoonRows& rows, double elongation) {
    constexpr double kRadius = 110.0;
    Drawing drawing;
    for (std::size_t i = 0; i < kMoonRows; ++i) {
        if (!rows[i].empty()) {
            const Point centre{width / 2.0, kMoonRowHeight * (static_cast<double>(i) + 0.5)};
            AddMoonDisc(drawing, centre, kRadius, elongation, PlaceIsSouth());
        }
    }
    return drawing;
}

double TonightsElongation() {
    const Date today = Ports().clock.Today();
    const double daylightHour = IsDaylightDay(today, ActiveSettings) ? 1.0 : 0.0;
    const MoonPlace moon =
        MoonPosition(24.0 - ActiveSettings.TimeZone - daylightHour, CivilFromDate(today));
    return Normalize360(moon.longitude - moon.sunLongitude);
}

Drawing TonightsMoon(double width, double height, double elongation) {
    Drawing drawing;
    AddMoonDisc(drawing, {width / 2.0, height / 2.0}, 0.44 * height, elongation, PlaceIsSouth());
    return drawing;
}

Drawing MoonDay(double width, double height, const std::optional<MoonRiseSet>& times) {
    DayStrip strip(width, height);
    strip.Fill(0.0, 24.0, ink::kMoonDown);
    if (times) {
        const double rise = HoursOf(times->rise);
        const double set = HoursOf(times->set);
        if (rise <= set) {
            strip.Fill(rise, set, ink::kMoonUp);
        } else {
            strip.Fill(0.0, set, ink::kMoonUp);
            strip.Fill(rise, 24.0, ink::kMoonUp);
        }
    }
    strip.DrawScale();
    return strip.Taken();
}

}  // namespace horavex
