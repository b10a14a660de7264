// horavex-terminal: the program where there is no desktop.

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <string>

#include "base/plain_text.h"
#include "terminal/screen/curses_screen.h"
#include "terminal/service/service.h"
#include "terminal/session/terminal_program.h"

namespace {

constexpr int kBadUsage = 2;

/// A reason may repeat words of the user, which hold any character; it is one line all the same.
int Fail(std::string reason, int status) {
    std::replace(reason.begin(), reason.end(), '\n', ' ');
    std::cerr << "horavex-terminal: " << horavex::WithoutControls(reason) << '\n';
    return status;
}

/// Help and version are no mistakes.
int EndParsing(const CLI::App& app, const CLI::ParseError& error) {
    return error.get_exit_code() == 0 ? app.exit(error) : Fail(error.what(), kBadUsage);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    CLI::App app("Prayer times where there is no desktop", "horavex-terminal");
    app.set_version_flag("--version", HORAVEX_VERSION);
    bool isFaceless = false;
    app.add_flag("--no-face", isFaceless, "Clock, athan and notifications alone, with a log");
    try {
        app.parse(argumentCount, arguments);
        return isFaceless ? horavex::RunService() : horavex::RunTerminalProgram();
    } catch (const CLI::ParseError& error) {
        return EndParsing(app, error);
    } catch (const horavex::NoTerminal& reason) {
        return Fail(reason.what(), kBadUsage);
    } catch (const std::exception& fault) {
        return Fail(fault.what(), EXIT_FAILURE);
    }
}
