#pragma once

#include <new>
#include <stdexcept>
#include <string>

namespace horavex {

/// Base of every fault that stops an operation. The text is one line for people.
class Fault : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A value left the range of the field that takes it.
class OverflowFault : public Fault {
public:
    using Fault::Fault;
};

class DivisionByZeroFault : public Fault {
public:
    using Fault::Fault;
};

/// A square root of a negative number.
class SquareRootFault : public Fault {
public:
    using Fault::Fault;
};

/// A text that should have been a number or a date is none.
class TypeMismatchFault : public Fault {
public:
    using Fault::Fault;
};

/// An index, a record number or a length outside what is there.
class BoundsFault : public Fault {
public:
    using Fault::Fault;
};

/// A file or folder could not be opened, read, written or deleted.
class FileFault : public Fault {
public:
    FileFault(const std::string& path, const std::string& reason)
        : Fault(path + ": " + reason), path_(path) {}

    const std::string& Path() const { return path_; }

private:
    std::string path_;
};

/// There is not as much memory as a damaged or huge input asks for.
class MemoryFault : public Fault {
public:
    MemoryFault() : Fault("not enough memory") {}
};

/// Runs an action and lets a want of memory in it be a fault like the others.
template <class Action>
auto WithMemoryFaults(Action action) {
    try {
        return action();
    } catch (const std::bad_alloc&) {
        throw MemoryFault();
    } catch (const std::length_error&) {
        throw MemoryFault();
    }
}

/// Runs one step of a routine whose failed steps are passed over so that the next one runs.
template <class Step>
void RunStep(Step step) {
    try {
        WithMemoryFaults(step);
    } catch (const Fault&) {
        // Passed over in silence.
    }
}

}  // namespace horavex
