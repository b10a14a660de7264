// horavexctl: the calculations of the program for scripts, status bars and checks. It opens no
// window and never writes a setting.

#include <iostream>

#include "base/fault.h"
#include "ctl/command.h"
#include "ctl/document_fonts.h"

namespace {

using namespace horavex;

int Fail(const std::string& reason, int status) {
    Complain(reason);
    return status;
}

/// Help and version are no mistakes; everything else that parsing finds is bad usage.
int EndParsing(const CLI::App& app, const CLI::ParseError& error) {
    return error.get_exit_code() == 0 ? app.exit(error) : Fail(error.what(), kBadUsage);
}

void AddCommands(CLI::App& app, Session& session) {
    AddYearCommand(app, session);
    AddYearsCommand(app, session);
    AddTodayCommand(app, session);
    AddQiblaCommand(app, session);
    AddZoneCommands(app, session);
    AddCitiesCommand(app, session);
    AddTextCommands(app, session);
    AddMoonCommands(app, session);
    AddSkyCommands(app, session);
    AddCrescentCommand(app, session);
    AddCalendarCommands(app, session);
    AddDistanceCommand(app, session);
    AddExportCommand(app, session);
    AddMethodsCommand(app, session);
    AddRunningCommands(app, session);
    AddValidateCommand(app, session);
    AddOwnTextCommands(app, session);
}

int Run(int argumentCount, char** arguments) {
    CLI::App app("Prayer times, qibla and calendars at the command line", "horavexctl");
    app.set_version_flag("--version", HORAVEX_VERSION);
    // None at all is refused below, so that an unknown one is named.
    app.require_subcommand(0, 1);
    try {
        ConsolePlatform platform;
        Session session{platform};
        InstallDocumentFonts(arguments);
        AddCommands(app, session);
        WithMemoryFaults([&] { app.parse(argumentCount, arguments); });
        if (app.get_subcommands().empty()) {
            RefuseUsage("a subcommand is required; --help lists them");
        }
        return session.status;
    } catch (const CLI::ParseError& error) {
        return EndParsing(app, error);
    } catch (const std::exception& fault) {
        return Fail(fault.what(), kGaveUp);
    }
}

}  // namespace

// Output that went nowhere, onto a full disk for one, is a failure whatever was worked out.
int main(int argumentCount, char** arguments) {
    const int status = Run(argumentCount, arguments);
    if (!std::cout.flush()) {
        return Fail("the standard output cannot be written", kGaveUp);
    }
    return status;
}
