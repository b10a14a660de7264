#include "engine/next_prayer.h"

#include "lang/language_pack.h"
#include "platform/platform.h"

namespace horavex {

namespace {

constexpr std::int16_t kNoneLeft = 6;

double FractionOf(double hours) {
    return hours / 24.0;
}

/// Key of the section "other" that names a prayer. Shurooq never comes next, yet would be told
/// as Zuhr.
const char* NameKey(std::int16_t prayer) {
    constexpr const char* kKeys[] = {"Fajr", "Zuhr", "Zuhr", "Asr", "Maghrib", "Isha"};
    return kKeys[prayer];
}

std::string NameOf(std::int16_t prayer) {
    return ReadPackString("other", NameKey(prayer), "", kPackNameBuffer);
}

// Today's Fajr is told by a fixed English text; only tomorrow's has a name in the pack.
std::string SentenceStart(std::int16_t found) {
    if (found == kFajr) {
        return "Fajr at ";
    }
    return NameOf(found == kNoneLeft ? std::int16_t{kFajr} : found) + " ";
}

double SecondsTo(Date time, bool countsFromTomorrow, Date now) {
    const double ahead = SecondOfDay(time) - SecondOfDay(now);
    return countsFromTomorrow ? ahead + kSecondsPerDay : ahead;
}

}  // namespace

std::int16_t FindNextPrayer(const PrayerRow& today, Date now) {
    for (std::int16_t prayer = 0; prayer < kNoneLeft; ++prayer) {
        const Date time = FractionOf(today[static_cast<std::size_t>(prayer)]);
        if (prayer != kShurooq && SecondOfDay(time) > SecondOfDay(now)) {
            return prayer;
        }
    }
    return kNoneLeft;
}

NextPrayerDescription DescribeNextPrayer(std::int16_t found, std::size_t row, Date now) {
    const std::int16_t prayer = found == kNoneLeft ? std::int16_t{kFajr} : found;
    const bool tomorrow = found == kNoneLeft && row < kYearRows - 1;
    const std::size_t column = prayer == kShurooq ? std::size_t{kZuhr} : std::size_t(prayer);
    const Date time = FractionOf(Times[column][tomorrow ? row + 1 : row]);
    return {prayer, time, SentenceStart(found) + Ports().formats.LongTime(time),
            SecondsTo(time, prayer == kFajr, now)};
}

std::string RemainingText(double seconds) {
    const ClockTime clock = ClockTimeOf(seconds / 24 / 60 / 60);
    return std::to_string(clock.hour) + ":" + std::to_string(clock.minute) + ":" +
           std::to_string(clock.second);
}

}  // namespace horavex
