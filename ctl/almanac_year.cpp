#include "ctl/almanac_year.h"

#include "ctl/command.h"
#include "platform/almanac.h"

namespace horavex {

void RequireAlmanacYear(const std::string& option, int year) {
    if (year < kFirstAlmanacYear || year > kLastAlmanacYear) {
        RefuseUsage(option + ": the almanac has the years " + std::to_string(kFirstAlmanacYear) +
                    " to " + std::to_string(kLastAlmanacYear));
    }
}

}  // namespace horavex
