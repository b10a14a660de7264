#include "ctl/command_text.h"

namespace horavex {

namespace {

std::string Quoted(const std::string& text) {
    std::string quoted = "'";
    for (const char letter : text) {
        quoted +=
            letter == '\'' || letter == '\\' ? std::string("\\") + letter : std::string(1, letter);
    }
    return quoted + "'";
}

/// "--city" as "-l city", "-h" as "-s h".
std::string FlagOf(const std::string& name) {
    return name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
}

std::string ValueOf(const OptionText& option) {
    if (option.isFile) {
        return " -rF";
    }
    const std::string choices =
        option.choices.empty() ? "" : " -a " + Quoted(Joined(option.choices, " "));
    return option.value.empty() || option.isPositional ? choices : " -x" + choices;
}

/// A word with choices is offered once.
std::string ConditionOf(const CommandText& command, const OptionText& option) {
    const std::string seen = "__fish_seen_subcommand_from ";
    return seen + command.name +
           (option.isPositional && !option.choices.empty()
                ? "; and not " + seen + Joined(option.choices, " ")
                : "");
}

std::string LineOf(const CommandText& command, const OptionText& option) {
    std::string line = "complete -c horavexctl -n '" + ConditionOf(command, option) + "'";
    if (!option.isPositional) {
        for (const std::string& name : option.names) {
            line += FlagOf(name);
        }
    }
    return line + ValueOf(option) + " -d " + Quoted(option.description) + "\n";
}

}  // namespace

std::string FishCompletion(const std::vector<CommandText>& commands) {
    std::string script =
        "# Completion of horavexctl for fish, as \"horavexctl completion fish\" prints it.\n"
        "complete -c horavexctl -f\n"
        "complete -c horavexctl -n __fish_use_subcommand -l version -d 'Print the version'\n"
        "complete -c horavexctl -n __fish_use_subcommand -s h -l help -d 'Print help'\n";
    for (const CommandText& command : commands) {
        script += "complete -c horavexctl -n __fish_use_subcommand -a " + command.name + " -d " +
                  Quoted(command.description) + "\n";
    }
    for (const CommandText& command : commands) {
        for (const OptionText& option : command.options) {
            script += LineOf(command, option);
        }
    }
    return script;
}

}  // namespace horavex
