#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <functional>

#include "platform/event_loop.h"

namespace horavex {

/// The loop of the toolkit. Both waits deliver input, timers and repaints alike. Each turn of it,
/// and a sleep, renews shared looks.
class QtEventLoop : public EventLoop {
public:
    /// onEnd comes right before the end of the process.
    explicit QtEventLoop(std::function<void()> onEnd = [] {});

    /// Of pumps in quick succession, one in five milliseconds delivers.
    void Pump() override;
    void Rest(int milliseconds) override;
    void Sleep(int milliseconds) override;

    /// Status 0. No destructor runs and no window is told.
    [[noreturn]] void EndProcess() override;

private:
    const std::function<void()> onEnd_;
    QTimer wakeUp_;  // an event of its own when no other comes
    QElapsedTimer sincePump_;
};

}  // namespace horavex
