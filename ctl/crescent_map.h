#pragma once

#include <optional>
#include <string>

#include "ctl/command.h"
#include "sky/month_evenings.h"

namespace horavex {

/// The map of an evening as a file, where one is asked for.
struct CrescentMapOptions {
    std::string file;
    std::optional<int> evening;  // 1 for the first of the month's
    std::string criterion = "yallop";
};

void AddMapOptions(CLI::App& command, CrescentMapOptions& options);

/// A map that was written.
struct WrittenMap {
    std::string file;
    Date evening;  // on the calendar of the place
    Date day;      // the map's own
    std::string criterion;
};

/// Works out and writes the map that the options ask for, if they do. Without an evening it is the
/// first on which the crescent can be seen from the place. Throws FileFault.
std::optional<WrittenMap> WriteMap(const Almanac& almanac, const Lookout& lookout,
                                   const MonthEvenings& month, const CrescentMapOptions& options);

Json MapJson(const WrittenMap& map);
std::string WrittenMapText(const WrittenMap& map);

}  // namespace horavex
