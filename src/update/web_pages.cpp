#include "update/web_pages.h"

#include "base/int16.h"
#include "base/text.h"
#include "platform/platform.h"
#include "store/register.h"
#include "update/connection_probes.h"

namespace horavex {

namespace {

constexpr std::string_view kMark = "{address}";

bool IsWebAddress(const std::string& address) {
    const std::string small = AsciiLower(address);
    return small.starts_with("http://") || small.starts_with("https://");
}

std::string Configured(const char* name, const std::string& otherwise) {
    std::string address;
    CRegister().REGGetSetting(kLocalMachine, kSettingsKey, name, otherwise, address);
    return IsWebAddress(address) ? address : otherwise;
}

}  // namespace

std::string WebServer() {
    return Configured("Web Server", "https://horavex.invalid");
}

std::string HomePage() {
    return Configured("Home Page", WebServer() + "/");
}

std::string UpdateKey() {
    std::string key;
    CRegister().REGGetSetting(kLocalMachine, kSettingsKey, "Update Key", "", key);
    return key;
}

std::string WithWebAddress(std::string text) {
    if (const std::size_t at = text.find(kMark); at != std::string::npos) {
        text.replace(at, kMark.size(), WebServer() + "/");
    }
    return text;
}

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
