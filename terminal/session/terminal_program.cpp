#include "terminal/session/terminal_program.h"

#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <utility>

#include "athan/sound_tools.h"
#include "base/fault.h"
#include "linux/signal_pipe.h"
#include "linux/sound/beep.h"
#include "linux/sound/sound_import.h"
#include "platform/absent_desktop.h"
#include "shell/tray_icon.h"
#include "shell/wiring.h"
#include "terminal/face/athan_sheet.h"
#include "terminal/face/face_sheet.h"
#include "terminal/ports/form_timers.h"
#include "terminal/ports/terminal_dialogs.h"
#include "terminal/ports/terminal_notices.h"
#include "terminal/ports/terminal_shell.h"
#include "terminal/ports/terminal_windows.h"
#include "terminal/screen/curses_screen.h"
#include "terminal/session/frame_pace.h"
#include "terminal/session/terminal_broadcast.h"
#include "terminal/session/typed_keys.h"
#include "terminal/terminal_platform.h"
#include "timetables/document_tools.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

constexpr char32_t kRedraw = U'\f';  // Control-L

/// Everything that stands between the user's terminal and the program.
class TerminalSession {
public:
    TerminalSession()
        : desk_([this](const Cells& cells) { screen_.Show(cells); },
                [this](PollEventLoop::Action draw) { pace_.Later(std::move(draw)); }),
          keys_(loop_, STDIN_FILENO, [this] { TakeKeys(); }),
          signalled_(loop_, signals_.Number(), [this] { TakeSignals(); }) {
        desk_.SetSize(screen_.Rows(), screen_.Columns());
        desk_.onKeyOnEmpty = BringFaceBack;
        face_.onChange = athanFace_.onChange = [this] { desk_.Invalidate(); };
    }

    /// The start runs before the event loop does, so that its faults have no other boundary.
    bool Start() {
        try {
            WithMemoryFaults([] { frmMain->Load(); });
            HideEntriesOfWindows();
            return true;
        } catch (const std::exception& fault) {
            screen_.Leave();
            std::cerr << "horavex-terminal: " << fault.what() << '\n';
            return false;
        }
    }

    void Run() {
        loop_.RunWhile([] { return true; });
    }

private:
    /// A face that is the whole terminal is always in front, and takes no other shape.
    static void HideEntriesOfWindows() {
        for (MenuItem* entry :
             {&frmMain->mnuLine3, &frmMain->mnuSmall, &frmMain->mnuFullScreen, &frmMain->mnuAbove,
              &frmMain->mnuPopFront, &frmMain->mnuLine4, &frmMain->mnuLine7, &frmMain->mnuPopSmall,
              &frmMain->mnuPopFullScreen, &frmMain->mnuPopAbove}) {
            entry->SetVisible(false);
        }
    }

    std::shared_ptr<FormSheet> Special(Form& form, FormSheet::Host& host) {
        if (&form == &*frmMain) {
            return std::make_shared<FaceSheet>(form, host, face_);
        }
        return form.Name() == "frmAzan" ? std::make_shared<AthanSheet>(form, host, athanFace_)
                                        : nullptr;
    }

    // A terminal that has gone reads as ended for ever.
    void TakeKeys() {
        if (!screen_.HasInput()) {
            loop_.EndProcess();
        }
        screen_.ReadKeys([this](const KeyPress& key) { typed_.Add(key); });
    }

    /// Keys go by what is to be seen.
    void Press(const KeyPress& key) {
        desk_.Draw();
        key.Is(kRedraw) ? screen_.Redraw() : desk_.Press(key);
    }

    void TakeSignals() {
        while (const auto signal = signals_.Take()) {
            switch (*signal) {
                case SIGWINCH:
                    TakeSize();
                    break;
                case SIGTSTP:
                    screen_.Leave();
                    ::raise(SIGSTOP);
                    break;
                case SIGCONT:
                    screen_.Return();
                    TakeSize();
                    break;
                default:
                    loop_.EndProcess();
            }
        }
    }

    void TakeSize() {
        screen_.TakeSize();
        desk_.SetSize(screen_.Rows(), screen_.Columns());
    }

    CursesScreen screen_;  // the first to come and the last to go
    SignalPipe signals_{{SIGTERM, SIGINT, SIGQUIT, SIGHUP, SIGWINCH, SIGTSTP, SIGCONT}};
    PollEventLoop loop_{[this] {
        notices_.Leave();
        screen_.Leave();
        std::cerr << broadcast_.LastWords();
    }};
    FramePace pace_{loop_};
    FormTimers timers_{loop_};
    Desk desk_;
    TerminalFace face_;
    TerminalFace athanFace_;
    FormSheets sheets_{
        {desk_, [this](Control& control) { timers_.Update(control); },
         [this](const std::function<bool()>& isSo) { loop_.RunWhile(isSo); }, screen_.HasColours()},
        {[this](Form& form) { timers_.Add(form); }, [this](Form& form) { timers_.Remove(form); }},
        [this](Form& form, FormSheet::Host& host) { return Special(form, host); }};
    horavex::Beep beep_{[this](PollEventLoop::Action action) { loop_.Post(std::move(action)); },
                        [this] { screen_.Beep(); }};
    TerminalDialogs dialogs_{sheets_.Surroundings(), [this] { beep_.Sound(); }};
    TerminalShell shell_{sheets_.Surroundings()};
    TerminalWindows windows_{sheets_, desk_};
    AbsentTray tray_;
    TerminalNotices notices_{loop_};
    TerminalBroadcast broadcast_{
        [this](PollEventLoop::Action action) { loop_.Post(std::move(action)); }};
    TerminalPlatform platform_{
        loop_, {dialogs_, face_, windows_, tray_, shell_, athanFace_, notices_, broadcast_}};
    TypedKeys typed_{loop_, [this](const KeyPress& key) { Press(key); }};
    PollEventLoop::Reader keys_;
    PollEventLoop::Reader signalled_;
};

}  // namespace

int RunTerminalProgram() {
    TerminalSession session;
    InstallSoundTools({KindOfSoundFile, FlacOf});
    const auto sayNoPrinter = [](const PrintedYear&, int) { SayNoPrinter(); };
    InstallDocumentTools({.previewMonth = sayNoPrinter, .printMonth = sayNoPrinter});
    BindWindows();
    Ports().broadcast.onHide = nullptr;
    if (!session.Start()) {
        return EXIT_FAILURE;
    }
    session.Run();
    return EXIT_SUCCESS;
}

}  // namespace horavex
