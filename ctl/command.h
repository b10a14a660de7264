#pragma once

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>
#include <string>

#include "ctl/console_platform.h"

namespace horavex {

using Json = nlohmann::ordered_json;

/// Exit statuses.
inline constexpr int kDone = 0;
inline constexpr int kGaveUp = 1;
inline constexpr int kBadUsage = 2;

/// What the subcommands share: the ports, the choice of output and the exit status to be.
struct Session {
    ConsolePlatform& platform;
    bool json = false;
    int status = kDone;

    /// One JSON object with --json, else the text for people.
    void Print(const Json& object, const std::string& text) const;

    /// One that is a text already.
    void PrintJson(const std::string& object) const;
};

// Each adds one subcommand or a few of one subject; the session outlives the parsing.
void AddYearCommand(CLI::App& app, Session& session);
void AddYearsCommand(CLI::App& app, Session& session);
void AddTodayCommand(CLI::App& app, Session& session);
void AddQiblaCommand(CLI::App& app, Session& session);
void AddZoneCommands(CLI::App& app, Session& session);
void AddCitiesCommand(CLI::App& app, Session& session);
void AddTextCommands(CLI::App& app, Session& session);
void AddMoonCommands(CLI::App& app, Session& session);
void AddSkyCommands(CLI::App& app, Session& session);
void AddCrescentCommand(CLI::App& app, Session& session);
void AddCalendarCommands(CLI::App& app, Session& session);
void AddDistanceCommand(CLI::App& app, Session& session);
void AddExportCommand(CLI::App& app, Session& session);
void AddMethodsCommand(CLI::App& app, Session& session);
void AddRunningCommands(CLI::App& app, Session& session);
void AddOwnTextCommands(CLI::App& app, Session& session);
void AddValidateCommand(CLI::App& app, Session& session);

/// A subcommand with the --json flag that all of them have.
CLI::App* AddCommand(CLI::App& app, Session& session, const char* name, const char* description);

/// One line on standard error. The reason may repeat words of the user, which hold any character.
void Complain(std::string reason);

/// Ends the command with one line on standard error and kBadUsage.
[[noreturn]] void RefuseUsage(const std::string& reason);

}  // namespace horavex
