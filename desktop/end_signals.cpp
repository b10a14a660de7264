#include "desktop/end_signals.h"

#include <QCoreApplication>
#include <QEvent>

namespace horavex {

EndSignals::EndSignals() {
    QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this] {
        notifier_.setEnabled(false);
        QCoreApplication::postEvent(QCoreApplication::instance(), new QEvent(QEvent::Quit));
    });
}

}  // namespace horavex
