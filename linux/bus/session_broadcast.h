#pragma once

#include <functional>
#include <memory>

#include "platform/broadcast.h"

namespace horavex {

/// The program on the session bus, as org.horavex.PrayerTimes. Without a bus, or where another
/// process has the name, nobody hears or asks anything; a bus that ends is not looked for again.
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

    /// What can be read from when somebody asks; -1 without a bus, or once that has ended.
    int Descriptor() const;

    /// Answers what others have asked. Their requests themselves are posted.
    void Serve();

private:
    class Connection;

    void Speak(const std::function<void(Connection&)>& say);

    Post post_;
    std::unique_ptr<Connection> connection_;
    bool isLost_ = false;  // its descriptor stays, for who waits for it
};

}  // namespace horavex
