#include "base/fault.h"
#include "calendar/umm_al_qura.h"
#include "fuzz/input.h"
#include "fuzz/target.h"
#include "fuzz/targets/targets.h"

namespace horavex {

namespace {

/// A day that the table has comes back from its Hijri date.
void RequireItsWayBack(const UmmAlQura& table, Date day) {
    const auto hijri = table.HijriOf(day);
    if (!hijri) {
        return;
    }
    Require(hijri->month >= 1 && hijri->month <= 12, "months within their range");
    const auto back = table.DateOf(*hijri);
    Require(back == day, "a day comes back");
}

}  // namespace

void FuzzHijriTable(ByteView bytes) {
    FuzzInput input(bytes);
    const int offset = input.TakeInt16();
    const Bytes content = BytesOf(input.TakeRest());
    RunStep([&] {
        const UmmAlQura table(content);
        RequireItsWayBack(table, 46188 + offset);
        RequireItsWayBack(table, 46188);
        HijriOf(table, 46188 + offset);
    });
}

}  // namespace horavex
