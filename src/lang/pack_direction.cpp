#include "lang/pack_direction.h"

#include "lang/language_pack.h"

namespace horavex {

bool PackRunsFromRight() {
    return GetLangString("timetables", "Direction", "ltr") == "rtl";
}

}  // namespace horavex
