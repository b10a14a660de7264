#include "desktop/face/prayer_line.h"

#include <algorithm>
#include <functional>

#include "platform/platform.h"

namespace horavex {

namespace {

constexpr double kBeforeNoon = 0.25;  // of a day
constexpr double kAfterNoon = 0.75;

/// One run of digits, whatever script they are of.
struct Number {
    qsizetype begin;
    qsizetype end;
    int value;
};

// The first number at or behind a place; an empty one at the end where there is none.
Number NumberFrom(const QString& text, qsizetype at) {
    while (at < text.size() && !text[at].isDigit()) {
        ++at;
    }
    Number number{at, at, 0};
    while (number.end < text.size() && text[number.end].isDigit()) {
        number.value = number.value * 10 + text[number.end].digitValue();
        ++number.end;
    }
    return number;
}

/// Hours and minutes somewhere in a text.
struct TimeInText {
    Number hours;
    Number minutes;

    bool IsThere() const { return minutes.end > minutes.begin; }
};

TimeInText TimeFrom(const QString& text, qsizetype at) {
    const Number hours = NumberFrom(text, at);
    return {hours, NumberFrom(text, hours.end)};
}

qsizetype LengthOfTail(const QString& text, qsizetype at, const QStringList& tails) {
    qsizetype longest = 0;
    for (const QString& tail : tails) {
        if (QStringView(text).mid(at).startsWith(tail)) {
            longest = std::max(longest, tail.size());
        }
    }
    return longest;
}

// The sentence has the time with its seconds: the same numbers, the half of the day in its place.
bool SpeaksOfTime(const QString& sentence, const QString& time) {
    const TimeInText said = TimeFrom(sentence, 0);
    const TimeInText asked = TimeFrom(time, 0);
    return said.IsThere() && said.hours.value == asked.hours.value &&
           said.minutes.value == asked.minutes.value &&
           sentence.contains(time.left(asked.hours.begin).trimmed()) &&
           sentence.endsWith(time.mid(asked.minutes.end));
}

using RowTest = std::function<bool(const PrayerEntry&)>;

std::optional<std::size_t> OnlyRow(const std::vector<PrayerEntry>& rows, const RowTest& test) {
    if (std::count_if(rows.begin(), rows.end(), test) != 1) {
        return std::nullopt;
    }
    return std::size_t(std::find_if(rows.begin(), rows.end(), test) - rows.begin());
}

QString TailOf(Date time) {
    const QString text = QString::fromStdString(Ports().formats.MediumTime(time));
    return text.mid(TimeFrom(text, 0).minutes.end);
}

}  // namespace

std::optional<std::vector<PrayerEntry>> ReadPrayerLine(const QString& text,
                                                       const QStringList& timeTails) {
    std::vector<PrayerEntry> entries;
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype colon = text.indexOf(QChar(u':'), at);
        const TimeInText time = TimeFrom(text, colon + 1);
        if (colon < 0 || text[at] != QChar(u' ') || !time.IsThere()) {
            return std::nullopt;
        }
        const qsizetype minutesEnd = time.minutes.end;
        const qsizetype end = minutesEnd + LengthOfTail(text, minutesEnd, timeTails);
        entries.push_back({text.mid(at + 1, colon - at - 1), text.mid(colon + 1, end - colon - 1)});
        at = end;
    }
    return entries;
}

QStringList TailsOfTimes() {
    return {TailOf(kBeforeNoon), TailOf(kAfterNoon)};
}

std::optional<std::size_t> RowNamedIn(const QString& sentence,
                                      const std::vector<PrayerEntry>& rows) {
    const auto named = OnlyRow(rows, [&](const PrayerEntry& row) {
        return !row.name.isEmpty() && sentence.contains(row.name);
    });
    return named ? named : OnlyRow(rows, [&](const PrayerEntry& row) {
        return SpeaksOfTime(sentence, row.time);
    });
}

}  // namespace horavex
