#include <cstdio>

#include "ctl/almanac_year.h"
#include "ctl/eclipse_list.h"
#include "ctl/place_clock.h"
#include "sky/local_eclipse.h"
#include "sky/told_eclipses.h"
#include "store/location_record.h"
#include "timetables/timetable.h"

namespace horavex {

namespace {

constexpr const char* kKinds[] = {"penumbral", "partial", "annular", "hybrid", "total"};

/// An eclipse of the year.
struct ListedEclipse {
    Eclipse eclipse;
    bool told;  // the told list has it
    std::optional<LocalEclipse> local;

    bool IsSeen() const { return local && local->best; }
};

struct EclipseYear {
    int year;
    std::vector<ListedEclipse> eclipses;
    std::vector<ToldCandidate> candidates;
};

/// The name of an instant of an eclipse.
struct Contact {
    const char* name;
    Date at;
};

const char* KindName(EclipseKind kind) {
    return kKinds[static_cast<int>(kind)];
}

EclipseYear YearOf(const Almanac& almanac, int year) {
    EclipseYear found{year, {}, ToldCandidates(almanac, year)};
    for (const Eclipse& eclipse :
         EclipsesBetween(almanac, UniversalOfWorking(DateSerial(year, 1, 1)),
                         UniversalOfWorking(DateSerial(year + 1, 1, 1)))) {
        found.eclipses.push_back({eclipse, IsTold(eclipse, found.candidates),
                                  LocalEclipseOf(almanac, WorkingObserver(), eclipse)});
    }
    return found;
}

std::vector<Contact> ContactsOf(const LocalEclipse& local) {
    std::vector<Contact> contacts{{"greatest", local.greatest}};
    const auto enclose = [&](const char* begin, const char* end,
                             const std::optional<SkySpan>& span) {
        if (span) {
            contacts.insert(contacts.begin(), {begin, span->from});
            contacts.push_back({end, span->end});
        }
    };
    enclose("fullBegin", "fullEnd", local.phases.full);
    enclose("umbralBegin", "umbralEnd", local.phases.umbral);
    enclose("begin", "end", local.phases.whole);
    return contacts;
}

Json ContactsJson(const LocalEclipse& local) {
    Json contacts = Json::array();
    for (const Contact& contact : ContactsOf(local)) {
        contacts.push_back({{"name", contact.name},
                            {"at", WorkingJson(contact.at)},
                            {"up", local.IsSeenAt(contact.at)}});
    }
    return contacts;
}

Json SeenJson(const LocalEclipse& local) {
    Json seen = Json::array();
    for (const SkySpan& span : local.seen) {
        seen.push_back({{"from", WorkingJson(span.from)}, {"to", WorkingJson(span.end)}});
    }
    return seen;
}

Json HereJson(const ListedEclipse& listed) {
    if (!listed.local) {
        return nullptr;
    }
    const LocalEclipse& local = *listed.local;
    Json here = {{"kind", KindName(local.kind)}, {"magnitude", local.magnitude}};
    if (listed.eclipse.solar) {
        here["obscuration"] = local.obscuration;
    }
    here["contacts"] = ContactsJson(local);
    here["seen"] = SeenJson(local);
    here["best"] =
        local.best
            ? Json({{"at", WorkingJson(local.best->instant)}, {"magnitude", local.best->magnitude}})
            : Json();
    return here;
}

const char* BodyKey(bool solar) {
    return solar ? "sun" : "moon";
}

Json EclipseJson(const ListedEclipse& listed) {
    const Eclipse& eclipse = listed.eclipse;
    Json json = {{"body", BodyKey(eclipse.solar)},
                 {"kind", KindName(eclipse.kind)},
                 {"greatest", WorkingJson(eclipse.greatest)},
                 {"gamma", eclipse.gamma},
                 {"magnitude", eclipse.magnitude}};
    if (eclipse.solar) {
        json["place"] = {{"latitude", eclipse.place.latitude},
                         {"longitude", eclipse.place.longitude}};
    } else {
        json["penumbralMagnitude"] = eclipse.penumbralMagnitude;
    }
    json["told"] = listed.told;
    json["here"] = HereJson(listed);
    return json;
}

std::string DayText(Date universal) {
    return IsoDate(CivilFromDate(WorkingMinuteOf(universal)));
}

Json EclipsesJson(const EclipseYear& year) {
    Json eclipses = Json::array();
    for (const ListedEclipse& listed : year.eclipses) {
        eclipses.push_back(EclipseJson(listed));
    }
    Json none = Json::array();
    for (const ToldCandidate& candidate : year.candidates) {
        if (!candidate.happens) {
            none.push_back(
                {{"body", BodyKey(candidate.solar)}, {"told", DayText(candidate.instant)}});
        }
    }
    return {{"city", CityText}, {"year", year.year}, {"eclipses", eclipses}, {"toldButNone", none}};
}

std::string MagnitudeText(double magnitude) {
    char text[24];
    std::snprintf(text, sizeof text, "%.3f", magnitude);
    return text;
}

/// An eclipse over the place in words. Times are in brackets while the body is below the horizon,
/// and marked where they are not on the day of the Earth's greatest eclipse.
struct LocalText {
    const Eclipse& eclipse;
    const LocalEclipse& local;

