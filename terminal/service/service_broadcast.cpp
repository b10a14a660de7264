#include "terminal/service/service_broadcast.h"

#include "platform/platform.h"

namespace horavex {

void ServiceBroadcast::Publish(const ToldState& state) {
    SessionBroadcast::Publish(state);
    if (std::exchange(athanPlaying_, state.athanPlaying) != state.athanPlaying) {
        trouble_.clear();
        if (state.athanPlaying) {
            log_.Write(Severity::kInformation, "the athan begins");
        }
    }
    if (std::exchange(quietUntil_, state.quietUntil) != state.quietUntil) {
        log_.Write(Severity::kInformation, state.quietUntil.empty()
                                               ? "no longer quiet"
                                               : "quiet until " + state.quietUntil);
    }
    if (athanPlaying_) {
        TellTrouble();
    }
}

/// The device is looked for behind the beginning.
void ServiceBroadcast::TellTrouble() {
    const std::string trouble = Ports().audioPlayer.Trouble();
    if (std::exchange(trouble_, trouble) != trouble && !trouble.empty()) {
        log_.Write(Severity::kWarning, "the athan is not heard: " + trouble);
    }
}

void ServiceBroadcast::TellPrayerArrived(const std::string& prayer, const std::string& local) {
    SessionBroadcast::TellPrayerArrived(prayer, local);
    log_.Write(Severity::kNotice, prayer + " has come, at " + local);
}

void ServiceBroadcast::TellReminderDue(const std::string& kind, const std::string& prayer,
                                       int minutes) {
    SessionBroadcast::TellReminderDue(kind, prayer, minutes);
    log_.Write(Severity::kNotice, kind == "iqama"
                                      ? "iqama of " + prayer
                                      : prayer + " comes in " + std::to_string(minutes) + " min");
}

void ServiceBroadcast::TellAthanStopped() {
    SessionBroadcast::TellAthanStopped();
    log_.Write(Severity::kInformation, "the athan is over");
}

}  // namespace horavex
