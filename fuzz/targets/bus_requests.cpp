#include "base/fault.h"
#include "fuzz/input.h"
#include "fuzz/target.h"
#include "fuzz/targets/targets.h"
#include "shell/public_state.h"
#include "shell/tick.h"
#include "shell/wiring.h"
#include "support/built_files.h"
#include "support/test_platform.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

/// What others ask of the program, in any order, with any number and with time between.
void Ask(TestPlatform& platform, FuzzInput& input) {
    const Broadcast& asked = platform.broadcast;
    switch (input.TakeByte() % 7) {
        case 0:
            return asked.onShow();
        case 1:
            return asked.onHide();
        case 2:
            return asked.onAthanNow();
        case 3:
            return asked.onStopAthan();
        case 4:
            return asked.onQuiet(input.TakeInt16());
        case 5:
            return asked.onQuiet(input.TakeInt16() << 16);
        default:
            platform.clock.Set(platform.clock.Now() + input.TakeInt16() / kSecondsPerDay);
            tmrUpdate_Timer();
    }
}

}  // namespace

void FuzzBusRequests(ByteView bytes) {
    FuzzInput input(bytes);
    TestPlatform platform;
    platform.files = BuiltFiles();
    BindWindows();
    platform.registry.CreateKey("Software\\Horavex\\Settings");
    platform.registry.SetValue("Software\\Horavex\\Settings", "Isha Dep Angle", "18");
    frmMain->Load();
    while (!input.IsEmpty()) {
        RunStep([&] { Ask(platform, input); });
        Require(PublicState().moments.size() == 6, "a day has six times");
    }
}

}  // namespace horavex
