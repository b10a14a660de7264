#include "desktop/application.h"

#include "desktop/accessible/assistive_tools.h"
#include "desktop/look/look.h"
#include "desktop/ports/emblem.h"
#include "platform/fault_box.h"

namespace horavex {

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
    setApplicationName(QStringLiteral("Horavex"));
    setDesktopFileName(QStringLiteral("horavex"));
    look::PutOn();
    setWindowIcon(Emblem());
    setQuitOnLastWindowClosed(false);
    TellAssistiveTools();
    setLayoutDirection(Qt::LeftToRight);  // each window takes its own from its captions
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& fault) {
        ShowFault(fault);
        return true;
    }
}

// The toolkit would first ask each window to close, and they only hide.
bool Application::event(QEvent* event) {
    if (event->type() == QEvent::Quit && onEnd) {
        onEnd();
        return true;
    }
    return QApplication::event(event);
}

}  // namespace horavex
