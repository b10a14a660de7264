#pragma once

#include <deque>
#include <functional>

#include "terminal/ports/poll_event_loop.h"
#include "terminal/screen/key_press.h"

namespace horavex {

/// Keys that have come together, pressed one in each turn of the event loop: a loop that waits for
/// what a key has ended returns before the next one is pressed.
class TypedKeys {
public:
    /// The loop lives longer.
    TypedKeys(PollEventLoop& loop, std::function<void(const KeyPress&)> press);

    void Add(const KeyPress& key);

private:
    void PressFirst();
    void PressLater();

    PollEventLoop& loop_;
    const std::function<void(const KeyPress&)> press_;
    std::deque<KeyPress> waiting_;
};

}  // namespace horavex
