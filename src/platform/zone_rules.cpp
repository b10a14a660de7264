#include "platform/zone_rules.h"

#include <cmath>

namespace horavex {

namespace {

constexpr UtcSeconds kDay = 86400;
const Date kFirstDay = DateSerial(1970, 1, 1);

/// The moment at which the clock of Greenwich shows a date and time.
UtcSeconds UniversalMoment(Date date) {
    return std::llround((date - kFirstDay) * kSecondsPerDay);
}

Date UniversalDate(UtcSeconds moment) {
    const auto days = std::floor(static_cast<double>(moment) / kSecondsPerDay);
    const double rest = static_cast<double>(moment) - days * kSecondsPerDay;
    return kFirstDay + days + rest / kSecondsPerDay;
}

}  // namespace

UtcSeconds MomentOf(const ZoneRules& rules, const std::string& zone, Date local) {
    const UtcSeconds shown = UniversalMoment(local);
    // No zone is a day or more from Greenwich, so that these lie on either side of a change.
    const UtcSeconds before = shown - rules.OffsetAt(zone, shown - kDay).seconds;
    const UtcSeconds after = shown - rules.OffsetAt(zone, shown + kDay).seconds;
    const bool isAfter = shown - rules.OffsetAt(zone, before).seconds != before &&
                         shown - rules.OffsetAt(zone, after).seconds == after;
    return isAfter ? after : before;
}

Date LocalDateOf(const ZoneRules& rules, const std::string& zone, UtcSeconds moment) {
    return UniversalDate(moment + rules.OffsetAt(zone, moment).seconds);
}

std::vector<ZoneChange> ChangesOfYear(const ZoneRules& rules, const std::string& zone, int year) {
    return rules.ChangesBetween(zone, MomentOf(rules, zone, DateSerial(year, 1, 1)),
                                MomentOf(rules, zone, DateSerial(year + 1, 1, 1)));
}

}  // namespace horavex
