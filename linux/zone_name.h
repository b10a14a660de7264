#pragma once

#include <optional>
#include <string>
#include <vector>

namespace horavex {

/// Where a computer says what its zone is.
struct ZoneSources {
    std::optional<std::string> variable;  // TZ, if it is set
    std::string link;                     // /etc/localtime
    std::string file;                     // /etc/timezone
    std::string database;                 // the folder of the zone database
};

/// Those of this computer.
ZoneSources ThisComputersSources();

/// The zone's name: that of TZ, which may be a path, where it is set at all; else where the link
/// leads to, else what the file holds. Behind it the name that the database gives instead, where it
/// knows the former as a link. Empty for a zone without a name.
std::vector<std::string> ZoneNamesIn(const ZoneSources& sources);

}  // namespace horavex
