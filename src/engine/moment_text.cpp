#include "engine/moment_text.h"

#include <algorithm>

#include "lang/language_pack.h"
#include "platform/platform.h"

namespace horavex {

namespace {

constexpr const char* kDagger = "\u2020";

std::string Word(const char* key, const char* english) {
    return GetLangString("moments", key, english);
}

std::string Filled(std::string text, const std::string& place, const std::string& value) {
    const std::size_t at = text.find(place);
    return at == std::string::npos ? text : text.replace(at, place.size(), value);
}

bool HasDagger(const Moment& moment) {
    return moment.by == MomentBy::kRule;
}

std::string ClockText(const Moment& moment) {
    return Ports().formats.MediumTime(moment.hours / 24.0);
}

std::string RuleName(HighLatitudeRule rule) {
    switch (rule) {
        case HighLatitudeRule::kMiddle:
            return Word("RuleMiddle", "middle of the night");
        case HighLatitudeRule::kSeventh:
            return Word("RuleSeventh", "seventh of the night");
        case HighLatitudeRule::kAngle:
            return Word("RuleAngle", "angle/60 of the night");
        default:
            return Word("RuleNearest", "nearest day");
    }
}

template <class Has>
void AddNote(std::vector<std::string>& notes, std::span<const Moment> moments, Has has,
             const std::string& note) {
    if (std::ranges::any_of(moments, has)) {
        notes.push_back(note);
    }
}

}  // namespace

std::string WithMarks(const std::string& clock, const Moment& moment) {
    std::string text = clock;
    if (moment.dayShift > 0) {
        text = Filled(Word("NextDay", "{time}, next day"), "{time}", clock);
    } else if (moment.dayShift < 0) {
        text = Filled(Word("PreviousDay", "{time}, previous day"), "{time}", clock);
    }
    return text + (HasDagger(moment) ? std::string(" ") + kDagger : "");
}

std::string MomentText(const Moment& moment) {
    return WithMarks(ClockText(moment), moment);
}

std::string MomentCell(const Moment& moment) {
    const char* shift = moment.dayShift > 0 ? "+1" : moment.dayShift < 0 ? "-1" : "";
    return ClockText(moment) + shift + (HasDagger(moment) ? kDagger : "");
}

std::string RuleNote(std::span<const Moment> moments, HighLatitudeRule rule) {
    const char* english =
        "Times marked \u2020 follow the high latitude rule \"{rule}\" instead of the sun's angle.";
    return std::ranges::any_of(moments, HasDagger)
               ? Filled(Word("RuleNote", english), "{rule}", RuleName(rule))
               : "";
}

std::vector<std::string> ColumnNotes(std::span<const Moment> moments, HighLatitudeRule rule) {
    std::vector<std::string> notes;
    AddNote(
        notes, moments, [](const Moment& moment) { return moment.dayShift > 0; },
        Word("NextDayNote", "+1: on the next day"));
    AddNote(
        notes, moments, [](const Moment& moment) { return moment.dayShift < 0; },
        Word("PreviousDayNote", "-1: on the previous day"));
    AddNote(notes, moments, HasDagger, RuleNote(moments, rule));
    return notes;
}

}  // namespace horavex
