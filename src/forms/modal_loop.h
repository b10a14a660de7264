#pragma once

namespace horavex {

/// Marks the time in which a modal window or a menu runs an event loop of its own, as long as it
/// lives. Such loops nest.
class ModalLoop {
public:
    ModalLoop();
    ~ModalLoop();
    ModalLoop(const ModalLoop&) = delete;
    ModalLoop& operator=(const ModalLoop&) = delete;

    /// How many of them run; 0 for none.
    static int Depth();
};

}  // namespace horavex
