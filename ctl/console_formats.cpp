#include "ctl/console_formats.h"

namespace horavex {

std::string ConsoleFormats::MediumTime(Date time) const {
    return words_ && words_->hasClockOf24Hours ? IsoTime(MinuteOf(0.0, time * 24.0).minute)
                                               : FixedFormats::MediumTime(time);
}

std::string ConsoleFormats::MonthAndYear(Date date) const {
    const CivilDate civil = CivilFromDate(date);
    return words_ ? words_->MonthInLine(civil.year, civil.month) : FixedFormats::MonthAndYear(date);
}

char ConsoleFormats::DecimalMark() const {
    return words_ ? words_->decimalMark : FixedFormats::DecimalMark();
}

}  // namespace horavex
