#pragma once

#include <sys/ioctl.h>
#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

#include "linux/system_call.h"
#include "support/run_program.h"

namespace horavex {

/// A program in a terminal of its own, which it controls. Its end ends the program, too.
class TerminalProcess {
public:
    /// name: a path, or a program of the build's bin folder.
    TerminalProcess(const std::string& name, const std::vector<std::string>& arguments,
                    const Environment& environment, const winsize& size = {});
    ~TerminalProcess();
    TerminalProcess(const TerminalProcess&) = delete;
    TerminalProcess& operator=(const TerminalProcess&) = delete;

    enum class Came { kText, kNothing, kEnd };

    /// Appends what is written within so many milliseconds.
    Came ReadInto(std::string& text, int milliseconds);

    /// Types characters.
    void Type(const std::string& keys) const;

    void Resize(const winsize& size) const;
    void Signal(int signal) const;

    /// Waits until the program has been stopped. Throws where it ends instead.
    void WaitForStop() const;

    /// Waits for the end and tells the exit status, as ProgramRun has it.
    int Wait();

private:
    pid_t process_ = -1;
    Descriptor terminal_;
};

}  // namespace horavex
