#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "linux/system_call.h"
#include "support/run_program.h"

namespace horavex {

/// A program, by its path or out of the build's bin folder, in a terminal of its own, which it
/// controls.
class PseudoTerminal {
public:
    PseudoTerminal(const std::string& name, const std::vector<std::string>& arguments,
                   const Environment& environment);
    /// Ends the program if it still runs.
    ~PseudoTerminal();
    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;

    /// What is printed from here to the end of the mark, which it waits for. Throws where half a
    /// minute brings nothing new, and where the program ends before it.
    std::string ReadTo(const std::string& mark);

    /// What is printed from here to the program's end, which it waits for.
    std::string ReadToEnd();

    /// Types characters.
    void Type(const std::string& keys) const;

    void Signal(int signal) const;

    /// Waits for the end and tells the exit status, as ProgramRun has it.
    int Wait();

private:
    /// False at the end of what the program prints.
    bool ReadMore();

    pid_t process_ = -1;
    Descriptor terminal_;
    std::string unread_;
};

}  // namespace horavex
