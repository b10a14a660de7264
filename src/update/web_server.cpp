#include "update/web_server.h"

#include "store/register.h"

namespace horavex {

namespace {

std::string Configured(const char* name, const std::string& otherwise) {
    std::string address;
    CRegister().REGGetSetting(kLocalMachine, kSettingsKey, name, otherwise, address);
    return address;
}

}  // namespace

std::string WebServer() {
    return Configured("Web Server", "https://horavex.invalid");
}

std::string HomePage() {
    return Configured("Home Page", WebServer() + "/");
}

}  // namespace horavex
