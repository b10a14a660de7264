#include "skywindows/eclipses_page.h"

#include <algorithm>

#include "base/rounding.h"
#include "base/script.h"
#include "lang/filled_text.h"
#include "lang/pack_number.h"
#include "sky/local_eclipse.h"
#include "sky/told_eclipses.h"
#include "skywindows/sky_words.h"

namespace horavex {

namespace {

struct KindName {
    const char* key;
    const char* english;
};

constexpr KindName kKinds[] = {{"Penumbral", "penumbral"},
                               {"Partial", "partial"},
                               {"Annular", "annular"},
                               {"Hybrid", "hybrid"},
                               {"Total", "total"}};

struct DatedRow {
    Date instant;
    Grid::Row row;
    bool isNone;  // a told candidate that does not happen
};

std::string KindText(EclipseKind kind) {
    const KindName& name = kKinds[static_cast<int>(kind)];
    return SkyWord(name.key, name.english);
}

std::string BodyName(bool solar) {
    return solar ? SkyWord("Sun", "Sun") : SkyWord("Moon", "Moon");
}

std::string MagnitudeText(double magnitude) {
    return PackNumber(RoundToPlaces(magnitude, 3));
}

/// In brackets where the body is below the horizon.
std::string ContactText(const ZoneClock& clock, const LocalEclipse& local, Date instant) {
    const std::string time = SkyTime(clock, instant);
    return local.IsSeenAt(instant) ? time : "(" + time + ")";
}

std::string SpanText(const ZoneClock& clock, const SkySpan& span) {
    const std::string text = SkyWord("SeenSpan", "{from} to {to}");
    return FilledText(FilledText(text, "{from}", KeptTogether(SkyTime(clock, span.from), text)),
                      "{to}", KeptTogether(SkyTime(clock, span.end), text));
}

std::string BothText(const std::string& first, const std::string& second) {
    return FilledText(FilledText(SkyWord("SeenTwice", "{first} and {second}"), "{first}", first),
                      "{second}", second);
}

/// What is seen between begin and end. In the far north and south a body may dip below the horizon
/// meanwhile, and is seen twice.
std::string SeenText(const ZoneClock& clock, const LocalEclipse& local, const SkySpan& span) {
    std::string text;
    for (const SkySpan& seen : local.seen) {
        const SkySpan part = {std::max(seen.from, span.from), std::min(seen.end, span.end)};
        if (part.from < part.end) {
            const std::string next = SpanText(clock, part);
            text = text.empty() ? next : BothText(text, next);
        }
    }
    return text;
}

/// The umbra is below the horizon as long as it meets the moon.
bool IsPenumbraAlone(const Eclipse& eclipse, const LocalEclipse& local) {
    return eclipse.kind != EclipseKind::kPenumbral && local.best->magnitude < 0.0;
}

void AddLocal(const ZoneClock& clock, const Eclipse& eclipse, const LocalEclipse& local,
              std::vector<std::string>& cells) {
    const bool penumbra = IsPenumbraAlone(eclipse, local);
    const EclipsePhases& phases = local.phases;
    const SkySpan span = penumbra ? phases.whole : phases.umbral.value_or(phases.whole);
    const double magnitude = eclipse.kind == EclipseKind::kPenumbral ? eclipse.penumbralMagnitude
                                                                     : local.best->magnitude;
    cells.insert(cells.end(),
                 {KindText(penumbra ? EclipseKind::kPenumbral : local.kind),
                  ContactText(clock, local, span.from), ContactText(clock, local, local.greatest),
                  ContactText(clock, local, span.end), SeenText(clock, local, span),
                  penumbra ? "" : MagnitudeText(magnitude)});
}

Grid::Row RowOf(const Almanac& almanac, const SkyPlace& place, const Eclipse& eclipse) {
    std::vector<std::string> cells = {BodyName(eclipse.solar), KindText(eclipse.kind),
                                      SkyDayAndTime(place.clock, eclipse.greatest)};
    const auto local = LocalEclipseOf(almanac, place.observer, eclipse);
    if (local && local->best) {
        AddLocal(place.clock, eclipse, *local, cells);
    } else {
        cells.push_back(SkyWord("NotSeen", "not seen"));
    }
    return {cells};
}

Grid::Row NoneRow(const ZoneClock& clock, const ToldCandidate& candidate) {
    return {{BodyName(candidate.solar), SkyWord("NoEclipse", "none *"),
             SkyDate(clock, candidate.instant)}};
}

std::vector<DatedRow> DatedRows(const Almanac& almanac, const SkyPlace& place, int year) {
    const SkySpan span = YearOf(place.clock, year);
    std::vector<DatedRow> rows;
    for (const Eclipse& eclipse : EclipsesBetween(almanac, span.from, span.end)) {
        rows.push_back({eclipse.greatest, RowOf(almanac, place, eclipse), false});
    }
    for (const ToldCandidate& candidate : ToldCandidates(almanac, year)) {
        if (!candidate.happens) {
            rows.push_back({candidate.instant, NoneRow(place.clock, candidate), true});
        }
    }
    std::ranges::stable_sort(rows, {}, &DatedRow::instant);
    return rows;
}

std::vector<std::string> Heads() {
    return {"",
            SkyWord("Eclipse", "Eclipse"),
            SkyWord("Greatest", "Greatest"),
            SkyWord("Here", "Here"),
            SkyWord("Begins", "Begins"),
            SkyWord("GreatestHere", "Greatest here"),
            SkyWord("Ends", "Ends"),
            SkyWord("Seen", "Seen"),
            SkyWord("Magnitude", "Magnitude")};
}

std::string Note(bool hasNone) {
    const std::string note = SkyWord(
        "EclipsesNote",
        "Times in brackets: the body is below the horizon. For the moon, beginning and end are "
        "those of the umbra, except in penumbral eclipses.");
    return hasNone
               ? note + "\n" +
                     SkyWord("NoEclipseNote",
                             "* For the year in question the list in the window \"Moon Phases\" "
                             "names this date, but there is no eclipse in the sky.")
               : note;
}

}  // namespace

SkyPage EclipsesPage(const Almanac& almanac, const SkyPlace& place, int year) {
    SkyPage page{Heads(), {}, "", {4, 5, 6, 8}};
    bool hasNone = false;
    for (DatedRow& dated : DatedRows(almanac, place, year)) {
        dated.row.cells.resize(page.heads.size());
        page.rows.push_back(std::move(dated.row));
        hasNone = hasNone || dated.isNone;
    }
    page.note = Note(hasNone);
    return page;
}

}  // namespace horavex
