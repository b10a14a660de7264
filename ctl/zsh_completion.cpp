#include "ctl/command_text.h"

namespace horavex {

namespace {

constexpr const char* kZshHead = R"(#compdef horavexctl
# Completion of horavexctl for zsh, as "horavexctl completion zsh" prints it.
_horavexctl() {
    local curcontext=$curcontext state line
    local -a commands=(
)";

constexpr const char* kZshMiddle = R"(    )
    _arguments -C '(-h --help)'{-h,--help}'[Print help]' '--version[Print the version]' \
        '1:command:->command' '*::word:->words'
    case $state in
        command) _describe command commands ;;
        words)
            case $words[1] in
)";

// The file is a function that the shell loads by its name at the first use, or is sourced.
constexpr const char* kZshFoot = R"(            esac ;;
    esac
}
if [[ $funcstack[1] == _horavexctl ]]; then
    _horavexctl "$@"
else
    compdef _horavexctl horavexctl
fi
)";

/// Inside single quotes, with what the shell's own marks are taken from it.
std::string Plain(const std::string& text, const std::string& marks) {
    std::string plain;
    for (const char letter : text) {
        if (marks.find(letter) != std::string::npos) {
            plain += '\\';
        }
        plain += letter == '\'' ? "'\\''" : std::string(1, letter);
    }
    return plain;
}

bool TakesValue(const OptionText& option) {
    return !option.value.empty();
}

std::string ZshValueOf(const OptionText& option) {
    if (!TakesValue(option)) {
        return "";
    }
    const std::string what = option.isFile            ? "_files"
                             : option.choices.empty() ? " "
                                                      : "(" + Joined(option.choices, " ") + ")";
    return ":" + option.value + ":" + what;
}

std::string ArgumentOf(const OptionText& option) {
    if (option.isPositional) {
        return " '1" + ZshValueOf(option) + "'";
    }
    std::string all;
    for (const std::string& name : option.names) {
        all += " '" + name + (TakesValue(option) && name.starts_with("--") ? "=[" : "[") +
               Plain(option.description, "[]:") + "]" + ZshValueOf(option) + "'";
    }
    return all;
}

}  // namespace

std::string ZshCompletion(const std::vector<CommandText>& commands) {
    std::string names;
    std::string words;
    for (const CommandText& command : commands) {
        names += "        '" + command.name + ":" + Plain(command.description, ":") + "'\n";
        words += "                " + command.name + ") _arguments";
        for (const OptionText& option : command.options) {
            words += ArgumentOf(option);
        }
        words += " ;;\n";
    }
    return kZshHead + names + kZshMiddle + words + kZshFoot;
}

}  // namespace horavex
