#include <cstdlib>

#include "athan/sound_tools.h"
#include "desktop/application.h"
#include "desktop/desktop_platform.h"
#include "desktop/end_signals.h"
#include "desktop/look/desktop_wishes.h"
#include "desktop/printing/document_desk.h"
#include "desktop/spare_memory.h"
#include "linux/sound/sound_import.h"
#include "platform/fault_box.h"
#include "shell/wiring.h"
#include "windows/frm_main.h"

namespace {

// The start runs before the event loop does, so that its faults have no other boundary. What is
// left after one has no window to be reached by: the program says so and ends.
bool Start() {
    try {
        horavex::WithMemoryFaults([] { horavex::frmMain->Load(); });
        return true;
    } catch (const std::exception& fault) {
        horavex::ShowFault(fault);
        return false;
    }
}

}  // namespace

int main(int argc, char** argv) {
    horavex::Application application(argc, argv);
    const horavex::look::DesktopWishes wishes;
    const horavex::DesktopPlatform platform;
    const horavex::EndSignals signals;
    application.onEnd = [] { horavex::Ports().eventLoop.EndProcess(); };
    horavex::InstallDesktopDocuments();
    horavex::InstallSoundTools({horavex::KindOfSoundFile, horavex::FlacOf});
    horavex::BindWindows();
    horavex::ReturnMemorySoon();
    return Start() ? horavex::Application::exec() : EXIT_FAILURE;
}
