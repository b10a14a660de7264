#include "desktop/face/day_arc.h"

#include <QPainter>
#include <QRadialGradient>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/face/moon_disc.h"
#include "desktop/face/palette.h"
#include "desktop/face/sky_colours.h"
#include "desktop/look/look.h"

namespace horavex {

namespace {

// Pixels.
constexpr double kSide = 15.0;   // beside the arc
constexpr double kAbove = 14.0;  // over its highest point
constexpr double kBelow = 8.0;
constexpr double kSun = 7.0;
constexpr double kLight = 4.0;  // what goes on below the horizon
constexpr double kMoon = 11.0;
constexpr double kMark = 3.0;
constexpr double kNextMark = 5.0;
constexpr double kGlowWidth = 2.4;  // times what glows

// A degree below the horizon is so much of one above it: the day has more to show.
constexpr double kNightScale = 0.5;

// The horizon is seen on every day, whatever the sun does.
constexpr double kLeastHeight = 4.0;  // degrees on either side of it

constexpr double kSunrise = -0.83;  // altitude of the centre, with refraction

constexpr double kStep = 1.0 / 144.0;  // of a day

QColor Faint(QColor colour, double alpha) {
    colour.setAlphaF(static_cast<float>(alpha));
    return colour;
}

double Scaled(double altitude) {
    return altitude < 0.0 ? altitude * kNightScale : altitude;
}

void PaintGlowing(QPainter& painter, const QPointF& at, double radius, const QColor& colour) {
    QRadialGradient glow(at, radius * kGlowWidth);
    glow.setColorAt(0.3, Faint(colour, 0.5));
    glow.setColorAt(1.0, Faint(colour, 0.0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(glow);
    painter.drawEllipse(at, radius * kGlowWidth, radius * kGlowWidth);
    painter.setBrush(colour);
    painter.drawEllipse(at, radius, radius);
}

}  // namespace

void DayArc::ShowSky(std::shared_ptr<const DaySky> sky) {
    if (sky == sky_ || sky == nullptr) {
        return;
    }
    sky_ = std::move(sky);
    const auto [low, high] = std::ranges::minmax(sky_->sunArc);
    lowest_ = Scaled(std::min(low, -kLeastHeight));
    highest_ = Scaled(std::max(high, kLeastHeight));
    update();
}

void DayArc::ShowPrayers(const std::vector<std::optional<double>>& parts, std::size_t next) {
    if (parts != prayers_ || next != next_) {
        prayers_ = parts;
        next_ = next;
        update();
    }
}

QRectF DayArc::Field() const {
    return QRectF(rect()).adjusted(kSide, kAbove, -kSide, -kBelow);
}

double DayArc::Height(double altitude) const {
    const QRectF field = Field();
    const double part =
        (std::clamp(Scaled(altitude), lowest_, highest_) - lowest_) / (highest_ - lowest_);
    return field.bottom() - part * field.height();
}

QPointF DayArc::PointAt(double dayPart) const {
    const QRectF field = Field();
    return {field.left() + dayPart * field.width(), Height(AltitudeOnArc(sky_->sunArc, dayPart))};
}

QPolygonF DayArc::Way(double from, double to) const {
    QPolygonF way;
    for (double part = from; part < to; part += kStep) {
        way << PointAt(part);
    }
    way << PointAt(to);
    return way;
}

void DayArc::paintEvent(QPaintEvent*) {
    if (sky_ == nullptr) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintGround(painter);
    PaintMoon(painter);
    PaintWay(painter);
    PaintMarks(painter);
    PaintNow(painter);
}

void DayArc::PaintGround(QPainter& painter) const {
    const double horizon = Height(0.0);
    painter.fillRect(QRectF(0.0, horizon, width(), height() - horizon), Faint(Qt::black, 0.14));
    painter.setPen(QPen(EdgeOfFace(), 1.0));
    painter.drawLine(QPointF(0.0, horizon), QPointF(width(), horizon));
}

// What is over is bright, what is to come is faint.
void DayArc::PaintWay(QPainter& painter) const {
    const double now = sky_->local - std::floor(sky_->local);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Faint(kGold, 0.85), 2.0, Qt::SolidLine, Qt::RoundCap));
    painter.drawPolyline(Way(0.0, now));
    painter.setPen(
        QPen(Faint(kCream, look::WantsContrast() ? 0.7 : 0.4), 1.5, Qt::SolidLine, Qt::RoundCap));
    painter.drawPolyline(Way(now, 1.0));
}

void DayArc::PaintMarks(QPainter& painter) const {
    for (std::size_t prayer = 0; prayer < prayers_.size(); ++prayer) {
        if (!prayers_[prayer]) {
            continue;
        }
        const QPointF at = PointAt(*prayers_[prayer]);
        if (prayer == next_) {
            PaintGlowing(painter, at, kNextMark, kGold);
        } else {
            painter.setPen(QPen(kSkyBottom, 1.0));
            painter.setBrush(kCream);
            painter.drawEllipse(at, kMark, kMark);
        }
    }
}

// Across it stands where the sun's way is as far from the meridian, whenever the clock has noon.
void DayArc::PaintMoon(QPainter& painter) const {
    if (sky_->moonAltitude < kSunrise) {
        return;
    }
    const bool isNight = sky_->sunAltitude < kSunrise;
    const double part = sky_->local + (sky_->moonPastMeridian - sky_->sunPastMeridian) / 360.0;
    painter.save();
    painter.translate(PointAt(part - std::floor(part)).x(),
                      std::min(Height(sky_->moonAltitude), Height(0.0) - kMoon));
    painter.setPen(Qt::NoPen);
    painter.setBrush(Faint(kMuted, isNight ? 0.22 : 0.1));
    painter.drawEllipse(QPointF(0.0, 0.0), kMoon, kMoon);
    painter.setBrush(Faint(kCream, isNight ? 1.0 : 0.6));
    painter.drawPath(LitMoon(kMoon, sky_->litPart, sky_->brightLimb));
    painter.restore();
}

void DayArc::PaintNow(QPainter& painter) const {
    const double now = sky_->local - std::floor(sky_->local);
    const bool isUp = sky_->sunAltitude >= kSunrise;
    PaintGlowing(painter, PointAt(now), isUp ? kSun : kLight, isUp ? kSunColour : kMuted);
}

}  // namespace horavex
