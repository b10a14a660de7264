#include "ctl/command_text.h"

namespace horavex {

namespace {

constexpr const char* kBashHead =
    R"(# Completion of horavexctl for bash, as "horavexctl completion bash" prints it.
_horavexctl() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]} command= word
    [[ $current != '=' ]] || current=
    [[ $previous != '=' ]] || previous=${COMP_WORDS[COMP_CWORD-2]}
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        if [[ $word != -* ]]; then
            command=$word
            break
        fi
    done
)";

constexpr const char* kBashFoot = "}\ncomplete -F _horavexctl horavexctl\n";

std::string Offer(const std::vector<std::string>& words) {
    return "COMPREPLY=($(compgen -W '" + Joined(words, " ") + "' -- \"$current\"))";
}

/// What follows an option that takes a value: its choices, names of files, or nothing.
std::string ValueOffer(const OptionText& option) {
    if (option.isFile) {
        return "mapfile -t COMPREPLY < <(compgen -f -- \"$current\"); "
               "compopt -o filenames 2>/dev/null; ";
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
        if (!option.isPositional) {
            words.insert(words.end(), option.names.begin(), option.names.end());
        }
    }
    return words;
}

/// The choices of a positional word, as long as none of them was typed.
std::string WordOffer(const CommandText& command) {
    for (const OptionText& option : command.options) {
        if (option.isPositional && !option.choices.empty()) {
            return "[[ \" ${COMP_WORDS[*]:2:COMP_CWORD-2} \" =~ \" \"(" +
                   Joined(option.choices, "|") + ")\" \" ]] || words+=' " +
                   Joined(option.choices, " ") + "'; ";
        }
    }
    return "";
}

}  // namespace

std::string BashCompletion(const std::vector<CommandText>& commands) {
    std::vector<std::string> first = CommandNames(commands);
    first.insert(first.end(), {"--help", "--version"});
    std::string values;
    std::string words = "        '') words='" + Joined(first, " ") + "' ;;\n";
    for (const CommandText& command : commands) {
        values += ValueCases(command);
        words += "        " + command.name + ") words='" + Joined(WordsOf(command), " ") + "'; " +
                 WordOffer(command) + ";;\n";
    }
    return std::string(kBashHead) + "    case $command:$previous in\n" + values +
           "    esac\n    local words=\n    case $command in\n" + words + "    esac\n" +
           "    COMPREPLY=($(compgen -W \"$words\" -- \"$current\"))\n" + kBashFoot;
}

}  // namespace horavex
