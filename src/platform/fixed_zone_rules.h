#pragma once

#include <map>

#include "platform/zone_rules.h"

namespace horavex {

/// Zones in memory. Without any it is the port of a front end that has no zone database.
class FixedZoneRules : public ZoneRules {
public:
    /// A zone with one offset at all times, in the place of one of that name.
    void Add(const std::string& zone, ZoneOffset offset) { zones_[zone] = {offset, {}}; }

    /// Turns the clock of a zone that was added, from a moment on. Behind the changes before.
    void Turn(const std::string& zone, UtcSeconds moment, ZoneOffset offset) {
        zones_.at(zone).changes.push_back({moment, OffsetAt(zone, moment), offset});
    }

    ZoneOffset OffsetAt(const std::string& zone, UtcSeconds moment) const override {
        const Zone& found = Find(zone);
        ZoneOffset offset = found.first;
        for (const ZoneChange& change : found.changes) {
            offset = change.moment <= moment ? change.after : offset;
        }
        return offset;
    }

    std::vector<ZoneChange> ChangesBetween(const std::string& zone, UtcSeconds from,
                                           UtcSeconds end) const override {
        std::vector<ZoneChange> changes = Find(zone).changes;
        std::erase_if(changes, [&](const ZoneChange& change) {
            return change.moment < from || change.moment >= end;
        });
        return changes;
    }

private:
    struct Zone {
        ZoneOffset first;
        std::vector<ZoneChange> changes;
    };

    const Zone& Find(const std::string& zone) const {
        const auto found = zones_.find(zone);
        if (found == zones_.end()) {
            throw UnknownZoneFault(zone);
        }
        return found->second;
    }

    std::map<std::string, Zone> zones_;
};

}  // namespace horavex
