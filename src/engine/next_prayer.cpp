#include "engine/next_prayer.h"

#include "engine/moment_text.h"
#include "lang/language_pack.h"
#include "platform/platform.h"

namespace horavex {

namespace {

/// Key of the section "other" that names a prayer. Shurooq never comes next, yet would be told
/// as Zuhr.
const char* NameKey(std::size_t prayer) {
    return kPrayerKeys[prayer == kShurooq ? kZuhr : prayer];
}

// Today's Fajr is told by a fixed English text; only tomorrow's has a name in the pack.
std::string SentenceStart(const NextMoment& next) {
    if (next.prayer == kFajr && !next.isTomorrows) {
        return "Fajr at ";
    }
    return ReadPackString("other", NameKey(static_cast<std::size_t>(next.prayer)), "",
                          kPackNameBuffer) +
           " ";
}

}  // namespace

std::string NextPrayerSentence(const NextMoment& next) {
    return SentenceStart(next) +
           WithMarks(Ports().formats.LongTime(next.moment.hours / 24.0), next.moment);
}

std::string RemainingText(double seconds) {
    const ClockTime clock = ClockTimeOf(seconds / 24 / 60 / 60);
    return std::to_string(clock.hour) + ":" + std::to_string(clock.minute) + ":" +
           std::to_string(clock.second);
}

}  // namespace horavex
