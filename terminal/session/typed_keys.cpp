#include "terminal/session/typed_keys.h"

#include <utility>

namespace horavex {

TypedKeys::TypedKeys(PollEventLoop& loop, std::function<void(const KeyPress&)> press)
    : loop_(loop), press_(std::move(press)) {}

void TypedKeys::Add(const KeyPress& key) {
    waiting_.push_back(key);
    if (waiting_.size() == 1) {
        PressLater();
    }
}

// The next one is on its way before this one is pressed, which may run the loop until then.
void TypedKeys::PressFirst() {
    const KeyPress key = waiting_.front();
    waiting_.pop_front();
    if (!waiting_.empty()) {
        PressLater();
    }
    press_(key);
}

void TypedKeys::PressLater() {
    loop_.Post([this] { PressFirst(); });
}

}  // namespace horavex
