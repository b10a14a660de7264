#include <cmath>
#include <ctime>
#include <iostream>
#include <memory>
#include <optional>

#include "base/plain_text.h"
#include "base/text.h"
#include "ctl/command.h"
#include "ctl/follow_wait.h"
#include "ctl/number_range.h"
#include "ctl/status_line.h"
#include "linux/bus/running_program.h"

namespace horavex {

namespace {

struct StatusOptions {
    bool follow = false;
    std::string format;
};

constexpr const char* kFollowedLine = "{next} {time}";

[[noreturn]] void RefuseAbsent() {
    throw BusFault("Horavex does not run in this session");
}

Json ToldMomentsJson(const ToldState& state) {
    Json moments = Json::array();
    for (const auto& [prayer, local, by] : state.moments) {
        moments.push_back(
            {{"prayer", prayer}, {"local", local.empty() ? Json() : Json(local)}, {"by", by}});
    }
    return moments;
}

Json StatusJson(const ToldState& state, Date now) {
    return {{"running", true},
            {"place", state.place},
            {"zone", state.zone},
            {"moments", ToldMomentsJson(state)},
            {"next",
             {{"prayer", state.nextPrayer},
              {"local", state.nextTime},
              {"remainingSeconds", SecondsLeft(state, now)}}},
            {"hijri", state.hijriDate},
            {"athanPlaying", state.athanPlaying},
            {"quietUntil", state.quietUntil.empty() ? Json() : Json(state.quietUntil)}};
}

std::string PrayerLines(const ToldState& state, const StatusFields& fields) {
    std::string text;
    for (const ToldMoment& moment : state.moments) {
        const bool isNext = moment.local == state.nextTime;
        const std::string name = moment.prayer + std::string(10 - moment.prayer.size(), ' ');
        text += (isNext ? "  > " : "    ") + name + fields.at(moment.prayer) + "\n";
    }
    return text;
}

std::string StatusText(const ToldState& state, const StatusFields& fields) {
    return FilledLine("{place}\n{zone}   {hijri}\n\n", fields) + PrayerLines(state, fields) +
           FilledLine("\nNext: {next} at {time}, in {remaining}\n", fields) +
           (state.athanPlaying ? "An athan is up\n" : "") +
           (state.quietUntil.empty() ? "" : FilledLine("Quiet until {quiet}\n", fields));
}

Date UniversalNow() {
    return Ports().clock.UniversalNow();
}

/// What stands for the state now, on one line; nothing while the program does not run.
std::string LineOf(const Session& session, const StatusOptions& options,
                   const std::optional<ToldState>& state) {
    if (session.json) {
        return (state ? StatusJson(*state, UniversalNow()) : Json{{"running", false}}).dump();
    }
    const std::string line = options.format.empty() ? kFollowedLine : options.format;
    return state ? FilledLine(line, FieldsOf(*state, UniversalNow())) : "";
}

std::time_t SecondOf(Date universal) {
    return std::llround((universal - DateSerial(1970, 1, 1)) * kSecondsPerDay);
}

/// When the line reads otherwise without any news; none where it never does.
std::optional<std::time_t> ChangeOf(const Session& session, const StatusOptions& options,
                                    const std::optional<ToldState>& state) {
    if (session.json || !state) {
        return std::nullopt;
    }
    const Date now = UniversalNow();
    const std::optional<long> seconds = SecondsToChange(options.format, SecondsLeft(*state, now));
    return seconds ? std::optional(SecondOf(now) + *seconds) : std::nullopt;
}

constexpr std::time_t kAtOnce = 0;

/// Follows the program and prints a line at each change.
class Follower {
public:
    Follower(const Session& session, const StatusOptions& options)
        : session_(session), options_(options) {}

    /// Until nobody reads the lines any more, or a signal ends it.
    void Run() {
        do {
            while (program_.HasChanged() || IsDue()) {
                Look();
            }
        } while (!ReaderHasGone() && std::cout && Sleep());
    }

private:
    bool IsDue() const { return next_ && SecondOf(UniversalNow()) >= *next_; }

