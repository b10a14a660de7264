#pragma once

#include <string>
#include <vector>

#include "platform/broadcast.h"

namespace horavex {

/// Writes down what other programs would be told.
class RecordingBroadcast : public Broadcast {
public:
    void Publish(const ToldState& told) override { state = told; }
    void TellPrayerArrived(const std::string& prayer, const std::string& local) override {
        signals.push_back("PrayerArrived " + prayer + " " + local);
    }
    void TellReminderDue(const std::string& kind, const std::string& prayer, int minutes) override {
        signals.push_back("ReminderDue " + kind + " " + prayer + " " + std::to_string(minutes));
    }
    void TellAthanStopped() override { signals.push_back("AthanStopped"); }
    void TellDayChanged(const std::string& date) override {
        signals.push_back("DayChanged " + date);
    }
    bool ShowRunning() override {
        signals.emplace_back("ShowRunning");
        return runningAnswers;
    }

    bool runningAnswers = false;
    ToldState state;
    std::vector<std::string> signals;
};

}  // namespace horavex
