#include <memory>

#include "ctl/command_text.h"

namespace horavex {

namespace {

std::string ScriptFor(const std::string& shell, const std::vector<CommandText>& commands) {
    if (shell == "bash") {
        return BashCompletion(commands);
    }
    return shell == "zsh" ? ZshCompletion(commands) : FishCompletion(commands);
}

void AddCompletionCommand(CLI::App& app, Session& session) {
    auto* command =
        AddCommand(app, session, "completion", "A script that completes words in a shell");
    auto shell = std::make_shared<std::string>();
    command->add_option("shell", *shell, "bash, zsh or fish")
        ->check(CLI::IsMember({"bash", "zsh", "fish"}))
        ->required();
    command->callback([&app, &session, shell] {
        const std::string script = ScriptFor(*shell, CommandTexts(app));
        session.Print({{"text", script}}, script);
    });
}

}  // namespace

void AddOwnTextCommands(CLI::App& app, Session& session) {
    AddCompletionCommand(app, session);
    AddCommand(app, session, "manual", "The manual page, for man")->callback([&app, &session] {
        const std::string page = ManualPage(CommandTexts(app));
        session.Print({{"text", page}}, page);
    });
}

}  // namespace horavex
