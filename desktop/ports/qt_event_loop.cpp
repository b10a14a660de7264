#include "desktop/ports/qt_event_loop.h"

#include <unistd.h>

#include <QCoreApplication>
#include <chrono>
#include <thread>

namespace horavex {

QtEventLoop::QtEventLoop() {
    wakeUp_.setSingleShot(true);
    wakeUp_.setTimerType(Qt::PreciseTimer);
}

void QtEventLoop::Pump() {
    QCoreApplication::processEvents();
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
    ::_exit(0);
}

}  // namespace horavex
