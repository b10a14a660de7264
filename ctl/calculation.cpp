#include "ctl/calculation.h"

#include "base/int16.h"
#include "engine/current_year.h"
#include "engine/year_table.h"

namespace horavex {

void Calculate(Session& session, int year) {
    CalcFailed = 0;
    CurrentYear = ToInt16(year);
    RecalculateYear();
    if (CalcFailed != 0) {
        session.status = kGaveUp;
    }
}

Json FailureJson() {
    if (!LastYearFailure) {
        return nullptr;
    }
    return {{"message", std::string(1, LastYearFailure->message)}, {"row", LastYearFailure->row}};
}

}  // namespace horavex
