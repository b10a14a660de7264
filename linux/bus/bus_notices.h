#pragma once

#include <memory>

#include "linux/notice_desk.h"

namespace horavex {

/// The notification service over a connection of its own to the session bus. Without a bus, or once
/// that has ended, there is no service until another bus is found.
class BusNotices : public NoticeDesk {
public:
    /// Runs a function from the program's event loop, later.
    using Post = std::function<void(std::function<void()>)>;

    explicit BusNotices(Post post, std::function<Time()> now = std::chrono::steady_clock::now);
    ~BusNotices() override;

    /// What can be read from when the bus tells something; -1 without one.
    int Descriptor() const;

    /// Takes what the bus has told. What the user did, and what became of a notice, is posted.
    void Serve();

    /// Looks for a bus again, from the event loop itself, where there is none; what is wanted goes
    /// to the service on it.
    void LookForBus();

private:
    class Connection;

    void AskAbilities(std::function<void(const std::optional<Words>&)> take) override;
    void Notify(const NoticeCall& call, std::function<void(std::optional<Number>)> take) override;
    void CloseNotice(Number number) override;
    void OnTheBus(const std::function<void(Connection&)>& step);

    Post post_;
    std::unique_ptr<Connection> connection_;
    bool isLost_ = false;  // its descriptor stays, for who waits for it
};

}  // namespace horavex
