#pragma once

#include "platform/zone_rules.h"

namespace horavex {

/// The zone database of the system. A zone is read once.
class ZoneDatabase : public ZoneRules {
public:
    ZoneOffset OffsetAt(const std::string& zone, UtcSeconds moment) const override;
    std::vector<ZoneChange> ChangesBetween(const std::string& zone, UtcSeconds from,
                                           UtcSeconds end) const override;
};

}  // namespace horavex
