#include "terminal/face/terminal_face.h"

#include "engine/day_view.h"
#include "lang/language_pack.h"
#include "timetables/timetable_words.h"

namespace horavex {

void TerminalFace::SetVariable(const std::string& name, const std::string& value) {
    if (loaded_) {
        values_[name] = value;
        onChange();
    }
}

void TerminalFace::ShowDay(const DayView& day) {
    if (loaded_) {
        day_ = FaceWordsOf(day);
        NameDates(day);
        qiblaDegrees_ = day.qiblaDegrees;
        onChange();
    }
}

/// Anew for another day or language only: the face is told at each tick.
void TerminalFace::NameDates(const DayView& day) {
    const NamedDates wanted{currentLanguage, day.date, day.hijri};
    if (named_ != wanted) {
        const TimetableWords words = TakeTimetableWords();
        dayTitle_ = words.DayTitle(day.date);
        hijriText_ = words.HijriText(day.hijri);
        named_ = wanted;
    }
}

std::string TerminalFace::Value(const std::string& name, const std::string& otherwise) const {
    const auto found = values_.find(name);
    return found == values_.end() ? otherwise : found->second;
}

void TerminalFace::Tell(const char* command) const {
    if (onFSCommand) {
        onFSCommand(command, {});
    }
}

}  // namespace horavex
