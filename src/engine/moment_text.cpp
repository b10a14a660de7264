#include "engine/moment_text.h"

#include <algorithm>

#include "lang/filled_text.h"
#include "lang/language_pack.h"
#include "platform/platform.h"

namespace horavex {

namespace {

std::string Word(const char* key, const char* english) {
    return GetLangString("moments", key, english);
}

bool HasDagger(const Moment& moment) {
    return moment.by == MomentBy::kRule;
}

std::string ClockText(const Moment& moment) {
    return Ports().formats.MediumTime(moment.hours / 24.0);
}

bool IsOnNextDay(const Moment& moment) {
    return moment.dayShift > 0;
}

bool IsOnPreviousDay(const Moment& moment) {
    return moment.dayShift < 0;
}

}  // namespace

bool HasMarks(const Moment& moment) {
    return moment.dayShift != 0 || HasDagger(moment);
}

std::string WithMarks(const std::string& clock, const Moment& moment) {
    std::string text = clock;
    if (IsOnNextDay(moment)) {
        text = FilledText(Word("NextDay", "{time}, next day"), "{time}", clock);
    } else if (IsOnPreviousDay(moment)) {
        text = FilledText(Word("PreviousDay", "{time}, previous day"), "{time}", clock);
    }
    return text + (HasDagger(moment) ? std::string(" ") + kRuleMark : "");
}

std::string MomentText(const Moment& moment) {
    return WithMarks(ClockText(moment), moment);
}

std::string CellWithMarks(const std::string& clock, const Moment& moment) {
    std::string text = clock;
    text += IsOnNextDay(moment) ? "+1" : IsOnPreviousDay(moment) ? "-1" : "";
    text += HasDagger(moment) ? kRuleMark : "";
    return text;
}

std::string MomentCell(const Moment& moment) {
    return HasMarks(moment) ? CellWithMarks(ClockText(moment), moment) : ClockText(moment);
}

std::string RuleName(HighLatitudeRule rule) {
    switch (rule) {
        case HighLatitudeRule::kNone:
            return Word("RuleNone", "none");
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

std::string AroundName(std::size_t time) {
    constexpr const char* kEnglish[] = {"Imsak", "Duha", "Middle of night", "Last third"};
    return Word(kAroundKeys.at(time), kEnglish[time]);
}

std::string RuleNote(std::span<const Moment> moments, HighLatitudeRule rule) {
    if (std::ranges::none_of(moments, HasDagger)) {
        return "";
    }
    const char* english =
        "Times marked \u2020 follow the high latitude rule \"{rule}\" instead of the sun.";
    return FilledText(Word("RuleNote", english), "{rule}", RuleName(rule));
}

std::vector<std::string> ColumnNotes(std::span<const Moment> moments, HighLatitudeRule rule) {
    std::vector<std::string> notes;
    if (std::ranges::any_of(moments, IsOnNextDay)) {
        notes.push_back(Word("NextDayNote", "+1: on the next day"));
    }
    if (std::ranges::any_of(moments, IsOnPreviousDay)) {
        notes.push_back(Word("PreviousDayNote", "-1: on the previous day"));
    }
    if (std::ranges::any_of(moments, HasDagger)) {
        notes.push_back(RuleNote(moments, rule));
    }
    return notes;
}

}  // namespace horavex
