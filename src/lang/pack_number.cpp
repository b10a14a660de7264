#include "lang/pack_number.h"

#include "base/number_text.h"
#include "lang/language_pack.h"

namespace horavex {

char PackDecimalMark() {
    return GetLangString("timetables", "DecimalMark", ".") == "," ? ',' : '.';
}

std::string PackNumber(double value) {
    return NumberToText(value, PackDecimalMark());
}

}  // namespace horavex
