#include <cstdio>

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

Json YearJson(const EclipseYear& year) {
    Json eclipses = Json::array();
    for (const ListedEclipse& listed : year.eclipses) {
        eclipses.push_back(EclipseJson(listed));
    }
    Json none = Json::array();
    for (const ToldCandidate& candidate : year.candidates) {
        if (!candidate.happens) {
            none.push_back(
                {{"body", BodyKey(candidate.solar)}, {"told", WorkingJson(candidate.instant)}});
        }
    }
    return {{"city", CityText}, {"year", year.year}, {"eclipses", eclipses}, {"toldButNone", none}};
}

std::string TimesText(const SkySpan& span) {
    return WorkingTimeText(span.from) + " to " + WorkingTimeText(span.end);
}

std::string MagnitudeText(double magnitude) {
    char text[24];
    std::snprintf(text, sizeof text, "%.3f", magnitude);
    return text;
}

std::string PhaseText(const char* name, const std::optional<SkySpan>& span) {
    return span ? std::string(", ") + name + " " + TimesText(*span) : "";
}

std::string HereText(const Eclipse& eclipse, const LocalEclipse& local) {
    const std::string greatest = ", greatest " + WorkingTimeText(local.greatest);
    if (eclipse.solar) {
        return "here " + std::string(KindName(local.kind)) + " " + MagnitudeText(local.magnitude) +
               ", " + TimesText(local.phases.whole) +
               PhaseText(KindName(local.kind), local.phases.full) + greatest;
    }
    return "penumbra " + TimesText(local.phases.whole) + PhaseText("umbra", local.phases.umbral) +
           PhaseText("total", local.phases.full) + greatest;
}

std::string SeenText(const Eclipse& eclipse, const LocalEclipse& local) {
    std::string text;
    for (const SkySpan& span : local.seen) {
        text += (text.empty() ? "seen " : " and ") + TimesText(span);
    }
    if (eclipse.solar) {
        text += ", at most " + MagnitudeText(local.best->magnitude) + " at " +
                WorkingTimeText(local.best->instant);
    }
    return text;
}

std::string DayAndTime(Date universal) {
    return IsoDate(CivilFromDate(WorkingMinuteOf(universal))) + " " + WorkingTimeText(universal);
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
    return head + "      " + HereText(eclipse, *listed.local) + "\n      " +
           SeenText(eclipse, *listed.local) + "\n";
}

std::string YearText(const EclipseYear& year) {
    std::string text = CityText + "\n";
    for (const ListedEclipse& listed : year.eclipses) {
        text += EclipseText(listed);
    }
    for (const ToldCandidate& candidate : year.candidates) {
        text += candidate.happens ? ""
                                  : BodyTitle(candidate.solar) + DayAndTime(candidate.instant) +
                                        "  none, though the told list has it\n";
    }
    return text;
}

void RequireAlmanacYear(int year) {
    if (year < kFirstAlmanacYear || year > kLastAlmanacYear) {
        RefuseUsage("--year: the almanac has the years " + std::to_string(kFirstAlmanacYear) +
                    " to " + std::to_string(kLastAlmanacYear));
    }
}

}  // namespace

void PrintLocalEclipses(Session& session, const PlaceOptions& place, int year) {
    RequireAlmanacYear(year);
    ApplyPlace(place, DateSerial(year, 1, 1));
    const EclipseYear found = YearOf(Ports().almanac, year);
    session.Print(YearJson(found), YearText(found));
}

}  // namespace horavex
