#pragma once

#include <functional>
#include <memory>

#include "platform/broadcast.h"

namespace horavex {

/// The program on the session bus, as org.horavex.PrayerTimes, from the first state on that is
/// published. Without a bus, or where another process has the name, nobody hears or asks anything;
/// both are looked for anew once a minute, and so is a bus that has ended.
class SessionBroadcast : public Broadcast {
public:
    /// Runs a function from the program's event loop, later.
    using Post = std::function<void(std::function<void()>)>;

    explicit SessionBroadcast(Post post);
    ~SessionBroadcast() override;

    void Publish(const ToldState& state) override;
    void TellPrayerArrived(const std::string& prayer, const std::string& local) override;
    void TellReminderDue(const std::string& kind, const std::string& prayer, int minutes) override;
    void TellAthanStopped() override;
    void TellDayChanged(const std::string& date) override;
    bool ShowRunning() override;

    /// What can be read from when somebody asks; -1 without a bus, or once that has ended.
    int Descriptor() const;

    /// The descriptor is another one from now on. Called by Publish, and by what finds that the bus
    /// has ended; the former one is open as long as the call lasts.
    std::function<void()> onDescriptor;

    /// Answers what others have asked. Their requests themselves are posted.
    void Serve();

private:
    class Connection;

    bool IsThere() const { return connection_ != nullptr && !isLost_; }
    void LookForBus(const ToldState& state);
    void Speak(const std::function<void(Connection&)>& say);
    void TellDescriptor() const;

    Post post_;
    std::unique_ptr<Connection> connection_;
    bool isLost_ = false;    // the connection, which may just be at work
    int statesUnheard_ = 0;  // since the bus was looked for
};

}  // namespace horavex
