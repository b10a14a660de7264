#include "shell/shell_room.h"

#include "athan/athan_notice.h"
#include "platform/platform.h"
#include "shell/face_bridge.h"
#include "shell/face_shape.h"
#include "shell/menus.h"
#include "shell/public_state.h"
#include "shell/start.h"
#include "shell/tick.h"
#include "shell/tray_icon.h"
#include "windows/frm_main.h"

namespace horavex {

void BindShellRoom() {
    BindStart();
    BindMenus();
    BindFaceShape();
    BindBroadcast();
    frmMain->tmrUpdate.onTimer = tmrUpdate_Timer;
    Ports().tray.onMessage = traypic_MouseMove;
    Ports().session.onResume = [] {
        if (frmMain->tmrUpdate.Enabled()) {
            tmrUpdate_Timer();
        }
    };
    BindNotices(BringFaceBack);
    Ports().face.onFSCommand = [](const std::string& command, const std::string&) {
        OnFaceCommand(command);
    };
}

}  // namespace horavex
