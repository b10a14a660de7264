#include "update/update_room.h"

#include "update/update_check.h"
#include "update/web_pages.h"
#include "windows/frm_main.h"

namespace horavex {

void BindUpdateRoom() {
    BindUpdateCheck();
    frmMain->mnuUpdate.onClick = Update;
    frmMain->mnuPopVisitWebSite.onClick = mnuPopVisitWebSite_Click;
}

}  // namespace horavex
