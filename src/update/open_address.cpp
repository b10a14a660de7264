#include "update/open_address.h"

#include "base/flag.h"
#include "platform/platform.h"
#include "update/connection_probes.h"
#include "update/web_server.h"

namespace horavex {

void OpenIt(const std::string& target) {
    Ports().shell.OpenAddress(target);
}

void OpenPage(const std::string& address) {
    if (IsOnline() == kFalse) {
        Ports().dialogs.ShowMessage(GetConnectionSummary(), "", MessageIcon::kNone);
        return;
    }
    OpenIt(address);
}

void mnuPopVisitWebSite_Click() {
    OpenPage(WebServer() + "/");
}

void AboutUpdateButton_Click() {
    OpenPage(HomePage());
}

}  // namespace horavex
