#pragma once

#include <string>

#include "base/date.h"
#include "platform/zone_rules.h"
#include "store/settings_record.h"

namespace horavex {

/// The clock of a place, for what counts in Universal Time: that of a zone of the zone database,
/// or, where none is named, a record's hours with the hour of its days of daylight saving, which
/// are those of every year.
class ZoneClock {
public:
    ZoneClock(std::string zone, const SettingsRecord& record);

    ZoneOffset OffsetAt(Date universal) const;

    /// At a time that the clock shows. day: the one whose moment it is, by which the daylight hour
    /// of the record goes.
    ZoneOffset OffsetOfLocal(Date local, Date day) const;

    Date UniversalOf(Date local) const;
    Date LocalOf(Date universal) const;

    /// What the clock shows, to the nearest minute.
    Date MinuteOf(Date universal) const;

private:
    ZoneOffset RecordOffset(Date day) const;

    std::string zone_;
    SettingsRecord record_;
};

}  // namespace horavex
