#include "ctl/command_text.h"

#include <algorithm>

#include "base/text.h"

namespace horavex {

namespace {

/// What stands between the braces of "TEXT:{now,stop}".
std::vector<std::string> ChoicesIn(const std::string& type) {
    const std::size_t open = type.find('{');
    const std::size_t close = type.find('}');
    if (open == std::string::npos || close == std::string::npos) {
        return {};
    }
    return Split(type.substr(open + 1, close - open - 1), ',');
}

/// "INT in [1 - 12]" and "-90 to 90" as the latter.
std::string LimitsIn(const std::string& check) {
    const std::size_t open = check.find('[');
    if (open == std::string::npos) {
        return check.find(" to ") == std::string::npos ? "" : check;
    }
    std::string limits = check.substr(open + 1, check.find(']') - open - 1);
    const std::size_t dash = limits.find(" - ");
    return dash == std::string::npos ? limits : limits.replace(dash, 3, " to ");
}

std::vector<std::string> NamesOf(const CLI::Option& option) {
    if (option.get_positional()) {
        return {option.get_name(true)};
    }
    std::vector<std::string> names;
    for (const std::string& name : option.get_lnames()) {
        names.push_back("--" + name);
    }
    for (const std::string& name : option.get_snames()) {
        names.push_back("-" + name);
    }
    return names;
}

/// Its type name is "TEXT:{a4,letter}", the kind of value and what is checked of it.
OptionText TextOf(const CLI::Option& option) {
    const std::string type = option.get_items_expected_max() == 0 ? "" : option.get_type_name();
    const std::size_t colon = type.find(':');
    const std::string check = colon == std::string::npos ? "" : type.substr(colon + 1);
    return {.names = NamesOf(option),
            .value = type.substr(0, colon),
            .limits = LimitsIn(check),
            .choices = ChoicesIn(check),
            .description = option.get_description(),
            .isPositional = option.get_positional(),
            .isRequired = option.get_required(),
            .isFile = type.ends_with("FILE")};
}

}  // namespace

std::vector<CommandText> CommandTexts(const CLI::App& app) {
    std::vector<CommandText> texts;
    for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; })) {
        CommandText text{command->get_name(), command->get_description(), {}};
        for (const CLI::Option* option : command->get_options()) {
            text.options.push_back(TextOf(*option));
        }
        texts.push_back(std::move(text));
    }
    return texts;
}

std::vector<std::string> CommandNames(const std::vector<CommandText>& commands) {
    std::vector<std::string> names;
    std::ranges::transform(commands, std::back_inserter(names),
                           [](const CommandText& command) { return command.name; });
    return names;
}

std::string Joined(const std::vector<std::string>& words, const std::string& between) {
    std::string text;
    for (const std::string& word : words) {
        text += (text.empty() ? "" : between) + word;
    }
    return text;
}

}  // namespace horavex
