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

/// What runs there does not answer in time.
class NoAnswerFault : public BusFault {
public:
    using BusFault::BusFault;
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

    /// Whether something has changed since the last call, the program's coming and going too. When
    /// it may have, the descriptor can be read from.
    bool HasChanged();
    int Descriptor() const;

private:
    class Connection;
    std::unique_ptr<Connection> connection_;
};

}  // namespace horavex
