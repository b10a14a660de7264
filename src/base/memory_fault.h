#pragma once

#include <new>
#include <stdexcept>

#include "base/fault.h"

namespace horavex {

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

}  // namespace horavex