    std::string Time(Date instant) const {
        const std::string time = WorkingTimeText(instant, WorkingMinuteOf(eclipse.greatest));
        return local.IsSeenAt(instant) ? time : "(" + time + ")";
    }

    std::string Span(const SkySpan& span) const {
        return Time(span.from) + " to " + Time(span.end);
    }

    std::string Phase(const char* name, const std::optional<SkySpan>& span) const {
        return span ? std::string(", ") + name + " " + Span(*span) : "";
    }

    std::string Contacts() const {
        const EclipsePhases& phases = local.phases;
        const std::string greatest = ", greatest " + Time(local.greatest);
        if (eclipse.solar) {
            return "here " + std::string(KindName(local.kind)) + " " +
                   MagnitudeText(local.magnitude) + ", " + Span(phases.whole) +
                   Phase(KindName(local.kind), phases.full) + greatest;
        }
        return "penumbra " + Span(phases.whole) + Phase("umbra", phases.umbral) +
               Phase("total", phases.full) + greatest;
    }

    /// Below zero the moon is seen in the penumbra alone.
    std::string Best() const {
        return local.best->magnitude < 0.0 ? ", the penumbra alone"
                                           : ", at most " + MagnitudeText(local.best->magnitude) +
                                                 " at " + Time(local.best->instant);
    }

    std::string Seen() const {
        std::string text;
        for (const SkySpan& span : local.seen) {
            text += (text.empty() ? "seen " : " and ") + Span(span);
        }
        return text + Best();
    }
};

std::string DayAndTime(Date universal) {
    return DayText(universal) + " " + WorkingTimeText(universal);
}

const char* BodyTitle(bool solar) {
    return solar ? "Sun   " : "Moon  ";
}

double ShownMagnitude(const Eclipse& eclipse) {
    return eclipse.kind == EclipseKind::kPenumbral ? eclipse.penumbralMagnitude : eclipse.magnitude;
}

std::string EclipseText(const ListedEclipse& listed) {
    const Eclipse& eclipse = listed.eclipse;
    const std::string head = BodyTitle(eclipse.solar) + DayAndTime(eclipse.greatest) + "  " +
                             KindName(eclipse.kind) + " " + MagnitudeText(ShownMagnitude(eclipse)) +
                             (listed.told ? "\n" : "  (not in the told list)\n");
    if (!listed.IsSeen()) {
        return head + "      not seen here\n";
    }
    const LocalText here{eclipse, *listed.local};
    return head + "      " + here.Contacts() + "\n      " + here.Seen() + "\n";
}

std::string YearText(const EclipseYear& year) {
    std::string text = CityText + "\n";
    for (const ListedEclipse& listed : year.eclipses) {
        text += EclipseText(listed);
    }
    for (const ToldCandidate& candidate : year.candidates) {
        text += candidate.happens ? ""
                                  : BodyTitle(candidate.solar) + DayText(candidate.instant) +
                                        "  none, though the told list has it\n";
    }
    return text;
}

}  // namespace

void PrintLocalEclipses(Session& session, const PlaceOptions& place, int year) {
    RequireAlmanacYear("--year", year);
    ApplyPlace(place, DateSerial(year, 1, 1));
    const EclipseYear found = YearOf(Ports().almanac, year);
    session.Print(EclipsesJson(found), YearText(found));
}

}  // namespace horavex
