#include "desktop/ports/qt_event_loop.h"

#include <unistd.h>

#include <QCoreApplication>
#include <chrono>
#include <thread>
#include <utility>

namespace horavex {

namespace {

constexpr qint64 kShortestGap = 5;  // milliseconds

}  // namespace

QtEventLoop::QtEventLoop(std::function<void()> onEnd) : onEnd_(std::move(onEnd)) {
    wakeUp_.setSingleShot(true);
    wakeUp_.setTimerType(Qt::PreciseTimer);
}

// Routines pump after each item of a list, thousands of times a second; drawing the windows as
// often would take most of the time.
void QtEventLoop::Pump() {
    if (sincePump_.isValid() && sincePump_.elapsed() < kShortestGap) {
        return;
    }
    QCoreApplication::processEvents();
    sincePump_.start();
}

void QtEventLoop::Rest(int milliseconds) {
    wakeUp_.start(milliseconds);
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    wakeUp_.stop();
}

void QtEventLoop::Sleep(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

void QtEventLoop::EndProcess() {
    onEnd_();
    ::_exit(0);
}

}  // namespace horavex
