#include "linux/zone_database.h"

#include <cctz/time_zone.h>

#include <algorithm>

namespace horavex {

namespace {

using TimePoint = cctz::time_point<cctz::seconds>;

TimePoint TimePointOf(UtcSeconds moment) {
    return TimePoint(cctz::seconds(moment));
}

UtcSeconds UtcSecondsOf(TimePoint time) {
    return time.time_since_epoch().count();
}

bool IsNameCharacter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '/' ||
           c == '_' || c == '-' || c == '+';
}

/// The library takes paths and prefixes of its own too. A name without points and colons that
/// begins with no slash is none of these.
bool IsZoneName(const std::string& zone) {
    return !zone.empty() && zone.front() != '/' && std::ranges::all_of(zone, IsNameCharacter);
}

cctz::time_zone Load(const std::string& zone) {
    cctz::time_zone loaded;
    if (!IsZoneName(zone) || !cctz::load_time_zone(zone, &loaded)) {
        throw UnknownZoneFault(zone);
    }
    return loaded;
}

ZoneOffset OffsetOf(const cctz::time_zone& zone, TimePoint time) {
    const auto found = zone.lookup(time);
    return {found.offset, found.is_dst};
}

}  // namespace

ZoneOffset ZoneDatabase::OffsetAt(const std::string& zone, UtcSeconds moment) const {
    return OffsetOf(Load(zone), TimePointOf(moment));
}

std::vector<ZoneChange> ZoneDatabase::ChangesBetween(const std::string& zone, UtcSeconds from,
                                                     UtcSeconds end) const {
    const cctz::time_zone loaded = Load(zone);
    const cctz::seconds second(1);
    std::vector<ZoneChange> changes;
    TimePoint time = TimePointOf(from) - second;
    cctz::time_zone::civil_transition turn;
    while (loaded.next_transition(time, &turn)) {
        time = loaded.lookup(turn.to).trans;
        if (UtcSecondsOf(time) >= end) {
            break;
        }
        const ZoneOffset before = OffsetOf(loaded, time - second);
        const ZoneOffset after = OffsetOf(loaded, time);
        if (before.seconds != after.seconds) {  // and not its name alone
            changes.push_back({UtcSecondsOf(time), before, after});
        }
    }
    return changes;
}

}  // namespace horavex
