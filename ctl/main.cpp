// horavexctl: the calculations of the program for scripts, status bars and checks. It opens no
// window and never writes a setting.

#include <iostream>

#include "base/fault.h"
#include "ctl/command.h"

namespace horavex {

void Session::Print(const Json& object, const std::string& text) const {
    std::cout << (json ? object.dump() + "\n" : text) << std::flush;
}

CLI::App* AddCommand(CLI::App& app, Session& session, const char* name, const char* description) {
    CLI::App* command = app.add_subcommand(name, description);
    command->add_flag("--json", session.json, "Print one JSON object");
    return command;
}

void RefuseUsage(const std::string& reason) {
    throw CLI::ValidationError(reason, kBadUsage);
}

}  // namespace horavex

namespace {

using namespace horavex;

int Fail(const std::string& reason, int status) {
    std::cerr << "horavexctl: " << reason << '\n';
    return status;
}

/// Help and version are no mistakes; everything else that parsing finds is bad usage.
int EndParsing(const CLI::App& app, const CLI::ParseError& error) {
    return error.get_exit_code() == 0 ? app.exit(error) : Fail(error.what(), kBadUsage);
}

void AddCommands(CLI::App& app, Session& session) {
    AddYearCommand(app, session);
    AddTodayCommand(app, session);
    AddQiblaCommand(app, session);
    AddZoneCommands(app, session);
    AddCitiesCommand(app, session);
    AddTextCommands(app, session);
    AddValidateCommand(app, session);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    CLI::App app("Prayer times, qibla and calendars at the command line", "horavexctl");
    app.set_version_flag("--version", HORAVEX_VERSION);
    app.require_subcommand(1);
    try {
        ConsolePlatform platform;
        Session session{platform};
        AddCommands(app, session);
        app.parse(argumentCount, arguments);
        return session.status;
    } catch (const CLI::ParseError& error) {
        return EndParsing(app, error);
    } catch (const std::exception& fault) {
        return Fail(fault.what(), kGaveUp);
    }
}
