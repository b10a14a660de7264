#pragma once

#include <QApplication>
#include <functional>

namespace horavex {

/// The event boundary: a fault that leaves an event's handler is told to the user and goes no
/// further. Windows that close do not end the program.
class Application : public QApplication {
public:
    Application(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;

    /// The user's session ends, or something asks the program to.
    std::function<void()> onEnd;

protected:
    bool event(QEvent* event) override;
};

}  // namespace horavex
