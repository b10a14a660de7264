#include "desktop/ports/qt_event_loop.h"

#include <unistd.h>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <chrono>
#include <thread>
#include <utility>

#include "linux/shared_looks.h"

namespace horavex {

namespace {

constexpr qint64 kShortestGap = 5;  // milliseconds

}  // namespace

QtEventLoop::QtEventLoop(std::function<void()> onEnd) : onEnd_(std::move(onEnd)) {
    wakeUp_.setSingleShot(true);
    wakeUp_.setTimerType(Qt::PreciseTimer);
    // Which of the two comes in front of a turn's events is the dispatcher's affair.
    const auto* dispatcher = QAbstractEventDispatcher::instance();
    using Dispatcher = QAbstractEventDispatcher;
    QObject::connect(dispatcher, &Dispatcher::aboutToBlock, &wakeUp_, SharedLooks::Renew);
    QObject::connect(dispatcher, &Dispatcher::awake, &wakeUp_, SharedLooks::Renew);
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
    SharedLooks::Renew();
}

void QtEventLoop::EndProcess() {
    onEnd_();
    ::_exit(0);
}

}  // namespace horavex
