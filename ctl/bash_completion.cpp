#include "ctl/command_text.h"

namespace horavex {

namespace {

constexpr const char* kHead =
    R"(# Completion of horavexctl for bash, as "horavexctl completion bash" prints it.
_horavexctl() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]} command= word
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        if [[ $word != -* ]]; then
            command=$word
            break
        fi
    done
)";

constexpr const char* kFoot = "}\ncomplete -F _horavexctl horavexctl\n";

std::string Offer(const std::vector<std::string>& words) {
    return "COMPREPLY=($(compgen -W '" + Joined(words, " ") + "' -- \"$current\"))";
}

/// What follows an option that takes a value: its choices, names of files, or nothing.
std::string ValueOffer(const OptionText& option) {
    if (option.isFile) {
        return "COMPREPLY=($(compgen -f -- \"$current\")); ";
    }
    return option.choices.empty() ? "" : Offer(option.choices) + "; ";
}

std::string ValueCases(const CommandText& command) {
    std::string cases;
    for (const OptionText& option : command.options) {
        if (!option.isPositional && !option.value.empty()) {
            cases += "        " + command.name + ":" + option.names.front() + ") " +
                     ValueOffer(option) + "return ;;\n";
        }
    }
    return cases;
}

std::vector<std::string> WordsOf(const CommandText& command) {
    std::vector<std::string> words;
    for (const OptionText& option : command.options) {
        const std::vector<std::string>& offered =
            option.isPositional ? option.choices : option.names;
        words.insert(words.end(), offered.begin(), offered.end());
    }
    return words;
}

}  // namespace

std::string BashCompletion(const std::vector<CommandText>& commands) {
    std::vector<std::string> first = CommandNames(commands);
    first.insert(first.end(), {"--help", "--version"});
    std::string values;
    std::string words = "        '') " + Offer(first) + " ;;\n";
    for (const CommandText& command : commands) {
        values += ValueCases(command);
        words += "        " + command.name + ") " + Offer(WordsOf(command)) + " ;;\n";
    }
    return std::string(kHead) + "    case $command:$previous in\n" + values +
           "    esac\n    case $command in\n" + words + "    esac\n" + kFoot;
}

}  // namespace horavex
