#include "terminal/service/service.h"

#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <iostream>
#include <utility>

#include "athan/athan_state.h"
#include "athan/athan_watch.h"
#include "athan/azan_window.h"
#include "base/fault.h"
#include "base/int16.h"
#include "base/program_version.h"
#include "linux/signal_pipe.h"
#include "linux/system_clock.h"
#include "platform/absent_desktop.h"
#include "shell/public_state.h"
#include "shell/wiring.h"
#include "store/stored_values.h"
#include "terminal/ports/faceless_forms.h"
#include "terminal/service/service_broadcast.h"
#include "terminal/service/service_dialogs.h"
#include "terminal/service/service_notices.h"
#include "terminal/terminal_platform.h"
#include "windows/f_message.h"
#include "windows/frm_main.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

constexpr int kRefused = 2;        // another start would find the same
constexpr int kUnseenMinutes = 1;  // until a silent athan ends, so that the next one comes

/// What stands in for a face.
class ServiceParts {
public:
    ServiceParts(PollEventLoop& loop, const ServiceLog& log)
        : post_([&loop](PollEventLoop::Action event) { loop.Post(std::move(event)); }),
          dialogs_(log, post_),
          notices_(loop, log),
          broadcast_(log, post_) {}

    /// The process is about to end.
    void Leave() { notices_.Leave(); }

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
    ServiceNotices notices_;
    ServiceBroadcast broadcast_;
};

/// Ends with a line in the log, and nothing of an athan behind it.
void End(const std::string& why, const ServiceLog& log) {
    LeaveSession();
    Ports().audioPlayer.Stop();
    log.Write(Severity::kNotice, "ends: " + why);
    Ports().eventLoop.EndProcess();
}

/// Without a face nothing can be shown, and what sounds is stopped, the alarm as well as an athan.
void BindToFacelessBus() {
    Broadcast& broadcast = Ports().broadcast;
    broadcast.onShow = nullptr;
    broadcast.onHide = nullptr;
    broadcast.onStopAthan = [stopAthan = broadcast.onStopAthan] {
        stopAthan();
        if (alarmActive != kFalse) {
            fMessage->cmdAlarmClose.UserClick();
        }
    };
}

/// The start runs before the event loop does, so that its faults have no other boundary.
bool Start(const ServiceLog& log) {
    try {
        WithMemoryFaults([] { frmMain->Load(); });
        return true;
    } catch (const std::exception& fault) {
        log.Write(Severity::kError, fault.what());
        return false;
    }
}

/// A place has been chosen, and its year could be worked out.
bool HasSettings() {
    return !HoravexMainForm->Visible();
}

int RefuseWithoutSettings(const ServiceLog& log) {
    log.Write(Severity::kError,
              "no place has been chosen: choose one with horavex-terminal or with horavex");
    return kRefused;
}

int RefuseBesideAnother(const ServiceLog& log) {
    log.Write(Severity::kError, "Horavex is already running in this session");
    return kRefused;
}

void TellStart(const ServiceLog& log) {
    const ToldState state = PublicState();
    log.Write(Severity::kNotice, std::string(kProgramTitle) + " " + FullVersionText() +
                                     " without a face: " + state.place + ", " + state.zone +
                                     "; next " + state.nextPrayer + " at " + state.nextTime);
}

}  // namespace

int RunService() {
    std::signal(SIGPIPE, SIG_IGN);  // a log that nobody reads any more silences no athan
    const ServiceLog log(std::cerr, GoesToJournal(STDERR_FILENO),
                         [] { return SystemClock().Now(); });
    std::function<void()> onEnd;
    PollEventLoop loop([&onEnd] { onEnd(); });
    const FacelessForms forms(loop, [&log](const Form& form) {
        if (&form == &*fMessage && alarmActive != kFalse) {
            log.Write(Severity::kNotice, fMessage->lblMessage2.Caption());
        }
    });
    ServiceParts parts(loop, log);
    onEnd = [&parts] { parts.Leave(); };
    const TerminalPlatform platform(loop, parts.Parts());
    const SignalPipe signals;
    const PollEventLoop::Reader reader(loop, signals.Number(), [&] {
        if (const std::optional<int> signal = signals.Take()) {
            End(std::string("SIG") + ::sigabbrev_np(*signal), log);
        }
    });
    if (Ports().instanceGuard.AnotherIsRunning()) {
        return RefuseBesideAnother(log);
    }
    if (!IshaAngleIsStored()) {
        return RefuseWithoutSettings(log);
    }
    BindWindows();
    BindToFacelessBus();
    EndSilentAthansAfter(kUnseenMinutes);
    if (!Start(log)) {
        return EXIT_FAILURE;
    }
    if (!HasSettings()) {
        return RefuseWithoutSettings(log);
    }
    TellStart(log);
    loop.RunWhile([] { return true; });
    return EXIT_SUCCESS;
}

}  // namespace horavex
