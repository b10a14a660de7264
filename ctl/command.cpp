#include "ctl/command.h"

#include <algorithm>
#include <iostream>

#include "base/plain_text.h"
#include "ctl/json_text.h"

namespace horavex {

void Session::Print(const Json& object, const std::string& text) const {
    if (json) {
        PrintJson(TextOf(object));
    } else {
        std::cout << WithoutControls(text) << std::flush;
    }
}

void Session::PrintJson(const std::string& object) const {
    std::cout << object << '\n' << std::flush;
}

CLI::App* AddCommand(CLI::App& app, Session& session, const char* name, const char* description) {
    CLI::App* command = app.add_subcommand(name, description);
    command->add_flag("--json", session.json, "Print one JSON object");
    return command;
}

void Complain(std::string reason) {
    std::replace(reason.begin(), reason.end(), '\n', ' ');
    std::cerr << "horavexctl: " << WithoutControls(reason) << '\n';
}

void RefuseUsage(const std::string& reason) {
    throw CLI::ValidationError(reason, kBadUsage);
}

}  // namespace horavex
