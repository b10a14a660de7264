#include "linux/bus/running_program.h"

#include <sdbus-c++/sdbus-c++.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "linux/bus/bus_names.h"

namespace horavex {

namespace {

using Values = std::map<std::string, sdbus::Variant>;
using BusMoment = sdbus::Struct<std::string, std::string, std::string>;

constexpr std::chrono::seconds kPatience{5};
constexpr const char* kProperties = "org.freedesktop.DBus.Properties";
constexpr const char* kBus = "org.freedesktop.DBus";

bool Is(const sdbus::Error& error, const char* name) {
    return error.getName() == std::string("org.freedesktop.DBus.Error.") + name;
}

/// Or ended before it answered.
bool SaysNobodyIsThere(const sdbus::Error& error) {
    return Is(error, "ServiceUnknown") || Is(error, "NameHasNoOwner") || Is(error, "NoReply");
}

/// What a step on the bus says goes on as a fault of the program's own.
template <typename Step>
auto OnTheBus(const Step& step) {
    try {
        return step();
    } catch (const sdbus::Error& error) {
        const std::string told = "the session bus: " + error.getMessage();
        if (Is(error, "Timeout")) {
            throw NoAnswerFault(told);
        }
        throw BusFault(told);
    }
}

/// False where nobody is there to hear it.
bool Reaches(const std::function<void()>& call) {
    return OnTheBus([&] {
        try {
            call();
            return true;
        } catch (const sdbus::Error& error) {
            if (SaysNobodyIsThere(error)) {
                return false;
            }
            throw;
        }
    });
}

std::string TextIn(const Values& values, const char* name) {
    return values.at(name).get<std::string>();
}

std::vector<ToldMoment> MomentsIn(const Values& values) {
    std::vector<ToldMoment> moments;
    for (const BusMoment& moment : values.at("Moments").get<std::vector<BusMoment>>()) {
        moments.push_back({moment.get<0>(), moment.get<1>(), moment.get<2>()});
    }
    return moments;
}

ToldState StateIn(const Values& values) {
    return {.place = TextIn(values, "Place"),
            .zone = TextIn(values, "Zone"),
            .moments = MomentsIn(values),
            .nextPrayer = TextIn(values, "NextPrayer"),
            .nextTime = TextIn(values, "NextTime"),
            .hijriDate = TextIn(values, "HijriDate"),
            .athanPlaying = values.at("AthanPlaying").get<bool>(),
            .quietUntil = TextIn(values, "QuietUntil")};
}

}  // namespace

class RunningProgram::Connection {
public:
    Connection()
        : bus_(sdbus::createSessionBusConnection()),
          program_(sdbus::createProxy(*bus_, kBusName, kBusPath)) {
        HearChanges();
        HearComingAndGoing();
    }

    Values Properties() {
        Values values;
        program_->callMethod("GetAll")
            .onInterface(kProperties)
            .withTimeout(kPatience)
            .withArguments(std::string(kBusInterface))
            .storeResultsTo(values);
        return values;
    }

    template <typename... Arguments>
    void Ask(const char* method, const Arguments&... arguments) {
        program_->callMethod(method)
            .onInterface(kBusInterface)
            .withTimeout(kPatience)
            .withArguments(arguments...)
            .storeResultsTo();
    }

    bool HasChanged() {
        while (bus_->processPendingRequest()) {
        }
        return std::exchange(hasChanged_, false);
    }

    int Descriptor() const { return bus_->getEventLoopPollData().fd; }

private:
    void HearChanges() {
        program_->uponSignal("PropertiesChanged")
            .onInterface(kProperties)
            .call([this](const std::string&, const Values&, const std::vector<std::string>&) {
                hasChanged_ = true;
            });
        program_->finishRegistration();
    }

    /// Of this name alone: others come and go all the time.
    void HearComingAndGoing() {
        coming_ = bus_->addMatch(std::string("type='signal',sender='") + kBus +
                                     "',member='NameOwnerChanged',arg0='" + kBusName + "'",
                                 [this](sdbus::Message&) { hasChanged_ = true; });
    }

    std::unique_ptr<sdbus::IConnection> bus_;
    std::unique_ptr<sdbus::IProxy> program_;
    sdbus::Slot coming_;
    bool hasChanged_ = false;
};

RunningProgram::RunningProgram()
    : connection_(OnTheBus([] { return std::make_unique<Connection>(); })) {}

RunningProgram::~RunningProgram() = default;

std::optional<ToldState> RunningProgram::State() {
    Values values;
    const bool isThere = Reaches([&] { values = connection_->Properties(); });
    return isThere ? std::optional(OnTheBus([&] { return StateIn(values); })) : std::nullopt;
}

bool RunningProgram::Ask(const char* method) {
    return Reaches([&] { connection_->Ask(method); });
}

bool RunningProgram::AskForQuiet(int minutes) {
    return Reaches([&] { connection_->Ask("Quiet", static_cast<std::uint32_t>(minutes)); });
}

bool RunningProgram::HasChanged() {
    return OnTheBus([&] { return connection_->HasChanged(); });
}

int RunningProgram::Descriptor() const {
    return connection_->Descriptor();
}

}  // namespace horavex
