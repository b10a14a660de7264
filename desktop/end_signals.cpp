#include "desktop/end_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QEvent>
#include <csignal>
#include <system_error>

namespace horavex {

namespace {

constexpr int kSignals[] = {SIGTERM, SIGINT, SIGHUP};

// A pipe to ourselves: its write end is what a signal's handler may touch.
int ends[2] = {-1, -1};

void OnSignal(int) {
    const int error = errno;
    [[maybe_unused]] const ::ssize_t written = ::write(ends[1], "", 1);
    errno = error;
}

// A signal that whoever started us wants ignored stays so: programs in the background of a shell
// are not meant to end by its interrupt key.
bool IsIgnored(int number) {
    struct sigaction present = {};
    ::sigaction(number, nullptr, &present);
    return present.sa_handler == SIG_IGN;
}

void Handle(void (*handler)(int)) {
    for (const int number : kSignals) {
        struct sigaction action = {};
        action.sa_handler = handler;
        action.sa_flags = SA_RESTART;
        if (!IsIgnored(number)) {
            ::sigaction(number, &action, nullptr);
        }
    }
}

}  // namespace

EndSignals::EndSignals() {
    if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) {
        throw std::system_error(errno, std::generic_category(), "pipe");
    }
    notifier_ = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] {
        notifier_->setEnabled(false);
        QCoreApplication::postEvent(QCoreApplication::instance(), new QEvent(QEvent::Quit));
    });
    Handle(OnSignal);
}

EndSignals::~EndSignals() {
    Handle(SIG_DFL);
    notifier_.reset();
    ::close(ends[0]);
    ::close(ends[1]);
}

}  // namespace horavex
