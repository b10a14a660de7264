#pragma once

#include <string>
#include <vector>

#include "ctl/command.h"

namespace horavex {

/// An option or a positional word as its help tells it.
struct OptionText {
    std::vector<std::string> names;    // "--city", "-h"; of a positional its name alone
    std::string value;                 // "TEXT"; empty for a flag
    std::string limits;                // "-90 to 90"; empty where there are none
    std::vector<std::string> choices;  // empty where the value is free
    std::string description;
    bool isPositional = false;
    bool isRequired = false;
    bool isFile = false;
};

struct CommandText {
    std::string name;
    std::string description;
    std::vector<OptionText> options;
};

/// All subcommands, in the order of the help.
std::vector<CommandText> CommandTexts(const CLI::App& app);

/// The words that may come first: the subcommands.
std::vector<std::string> CommandNames(const std::vector<CommandText>& commands);

std::string Joined(const std::vector<std::string>& words, const std::string& between);

// Scripts that a shell loads to complete words of horavexctl.
std::string BashCompletion(const std::vector<CommandText>& commands);
std::string ZshCompletion(const std::vector<CommandText>& commands);
std::string FishCompletion(const std::vector<CommandText>& commands);

/// The manual page, for man.
std::string ManualPage(const std::vector<CommandText>& commands);

}  // namespace horavex
