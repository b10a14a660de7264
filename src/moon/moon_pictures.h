#pragma once

#include <optional>

#include "forms/drawing.h"
#include "moon/moon_date.h"
#include "moon/moon_rise_set.h"

namespace horavex {

// Pictures of the moon window beside its texts, in areas of the given sizes, twips. They say
// nothing that decides anything.

/// How far apart the rows of the tables stand, twips; a disc lies beside each.
inline constexpr double kMoonRowHeight = 300.0;

/// Adds the disc of the moon as it is lit. elongation: degrees from the sun, 0 new, 90 first
/// quarter, 180 full; any number. In the south it hangs the other way round: the waxing moon is
/// lit at its left.
void AddMoonDisc(Drawing& drawing, Point centre, double radius, double elongation, bool south);

/// A disc beside each row of a table whose moons stand that far from the sun.
Drawing PhaseDiscs(double width, const MoonRows& rows, double elongation);

/// How far the moon stands from the sun at the coming midnight of the accepted place, degrees from
/// 0 to 360. Throws DivisionByZeroFault where the moon's theory has no answer.
double TonightsElongation();

/// The moon of that night.
Drawing TonightsMoon(double width, double height, double elongation);

/// The day from 0 to 24 hours with the time of the moon above the horizon in light; an empty strip
/// without times.
Drawing MoonDay(double width, double height, const std::optional<MoonRiseSet>& times);

}  // namespace horavex
