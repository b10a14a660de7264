#include "ctl/status_line.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "base/prayers.h"
#include "base/stamp.h"
#include "ctl/command.h"

namespace horavex {

namespace {

constexpr std::size_t kClockAt = 11;  // of an instant, "2026-11-21T05:12:00+02:00"
constexpr std::size_t kOffsetAt = 19;
constexpr std::size_t kLength = 25;

/// "05:12"; empty where there is no instant.
std::string ClockOf(const std::string& instant) {
    return instant.size() == kLength ? instant.substr(kClockAt, 5) : "";
}

/// Days that "+02:00" is ahead of Greenwich.
double OffsetDays(const std::string& offset) {
    const double minutes = std::stoi(offset.substr(1, 2)) * 60.0 + std::stoi(offset.substr(4, 2));
    return (offset[0] == '-' ? -minutes : minutes) / 1440.0;
}

std::optional<Date> UniversalOf(const std::string& instant) {
    if (instant.size() != kLength) {
        return std::nullopt;
    }
    std::string local = instant.substr(0, kOffsetAt);
    local[kClockAt - 1] = ' ';
    const std::optional<Date> date = DateOfStamp(local);
    return date ? std::optional(*date - OffsetDays(instant.substr(kOffsetAt))) : std::nullopt;
}

/// "1:02", minutes that have begun counted whole, so that it is 0:00 when the prayer arrives.
std::string RemainingOf(long seconds) {
    const long minutes = (seconds + 59) / 60;
    const std::string rest = std::to_string(minutes % 60);
    return std::to_string(minutes / 60) + (rest.size() == 1 ? ":0" : ":") + rest;
}

bool IsName(const std::string& text) {
    return !text.empty() && std::ranges::all_of(text, [](char letter) {
        return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z');
    });
}

/// The name between braces that begins there; empty for anything else.
std::string NameAt(const std::string& line, std::size_t at) {
    const std::size_t end = line[at] == '{' ? line.find('}', at) : std::string::npos;
    const std::string name = end == std::string::npos ? "" : line.substr(at + 1, end - at - 1);
    return IsName(name) ? name : "";
}

const std::string& ValueOf(const StatusFields& fields, const std::string& name) {
    const auto field = fields.find(name);
    if (field == fields.end()) {
        RefuseUsage("--format: there is no {" + name + "}");
    }
    return field->second;
}

}  // namespace

long SecondsLeft(const ToldState& state, Date universalNow) {
    const std::optional<Date> next = UniversalOf(state.nextTime);
    const double seconds = next ? (*next - universalNow) * kSecondsPerDay : 0.0;
    return std::max(0L, std::lround(seconds));
}

StatusFields FieldsOf(const ToldState& state, Date universalNow) {
    const long left = SecondsLeft(state, universalNow);
    StatusFields fields = {{"place", state.place},
                           {"zone", state.zone},
                           {"hijri", state.hijriDate},
                           {"next", state.nextPrayer},
                           {"time", ClockOf(state.nextTime)},
                           {"remaining", RemainingOf(left)},
                           {"seconds", std::to_string(left)},
                           {"athan", state.athanPlaying ? "athan" : ""},
                           {"quiet", ClockOf(state.quietUntil)}};
    for (const char* prayer : kPrayerKeys) {
        fields[prayer] = "";
    }
    for (const ToldMoment& moment : state.moments) {
        fields[moment.prayer] = ClockOf(moment.local);
    }
    return fields;
}

std::string FilledLine(const std::string& line, const StatusFields& fields) {
    std::string filled;
    for (std::size_t at = 0; at < line.size(); ++at) {
        const std::string name = NameAt(line, at);
        filled += name.empty() ? line.substr(at, 1) : ValueOf(fields, name);
        at += name.empty() ? 0 : name.size() + 1;
    }
    return filled;
}

void CheckLine(const std::string& line) {
    FilledLine(line, FieldsOf({}, 0.0));
}

std::optional<long> SecondsToChange(const std::string& line, long secondsLeft) {
    if (secondsLeft == 0) {
        return std::nullopt;
    }
    if (line.find("{seconds}") != std::string::npos) {
        return 1;
    }
    const bool tellsMinutes = line.find("{remaining}") != std::string::npos;
    return tellsMinutes ? std::optional((secondsLeft - 1) % 60 + 1) : std::nullopt;
}

}  // namespace horavex
