#pragma once

#include <utility>

#include "linux/bus/session_broadcast.h"
#include "terminal/service/service_log.h"

namespace horavex {

/// Writes into the log, too, what other programs are told, and why an athan is not heard.
class ServiceBroadcast : public SessionBroadcast {
public:
    ServiceBroadcast(const ServiceLog& log, Post post)
        : SessionBroadcast(std::move(post)), log_(log) {}

    void Publish(const ToldState& state) override;
    void TellPrayerArrived(const std::string& prayer, const std::string& local) override;
    void TellReminderDue(const std::string& kind, const std::string& prayer, int minutes) override;
    void TellAthanStopped() override;

private:
    void TellTrouble();

    const ServiceLog& log_;
    bool athanPlaying_ = false;
    std::string quietUntil_;
    std::string trouble_;  // of the athan that is up, as told
};

}  // namespace horavex
