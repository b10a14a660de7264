#include "terminal/service/service.h"

#include <unistd.h>

#include <cstdlib>
#include <exception>
#include <iostream>
#include <utility>

#include "athan/azan_window.h"
#include "base/fault.h"
#include "linux/signal_pipe.h"
#include "linux/system_clock.h"
#include "platform/absent_desktop.h"
#include "shell/wiring.h"
#include "terminal/ports/faceless_forms.h"
#include "terminal/service/service_dialogs.h"
#include "terminal/terminal_platform.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

/// What stands in for a face.
class ServiceParts {
public:
    ServiceParts(PollEventLoop& loop, const ServiceLog& log)
        : post_([&loop](PollEventLoop::Action event) { loop.Post(std::move(event)); }),
          dialogs_(log, post_),
          broadcast_(post_) {}

    TerminalParts Parts() {
        return {dialogs_, face_, windows_, tray_, shell_, athanFace_, notices_, broadcast_};
    }

private:
    std::function<void(PollEventLoop::Action)> post_;
    ServiceDialogs dialogs_;
    AbsentFace face_;
    AbsentWindows windows_;
    AbsentTray tray_;
    AbsentShell shell_;
    AbsentFace athanFace_;
    AbsentNotices notices_;
    SessionBroadcast broadcast_;
};

// The start runs before the event loop does, so that its faults have no other boundary.
bool Start(const ServiceLog& log) {
    try {
        WithMemoryFaults([] { frmMain->Load(); });
        return true;
    } catch (const std::exception& fault) {
        log.Write(Severity::kError, fault.what());
        return false;
    }
}

}  // namespace

int RunService() {
    const ServiceLog log(std::cerr, GoesToJournal(STDERR_FILENO),
                         [] { return SystemClock().Now(); });
    PollEventLoop loop(StopAthan);
    FacelessForms forms(loop);
    ServiceParts parts(loop, log);
    const TerminalPlatform platform(loop, parts.Parts());
    const SignalPipe signals;
    const PollEventLoop::Reader end(loop, signals.Number(), [&loop] { loop.EndProcess(); });
    BindWindows();
    if (!Start(log)) {
        return EXIT_FAILURE;
    }
    loop.RunWhile([] { return true; });
    return EXIT_SUCCESS;
}

}  // namespace horavex
