#pragma once

#include <string>
#include <vector>

#include "support/terminal_process.h"

namespace horavex {

/// A program in a terminal of its own, and what it prints there.
class PseudoTerminal {
public:
    /// name: a path, or a program of the build's bin folder.
    PseudoTerminal(const std::string& name, const std::vector<std::string>& arguments,
                   const Environment& environment)
        : process_(name, arguments, environment) {}

    /// What is printed from here to the end of the mark, which it waits for. Throws where half a
    /// minute brings nothing new, and where the program ends before it.
    std::string ReadTo(const std::string& mark);

    /// What is printed from here to the program's end, which it waits for.
    std::string ReadToEnd();

    /// Types characters.
    void Type(const std::string& keys) const { process_.Type(keys); }

    void Signal(int signal) const { process_.Signal(signal); }

    /// Waits for the end and tells the exit status, as ProgramRun has it.
    int Wait() { return process_.Wait(); }

private:
    /// False at the end of what the program prints.
    bool ReadMore();

    TerminalProcess process_;
    std::string unread_;
};

}  // namespace horavex
