#include "athan/athan_room.h"

#include "athan/athan_alert.h"
#include "athan/athan_settings_window.h"
#include "athan/azan_window.h"
#include "athan/message_window.h"
#include "athan/player.h"
#include "athan/quiet.h"
#include "athan/reminders_window.h"
#include "windows/frm_athan.h"
#include "windows/frm_main.h"
#include "windows/horavex_main_form.h"

namespace horavex {

void BindAthanRoom() {
    BindPlayer();
    BindAzanWindow();
    BindMessageWindow();
    BindAthanSettingsWindow();
    BindRemindersWindow();
    BindQuiet();
    frmMain->mnuThanNow.onClick = [] { sub04F9(Alert::kAthanNow); };
    frmMain->mnuAthanSettings.onClick = [] { frmAthan->ShowModal(&*frmMain); };
    HoravexMainForm->cmdAthan.onClick = [] { frmAthan->ShowModal(&*HoravexMainForm); };
}

}  // namespace horavex
