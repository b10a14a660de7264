#include "linux/bus/session_broadcast.h"

#include <sdbus-c++/sdbus-c++.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "linux/bus/bus_names.h"
#include "linux/bus/running_program.h"

namespace horavex {

namespace {

using BusMoment = sdbus::Struct<std::string, std::string, std::string>;

constexpr int kStatesPerMinute = 60;  // the clock publishes one a second

std::vector<BusMoment> BusMoments(const std::vector<ToldMoment>& moments) {
    std::vector<BusMoment> all;
    for (const auto& [prayer, local, by] : moments) {
        all.emplace_back(prayer, local, by);
    }
    return all;
}

/// The names of the properties that are not the same.
std::vector<std::string> Changes(const ToldState& before, const ToldState& now) {
    std::vector<std::string> names;
    const auto compare = [&](const char* name, auto ToldState::*member) {
        if (before.*member != now.*member) {
            names.emplace_back(name);
        }
    };
    compare("Place", &ToldState::place);
    compare("Zone", &ToldState::zone);
    compare("Moments", &ToldState::moments);
    compare("NextPrayer", &ToldState::nextPrayer);
    compare("NextTime", &ToldState::nextTime);
    compare("HijriDate", &ToldState::hijriDate);
    compare("AthanPlaying", &ToldState::athanPlaying);
    compare("QuietUntil", &ToldState::quietUntil);
    return names;
}

}  // namespace

/// As long as there is a bus and the name on it, by which nobody finds it before all is in place.
class SessionBroadcast::Connection {
public:
    Connection(SessionBroadcast& owner, ToldState state)
        : owner_(owner),
          state_(std::move(state)),
          bus_(sdbus::createSessionBusConnection()),
          object_(sdbus::createObject(*bus_, kBusPath)) {
        AddProperties();
        AddSignals();
        AddMethods();
        object_->finishRegistration();
        bus_->requestName(kBusName);
    }

    void Publish(const ToldState& state) {
        const std::vector<std::string> changes = Changes(state_, state);
        state_ = state;
        if (!changes.empty()) {
            object_->emitPropertiesChangedSignal(kBusInterface, changes);
        }
    }

    template <typename... Arguments>
    void Emit(const char* signal, const Arguments&... arguments) {
        object_->emitSignal(signal).onInterface(kBusInterface).withArguments(arguments...);
    }

    int Descriptor() const { return bus_->getEventLoopPollData().fd; }

    void Serve() {
        while (bus_->processPendingRequest()) {
        }
    }

private:
    template <typename Getter>
    void AddProperty(const char* name, Getter getter) {
        object_->registerProperty(name).onInterface(kBusInterface).withGetter(getter);
    }

    void AddProperties() {
        AddProperty("Place", [this] { return state_.place; });
        AddProperty("Zone", [this] { return state_.zone; });
        AddProperty("Moments", [this] { return BusMoments(state_.moments); });
        AddProperty("NextPrayer", [this] { return state_.nextPrayer; });
        AddProperty("NextTime", [this] { return state_.nextTime; });
        AddProperty("HijriDate", [this] { return state_.hijriDate; });
        AddProperty("AthanPlaying", [this] { return state_.athanPlaying; });
        AddProperty("QuietUntil", [this] { return state_.quietUntil; });
    }

    void AddSignals() {
        using std::string;
        object_->registerSignal("PrayerArrived")
            .onInterface(kBusInterface)
            .withParameters<string, string>("prayer", "time");
        object_->registerSignal("ReminderDue")
            .onInterface(kBusInterface)
            .withParameters<string, string, std::uint32_t>("kind", "prayer", "minutes");
        object_->registerSignal("AthanStopped").onInterface(kBusInterface).withParameters<>();
        object_->registerSignal("DayChanged")
            .onInterface(kBusInterface)
            .withParameters<string>("date");
    }

