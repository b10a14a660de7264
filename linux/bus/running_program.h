#pragma once

#include <memory>
#include <optional>

#include "base/fault.h"
#include "platform/broadcast.h"

namespace horavex {

/// There is no session bus, or what runs there does not answer.
class BusFault : public Fault {
public:
    using Fault::Fault;
};

/// The program that runs in this session, as other programs see it. Everything throws a BusFault
/// where the bus fails.
class RunningProgram {
public:
    RunningProgram();
    ~RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    /// None where it does not run.
    std::optional<ToldState> State();

    /// Asks by a method without arguments: "Show". False where it does not run.
    bool Ask(const char* method);
    bool AskForQuiet(int minutes);

    /// Waits until something has changed, the program's coming and going too, at most so many
    /// milliseconds; negative for as long as it takes.
    void WaitForChange(int milliseconds);

private:
    class Connection;
    std::unique_ptr<Connection> connection_;
};

}  // namespace horavex
