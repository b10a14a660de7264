#pragma once

#include <functional>
#include <string>
#include <vector>

namespace horavex {

/// A moment of prayer as other programs read it.
struct ToldMoment {
    std::string prayer;  // "Fajr"
    std::string local;   // "2026-11-21T05:12:00+02:00", of the clock that the times go by
    std::string by;      // what made it: "sun", "rule" or "interval"

    bool operator==(const ToldMoment&) const = default;
};

/// What other programs can know of the running one.
struct ToldState {
    std::string place;                // display text
    std::string zone;                 // name of the zone, or "UTC+02:00" where it has none
    std::vector<ToldMoment> moments;  // the six of today
    std::string nextPrayer;
    std::string nextTime;   // as local of a moment
    std::string hijriDate;  // "1448-06-11"
    bool athanPlaying = false;
    std::string quietUntil;  // "2026-11-21T20:00:00+02:00", of the computer's clock; empty for none

    bool operator==(const ToldState&) const = default;
};

/// Tells other programs of the session what this one shows, and takes what they ask of it. Never
/// fails and, but for the one question, never waits; where nobody can listen nothing happens.
class Broadcast {
public:
    virtual ~Broadcast() = default;

    /// Whoever listens is told what is another than before.
    virtual void Publish(const ToldState& state) = 0;

    /// local: as of a moment.
    virtual void TellPrayerArrived(const std::string& prayer, const std::string& local) = 0;

    /// kind: "reminder" before a prayer, "iqama" after it.
    virtual void TellReminderDue(const std::string& kind, const std::string& prayer,
                                 int minutes) = 0;

    virtual void TellAthanStopped() = 0;

    /// date: "2026-11-22".
    virtual void TellDayChanged(const std::string& date) = 0;

    /// Asks the program that runs already to come to the front. False where none answers within
    /// seconds, or none can be seen.
    virtual bool ShowRunning() = 0;

    // Set once by the program; called from the event loop. A front end without a face leaves out
    // the first two, which are then refused.
    std::function<void()> onShow;
    std::function<void()> onHide;
    std::function<void()> onAthanNow;
    std::function<void()> onStopAthan;
    std::function<void(int minutes)> onQuiet;  // 0 ends a quiet time
};

}  // namespace horavex