    /// A program that does not answer is asked once more in a minute; the line stays meanwhile.
    void Look() {
        constexpr std::time_t kMinute = 60;
        try {
            const std::optional<ToldState> state = program_.State();
            Show(LineOf(session_, options_, state));
            next_ = ChangeOf(session_, options_, state);
        } catch (const NoAnswerFault&) {
            next_ = SecondOf(UniversalNow()) + kMinute;
        }
    }

    /// False when the end has come.
    bool Sleep() {
        const FollowWait::Woken woken = wait_.For(program_.Descriptor(), next_);
        if (woken == FollowWait::Woken::kClock) {
            next_ = kAtOnce;
        }
        return woken != FollowWait::Woken::kEnd;
    }

    void Show(const std::string& line) {
        if (line != shown_) {
            std::cout << WithoutControls(line) << std::endl;
            shown_ = line;
        }
    }

    const Session& session_;
    const StatusOptions& options_;
    RunningProgram program_;
    FollowWait wait_;
    std::optional<std::string> shown_;
    std::optional<std::time_t> next_ = kAtOnce;  // when to look again, be there news or not
};

void PrintStatus(const Session& session, const StatusOptions& options) {
    const std::optional<ToldState> state = RunningProgram().State();
    if (!state) {
        RefuseAbsent();
    }
    const StatusFields fields = FieldsOf(*state, UniversalNow());
    session.Print(StatusJson(*state, UniversalNow()),
                  options.format.empty() ? StatusText(*state, fields)
                                         : FilledLine(options.format, fields) + "\n");
}

/// What was asked is done by the time that the program gets to it.
void AskProgram(const Session& session, const char* method) {
    if (!RunningProgram().Ask(method)) {
        RefuseAbsent();
    }
    session.Print({{"asked", method}}, "");
}

void AddStatusCommand(CLI::App& app, Session& session) {
    auto* command = AddCommand(app, session, "status", "What the running program shows");
    auto options = std::make_shared<StatusOptions>();
    command->add_flag("--follow", options->follow, "Print a line at each change");
    command->add_option("--format", options->format,
                        "A line with {next}, {time}, {remaining}, ...");
    command->callback([&session, options] {
        CheckLine(options->format);
        options->follow ? Follower(session, *options).Run() : PrintStatus(session, *options);
    });
}

void AddRequest(CLI::App& app, Session& session, const char* name, const char* description,
                const char* method) {
    AddCommand(app, session, name, description)->callback([&session, method] {
        AskProgram(session, method);
    });
}

void AddAthanCommand(CLI::App& app, Session& session) {
    auto* command =
        AddCommand(app, session, "athan", "Start or stop an athan of the running program");
    auto action = std::make_shared<std::string>();
    command->add_option("action", *action, "now or stop")
        ->check(CLI::IsMember({"now", "stop"}))
        ->required();
    command->callback(
        [&session, action] { AskProgram(session, *action == "now" ? "AthanNow" : "StopAthan"); });
}

void AskForQuiet(const Session& session, int minutes) {
    if (!RunningProgram().AskForQuiet(minutes)) {
        RefuseAbsent();
    }
    session.Print({{"asked", "Quiet"}, {"minutes", minutes}}, "");
}

void AddQuietCommand(CLI::App& app, Session& session) {
    constexpr double kMinutesPerDay = 1440.0;
    auto* command = AddCommand(app, session, "quiet", "No athan for so many minutes");
    auto minutes = std::make_shared<int>();
    command->add_option("minutes", *minutes, "1 to 1440; 0 ends it")
        ->check(NumberFrom(0.0, kMinutesPerDay))
        ->required();
    command->callback([&session, minutes] { AskForQuiet(session, *minutes); });
}

}  // namespace

void AddRunningCommands(CLI::App& app, Session& session) {
    AddStatusCommand(app, session);
    AddAthanCommand(app, session);
    AddRequest(app, session, "show", "Bring the running program to the front", "Show");
    AddRequest(app, session, "hide", "Take its face from view", "Hide");
    AddQuietCommand(app, session);
}

}  // namespace horavex
