#include "linux/bus/sleep_watch.h"

#include <sdbus-c++/sdbus-c++.h>

#include <utility>

namespace horavex {

namespace {

constexpr const char* kManager = "org.freedesktop.login1";
constexpr const char* kManagerPath = "/org/freedesktop/login1";
constexpr const char* kManagerInterface = "org.freedesktop.login1.Manager";

}  // namespace

class SleepWatch::Connection {
public:
    explicit Connection(const std::function<void()>& onResume)
        : bus_(sdbus::createSystemBusConnection()),
          manager_(sdbus::createProxy(*bus_, kManager, kManagerPath)) {
        manager_->uponSignal("PrepareForSleep")
            .onInterface(kManagerInterface)
            .call([onResume](bool isAhead) {
                if (!isAhead) {  // the same signal comes before the sleep
                    onResume();
                }
            });
        manager_->finishRegistration();
    }

    int Descriptor() const { return bus_->getEventLoopPollData().fd; }

    void Serve() {
        while (bus_->processPendingRequest()) {
        }
    }

private:
    std::unique_ptr<sdbus::IConnection> bus_;
    std::unique_ptr<sdbus::IProxy> manager_;
};

SleepWatch::SleepWatch(Post post) : post_(std::move(post)) {
    try {
        connection_ = std::make_unique<Connection>([this] { post_([this] { TellResume(); }); });
    } catch (const sdbus::Error&) {
        // There is no bus.
    }
    Serve();  // what has come while the connection was made
}

SleepWatch::~SleepWatch() = default;

int SleepWatch::Descriptor() const {
    return connection_ ? connection_->Descriptor() : -1;
}

void SleepWatch::Serve() {
    try {
        if (connection_) {
            connection_->Serve();
        }
    } catch (const sdbus::Error&) {
        connection_.reset();
    }
}

void SleepWatch::TellResume() {
    if (onResume) {
        onResume();
    }
}

}  // namespace horavex
