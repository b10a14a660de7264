#include "base/fault.h"
#include "fuzz/input.h"
#include "fuzz/target.h"
#include "fuzz/targets/targets.h"
#include "support/test_platform.h"
#include "update/update_check.h"

namespace horavex {

void FuzzUpdateBody(ByteView input) {
    TestPlatform platform;
    platform.network.connection = {true, kLanConnection};
    platform.network.answer = [input] { return StringOf(input); };
    ClearUpdateFile();
    RunStep(CheckForUpdate);
    Require(platform.dialogs.messages.size() == 1, "a check ends in one message");
    RunStep(CheckForUpdateSilently);
    Require(platform.desktop.calls.empty(), "nothing is run or opened");
}

}  // namespace horavex
