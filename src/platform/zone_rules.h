#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/date.h"
#include "base/fault.h"

namespace horavex {

/// A moment: seconds since 1970-01-01 00:00 in Greenwich, negative before, without leap seconds.
using UtcSeconds = std::int64_t;

/// How far a zone's clock is ahead of Greenwich.
struct ZoneOffset {
    std::int32_t seconds = 0;  // east positive
    bool daylight = false;     // as the zone's data call it; some call their winter the exception

    bool operator==(const ZoneOffset&) const = default;
};

/// A turn of a zone's clock.
struct ZoneChange {
    UtcSeconds moment = 0;  // the first second under the new offset
    ZoneOffset before;
    ZoneOffset after;

    bool operator==(const ZoneChange&) const = default;
};

/// The zone database has no zone of that name.
class UnknownZoneFault : public Fault {
public:
    explicit UnknownZoneFault(const std::string& zone)
        : Fault("The zone database has no zone \"" + zone + "\".") {}
};

/// The clocks of all zones, past and to come, by the names of the IANA zone database
/// ("Africa/Cairo"), whose letter case counts. Each throws UnknownZoneFault for any other name.
class ZoneRules {
public:
    virtual ~ZoneRules() = default;

    virtual ZoneOffset OffsetAt(const std::string& zone, UtcSeconds moment) const = 0;

    /// The turns of the zone's clock from one moment up to, not including, another, in their order.
    virtual std::vector<ZoneChange> ChangesBetween(const std::string& zone, UtcSeconds from,
                                                   UtcSeconds end) const = 0;
};

/// The moment at which a zone's clock shows a date and time, to the second: the earlier one of a
/// time that comes twice; a time that is left out counts on the clock before the change.
UtcSeconds MomentOf(const ZoneRules& rules, const std::string& zone, Date local);

/// What a zone's clock shows at a moment.
Date LocalDateOf(const ZoneRules& rules, const std::string& zone, UtcSeconds moment);

/// The turns of a zone's clock in a year, 1 January to 31 December of that clock.
std::vector<ZoneChange> ChangesOfYear(const ZoneRules& rules, const std::string& zone, int year);

}  // namespace horavex
