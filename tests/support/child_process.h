#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "support/run_program.h"

namespace horavex {

/// A program that runs beside the test, with nothing on its standard input and no variables but
/// the given ones. It is ended with its object.
class ChildProcess {
public:
    /// words: the program, by its path or to be looked for in the PATH of the tests, and its
    /// arguments. What it prints goes to the files out and err.
    ChildProcess(std::vector<std::string> words, const Environment& environment,
                 const std::string& out, const std::string& err);
    ~ChildProcess();
    ChildProcess(ChildProcess&& other) noexcept;
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    pid_t Id() const { return process_; }

    /// False once it has ended; Wait then still tells its status.
    bool IsRunning() const;

    void Signal(int signal) const;

    /// Waits for the end and tells the exit status, as ProgramRun has it.
    int Wait();

private:
    pid_t process_ = -1;
};

}  // namespace horavex