    void AddMethods() {
        AddMethod("Show", &Broadcast::onShow);
        AddMethod("Hide", &Broadcast::onHide);
        AddMethod("AthanNow", &Broadcast::onAthanNow);
        AddMethod("StopAthan", &Broadcast::onStopAthan);
        object_->registerMethod("Quiet")
            .onInterface(kBusInterface)
            .withInputParamNames("minutes")
            .implementedAs([this](std::uint32_t minutes) { AskForQuiet(minutes); });
    }

    void AddMethod(const char* name, std::function<void()> Broadcast::*request) {
        object_->registerMethod(name).onInterface(kBusInterface).implementedAs([this, request] {
            if (!(owner_.*request)) {
                throw sdbus::Error("org.freedesktop.DBus.Error.NotSupported",
                                   owner_.onShow ? "it runs in a terminal, which it cannot hide"
                                                 : "it runs without a face");
            }
            owner_.post_([owner = &owner_, request] { (owner->*request)(); });
        });
    }

    void AskForQuiet(std::uint32_t minutes) {
        constexpr std::uint32_t kMinutesPerDay = 1440;
        if (minutes > kMinutesPerDay) {
            throw sdbus::Error("org.freedesktop.DBus.Error.InvalidArgs", "minutes: 0 to 1440");
        }
        owner_.post_([owner = &owner_, minutes] { owner->onQuiet(static_cast<int>(minutes)); });
    }

    SessionBroadcast& owner_;
    ToldState state_;
    std::unique_ptr<sdbus::IConnection> bus_;
    std::unique_ptr<sdbus::IObject> object_;
};

SessionBroadcast::SessionBroadcast(Post post) : post_(std::move(post)) {}

SessionBroadcast::~SessionBroadcast() = default;

void SessionBroadcast::Publish(const ToldState& state) {
    if (IsThere()) {
        Speak([&](Connection& connection) { connection.Publish(state); });
    } else if (statesUnheard_++ % kStatesPerMinute == 0) {
        LookForBus(state);
    }
}

void SessionBroadcast::LookForBus(const ToldState& state) {
    connection_.reset();
    isLost_ = false;
    try {
        connection_ = std::make_unique<Connection>(*this, state);
        TellDescriptor();
    } catch (const sdbus::Error&) {
        // There is no bus, or another front end is on it.
    }
}

void SessionBroadcast::TellPrayerArrived(const std::string& prayer, const std::string& local) {
    Speak([&](Connection& connection) { connection.Emit("PrayerArrived", prayer, local); });
}

void SessionBroadcast::TellReminderDue(const std::string& kind, const std::string& prayer,
                                       int minutes) {
    Speak([&](Connection& connection) {
        connection.Emit("ReminderDue", kind, prayer, static_cast<std::uint32_t>(minutes));
    });
}

void SessionBroadcast::TellAthanStopped() {
    Speak([](Connection& connection) { connection.Emit("AthanStopped"); });
}

void SessionBroadcast::TellDayChanged(const std::string& date) {
    Speak([&](Connection& connection) { connection.Emit("DayChanged", date); });
}

bool SessionBroadcast::ShowRunning() {
    try {
        return RunningProgram().Ask("Show");
    } catch (const BusFault&) {
        return false;
    }
}

int SessionBroadcast::Descriptor() const {
    return IsThere() ? connection_->Descriptor() : -1;
}

void SessionBroadcast::Serve() {
    Speak([](Connection& connection) { connection.Serve(); });
}

/// A bus that has gone is no fault of the program's.
void SessionBroadcast::Speak(const std::function<void(Connection&)>& say) {
    if (!IsThere()) {
        return;
    }
    try {
        say(*connection_);
    } catch (const sdbus::Error&) {
        isLost_ = true;
        statesUnheard_ = 1;
        TellDescriptor();
    }
}

void SessionBroadcast::TellDescriptor() const {
    if (onDescriptor) {
        onDescriptor();
    }
}

}  // namespace horavex
