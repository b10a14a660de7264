#include "skywindows/day_picture.h"

#include <cmath>
#include <optional>
#include <utility>

#include "forms/inks.h"
#include "moon/moon_pictures.h"
#include "sky/phases.h"
#include "sky/sky_day.h"

namespace horavex {

namespace {

constexpr double kTop = 90.0;      // degrees of altitude
constexpr double kBottom = -30.0;  // below it nothing is drawn

struct Band {
    double upper;  // degrees; the next one begins where it ends
    Colour colour;
};

constexpr Band kBands[] = {{kTop, ink::kDay},
                           {0.0, ink::kCivil},
                           {-kCivilTwilight, ink::kNautical},
                           {-kNauticalTwilight, ink::kAstronomical},
                           {-kAstronomicalTwilight, ink::kNight},
                           {kBottom, ink::kNight}};

using OverHorizon = HorizonPlace (*)(const Almanac& almanac, const Observer& observer,
                                     Date universal);

class DayChart {
public:
    DayChart(double width, double height, const SkySpan& day)
        : width_(width), height_(height), day_(day) {}

    void DrawBands() {
        for (std::size_t i = 0; i + 1 < std::size(kBands); ++i) {
            const double top = YOf(kBands[i].upper);
            const double bottom = YOf(kBands[i + 1].upper);
            drawing_.emplace_back(
                PolygonStep{{{kLeft, top}, {Right(), top}, {Right(), bottom}, {kLeft, bottom}},
                            kBands[i].colour,
                            {kBands[i].colour}});
        }
    }

    void DrawLevels() {
        for (const int degrees : {90, 60, 30, 0}) {
            const double y = YOf(degrees);
            const Pen pen = degrees == 0 ? Pen{ink::kHorizon, 2} : Pen{ink::kLevel};
            drawing_.emplace_back(LineStep{{kLeft, y}, {Right(), y}, pen});
            drawing_.emplace_back(
                TextStep{{0.0, y - kHalfText}, std::to_string(degrees) + "\u00b0", ink::kScale});
        }
    }

    void DrawHours(const ZoneClock& clock) {
        const Date midnight = std::floor(clock.LocalOf(day_.from) + 0.5);
        for (int hour = 0; hour <= 24; hour += 3) {
            const double x = XOf(clock.UniversalOf(midnight + hour / 24.0));
            drawing_.emplace_back(LineStep{{x, Bottom()}, {x, Bottom() + kTick}, {ink::kScale}});
            drawing_.emplace_back(TextStep{
                {x, Bottom() + kTick}, std::to_string(hour), ink::kScale, Anchor::kMiddle});
        }
    }

    void DrawCurve(const std::function<double(Date)>& altitude, Colour colour) {
        constexpr int kSteps = 288;  // five minutes each
        std::optional<Point> last;
        for (int step = 0; step <= kSteps; ++step) {
            const Date instant = day_.from + (day_.end - day_.from) * step / kSteps;
            const auto point = PointAt(instant, altitude(instant));
            if (last && point) {
                drawing_.emplace_back(LineStep{*last, *point, {colour, 2}});
            }
            last = point;
        }
    }

    void DrawNow(Date now) {
        drawing_.emplace_back(LineStep{{XOf(now), YOf(kTop)}, {XOf(now), Bottom()}, {ink::kNow}});
    }

    /// Nothing below what is drawn.
    std::optional<Point> PointAt(Date instant, double altitude) const {
        return altitude < kBottom ? std::nullopt
                                  : std::optional(Point{XOf(instant), YOf(altitude)});
    }

    Drawing& Steps() { return drawing_; }

private:
    static constexpr double kLeft = 600.0;  // twips
    static constexpr double kMargin = 200.0;
    static constexpr double kTick = 60.0;
    static constexpr double kHalfText = 120.0;
    static constexpr double kScaleHeight = 380.0;

    double Right() const { return width_ - kMargin; }
    double Bottom() const { return height_ - kScaleHeight; }
    double XOf(Date instant) const {
        return kLeft + (Right() - kLeft) * (instant - day_.from) / (day_.end - day_.from);
    }
    double YOf(double degrees) const {
        return kHalfText + (Bottom() - kHalfText) * (kTop - degrees) / (kTop - kBottom);
    }

    double width_;
    double height_;
    SkySpan day_;
    Drawing drawing_;
};

constexpr double kDisc = 110.0;  // twips

void DrawSun(DayChart& chart, Date now, double altitude) {
    if (const auto at = chart.PointAt(now, altitude)) {
        chart.Steps().emplace_back(FilledCircleStep{*at, kDisc, ink::kSunPath, {ink::kScale}});
    }
}

void DrawMoon(DayChart& chart, Date now, const SkyMoment& moment, bool south) {
    if (const auto at = chart.PointAt(now, moment.moon.altitude)) {
        AddMoonDisc(chart.Steps(), *at, kDisc, moment.ahead, south);
    }
}

}  // namespace

Drawing DayPicture(double width, double height, const Almanac& almanac, const SkyPlace& place,
                   Date now) {
    DayChart chart(width, height, DayAround(place.clock, now));
    const auto altitude = [&](OverHorizon over) {
        return [&almanac, &place, over](Date instant) {
            return over(almanac, place.observer, instant).altitude;
        };
    };
    const SkyMoment moment = SkyMomentAt(almanac, place.observer, now);
    chart.DrawBands();
    chart.DrawLevels();
    chart.DrawHours(place.clock);
    chart.DrawCurve(altitude(MoonOver), ink::kMoonPath);
    chart.DrawCurve(altitude(SunOver), ink::kSunPath);
    chart.DrawNow(now);
    DrawMoon(chart, now, moment, place.observer.latitude < 0.0);
    DrawSun(chart, now, moment.sun.altitude);
    return std::move(chart.Steps());
}

}  // namespace horavex
