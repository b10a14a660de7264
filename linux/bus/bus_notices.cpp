#include "linux/bus/bus_notices.h"

#include <sdbus-c++/sdbus-c++.h>

#include <algorithm>
#include <utility>

namespace horavex {

namespace {

constexpr const char* kProgram = "Horavex";
constexpr const char* kEntry = "horavex";  // of the desktop; the icon's name, too
constexpr const char* kBus = "org.freedesktop.DBus";
constexpr const char* kBusObject = "/org/freedesktop/DBus";

using Hints = std::map<std::string, sdbus::Variant>;

Hints HintsOf(const NoticeCall& call) {
    return {{"urgency", sdbus::Variant(call.urgency)},
            {"category", sdbus::Variant(call.category)},
            {"desktop-entry", sdbus::Variant(std::string(kEntry))},
            {call.quiet ? "suppress-sound" : "resident", sdbus::Variant(true)}};
}

}  // namespace

class BusNotices::Connection {
public:
    explicit Connection(BusNotices& owner)
        : owner_(owner),
          bus_(sdbus::createSessionBusConnection()),
          daemon_(sdbus::createProxy(*bus_, kBus, kBusObject)),
          service_(sdbus::createProxy(*bus_, kService, kPath)) {
        HearUser();
        HearOwners();
        Look();
    }

    int Descriptor() const { return bus_->getEventLoopPollData().fd; }

    void Serve() {
        while (bus_->processPendingRequest()) {
        }
    }

    void AskAbilities(const std::function<void(const std::optional<Words>&)>& take) {
        service_->callMethodAsync("GetCapabilities")
            .onInterface(kService)
            .uponReplyInvoke([take](const sdbus::Error* error, const Words& words) {
                take(error == nullptr ? std::optional(words) : std::nullopt);
            });
    }

    void Notify(const NoticeCall& call, const std::function<void(std::optional<Number>)>& take) {
        service_->callMethodAsync("Notify")
            .onInterface(kService)
            .withArguments(std::string(kProgram), call.replaced, std::string(kEntry), call.title,
                           call.text, call.actions, HintsOf(call), call.timeout)
            .uponReplyInvoke([take](const sdbus::Error* error, Number number) {
                take(error == nullptr ? std::optional(number) : std::nullopt);
            });
    }

    void Close(Number number) {
        service_->callMethod("CloseNotification")
            .onInterface(kService)
            .withArguments(number)
            .dontExpectReply();
    }

private:
    void HearUser() {
        service_->uponSignal("ActionInvoked")
            .onInterface(kService)
            .call([this](Number number, const std::string& key) {
                owner_.post_([owner = &owner_, number, key] { owner->HearPress(number, key); });
            });
        service_->uponSignal("NotificationClosed")
            .onInterface(kService)
            .call([this](Number number, std::uint32_t reason) {
                owner_.post_(
                    [owner = &owner_, number, reason] { owner->HearClose(number, reason); });
            });
        service_->finishRegistration();
    }

    // By its name alone: other names come and go all day.
    void HearOwners() {
        const std::string match = std::string("type='signal',sender='") + kBus + "',interface='" +
                                  kBus + "',member='NameOwnerChanged',arg0='" + kService + "'";
        owners_ = bus_->addMatch(match, [this](sdbus::Message& message) {
            std::string name;
            std::string former;
            std::string present;
            message >> name >> former >> present;
            owner_.HearOwner(!present.empty());
        });
    }

    void Look() {
        daemon_->callMethodAsync("NameHasOwner")
            .onInterface(kBus)
            .withArguments(std::string(kService))
            .uponReplyInvoke(
                [this](const sdbus::Error*, bool isRunning) { owner_.HearRunning(isRunning); });
        daemon_->callMethodAsync("ListActivatableNames")
            .onInterface(kBus)
            .uponReplyInvoke([this](const sdbus::Error*, const Words& names) {
                owner_.HearStartable(std::ranges::find(names, kService) != names.end());
            });
    }

    BusNotices& owner_;
    std::unique_ptr<sdbus::IConnection> bus_;
    std::unique_ptr<sdbus::IProxy> daemon_;
    std::unique_ptr<sdbus::IProxy> service_;
    sdbus::Slot owners_;
};

BusNotices::BusNotices(Post post, std::function<Time()> now)
    : NoticeDesk(std::move(now)), post_(std::move(post)) {
    LookForBus();
}

BusNotices::~BusNotices() = default;

void BusNotices::LookForBus() {
    HearEnd();
    connection_.reset();
    isLost_ = false;
    try {
        connection_ = std::make_unique<Connection>(*this);
    } catch (const sdbus::Error&) {
        // There is no bus.
    }
    Serve();  // what has come while the connection was made
}

int BusNotices::Descriptor() const {
    return connection_ && !isLost_ ? connection_->Descriptor() : -1;
}

void BusNotices::Serve() {
    OnTheBus([](Connection& connection) { connection.Serve(); });
}

void BusNotices::AskAbilities(std::function<void(const std::optional<Words>&)> take) {
    OnTheBus([&](Connection& connection) { connection.AskAbilities(take); });
}

void BusNotices::Notify(const NoticeCall& call, std::function<void(std::optional<Number>)> take) {
    OnTheBus([&](Connection& connection) { connection.Notify(call, take); });
}

void BusNotices::CloseNotice(Number number) {
    OnTheBus([&](Connection& connection) { connection.Close(number); });
}

/// A bus that has gone is no fault of the program's.
void BusNotices::OnTheBus(const std::function<void(Connection&)>& step) {
    if (!connection_ || isLost_) {
        return;
    }
    try {
        step(*connection_);
    } catch (const sdbus::Error&) {
        isLost_ = true;
        HearEnd();
    }
}

}  // namespace horavex
