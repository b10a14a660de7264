#pragma once

#include <optional>

#include "platform/fixed_formats.h"
#include "timetables/timetable_words.h"

namespace horavex {

/// Fixed forms, so that scripts can rely on them, unless a language is asked for.
class ConsoleFormats : public FixedFormats {
public:
    /// Writes times, months and numbers as the language of the current pack does, from now on.
    void FollowPack() { words_ = TakeTimetableWords(); }

    std::string MediumTime(Date time) const override;
    std::string MonthAndYear(Date date) const override;
    char DecimalMark() const override;

private:
    std::optional<TimetableWords> words_;
};

}  // namespace horavex
