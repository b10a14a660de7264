#pragma once

#include <QApplication>
#include <functional>

namespace horavex {

/// The last of the event boundaries: a fault that nothing before it stopped is told to the user.
/// Windows that close do not end the program.
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
