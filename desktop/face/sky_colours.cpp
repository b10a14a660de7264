#include "desktop/face/sky_colours.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "desktop/face/palette.h"
#include "desktop/look/look.h"

namespace horavex {

namespace {

struct SkyStop {
    double altitude;  // of the sun, degrees
    SkyColours colours;
};

// From the navy of the night over the violet of nautical and the copper of civil twilight to day.
const std::array<SkyStop, 7> kStops = {{
    {-18.0, {kSkyTop, kSkyBottom, kCard, 1.0}},
    {-12.0, {{0x18, 0x2e, 0x55}, {0x1b, 0x29, 0x4c}, {0x10, 0x1a, 0x36, 0x20}, 0.7}},
    {-6.0, {{0x1d, 0x34, 0x63}, {0x49, 0x33, 0x58}, {0x10, 0x1a, 0x36, 0x40}, 0.15}},
    {-1.0, {{0x1f, 0x3f, 0x70}, {0x74, 0x3c, 0x38}, {0x14, 0x1a, 0x30, 0x66}, 0.0}},
    {3.0, {{0x1c, 0x47, 0x77}, {0x66, 0x46, 0x40}, {0x10, 0x1d, 0x34, 0x70}, 0.0}},
    {7.0, {{0x18, 0x49, 0x7a}, {0x3c, 0x4d, 0x66}, {0x0c, 0x1e, 0x36, 0x78}, 0.0}},
    {12.0, {{0x15, 0x4a, 0x7c}, {0x1d, 0x51, 0x7a}, {0x0b, 0x1f, 0x38, 0x78}, 0.0}},
}};

int Between(int from, int to, double part) {
    return static_cast<int>(std::lround(std::lerp(from, to, part)));
}

QColor Between(const QColor& from, const QColor& to, double part) {
    return {Between(from.red(), to.red(), part), Between(from.green(), to.green(), part),
            Between(from.blue(), to.blue(), part), Between(from.alpha(), to.alpha(), part)};
}

}  // namespace

SkyColours SkyColoursAt(double altitude) {
    const double height = std::clamp(altitude, kStops.front().altitude, kStops.back().altitude);
    const auto* above = std::ranges::find_if(
        kStops, [height](const SkyStop& stop) { return stop.altitude >= height; });
    const auto* below = above == kStops.begin() ? above : std::prev(above);
    const double gap = above->altitude - below->altitude;
    const double part = gap > 0.0 ? (height - below->altitude) / gap : 0.0;
    const SkyColours& from = below->colours;
    const SkyColours& to = above->colours;
    return {Between(from.top, to.top, part), Between(from.bottom, to.bottom, part),
            Between(from.card, to.card, part), std::lerp(from.stars, to.stars, part)};
}

SkyColours PlainSky() {
    return {Qt::black, Qt::black, Qt::black, 0.0};
}

SkyColours NightSky() {
    return look::WantsContrast() ? PlainSky() : kStops.front().colours;
}

QColor EdgeOfFace() {
    return look::WantsContrast() ? kGold : kEdge;
}

}  // namespace horavex
