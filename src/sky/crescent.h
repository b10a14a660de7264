#pragma once

#include <optional>

#include "sky/horizon.h"
#include "sky/visibility.h"

namespace horavex {

/// How the moon stands to the sun over a horizon; degrees but for the width.
struct CrescentArcs {
    double light;    // between the centres: the elongation
    double vision;   // the moon's altitude less the sun's
    double azimuth;  // the moon's bearing less the sun's
    double width;    // minutes of arc, of the crescent at its middle
};

/// What an evening is: before the conjunction there is no new crescent, and where the moon sets
/// before the sun there is none to look for. No criterion is asked there, nor where the sun stays
/// up or down.
enum class EveningKind { kJudged, kBeforeNewMoon, kMoonSetsFirst, kNoSunset };

/// The moon on an evening. All but the times of setting is at the best time to look for it, 4/9 of
/// the way from sunset to moonset (Yallop), or to the sunrise where the moon is up longer than the
/// night is; at sunset where the moon has set by then, or neither comes within a day.
struct CrescentEvening {
    Date sunset;                  // Universal Time, as the others
    bool moonUp;                  // any of it, at sunset
    std::optional<Date> moonset;  // the last one before the sunset where the moon sets first
    Date best;
    double age;               // hours since the new moon, negative before it
    double moonAltitude;      // degrees, without refraction
    CrescentArcs geocentric;  // from the centre of the Earth, with the width that the observer sees
    CrescentArcs topocentric;  // as the observer would see them without air
    Verdict yallop;            // the verdicts count where the evening is judged
    Verdict odeh;

    /// Days from sunset to moonset, negative where the moon sets first.
    std::optional<double> Lag() const;

    const Verdict& Of(Criterion criterion) const {
        return criterion == Criterion::kYallop ? yallop : odeh;
    }
};

/// The evening whose sunset is the first within a day of an instant, of noon for one; nothing where
/// the sun does not set.
std::optional<CrescentEvening> CrescentAfter(const Almanac& almanac, const Observer& observer,
                                             Date noon, Date newMoon);

/// The evening of a sunset that is known.
CrescentEvening CrescentAt(const Almanac& almanac, const Observer& observer, Date sunset,
                           Date newMoon);

EveningKind KindOf(Date sunset, bool moonUp, Date newMoon);

/// Nothing is an evening on which the sun does not set.
EveningKind KindOf(const std::optional<CrescentEvening>& evening, Date newMoon);

}  // namespace horavex
