#include "update/web_server.h"

#include "store/register.h"

namespace horavex {

std::string WebServer() {
    std::string address;
    CRegister().REGGetSetting(kLocalMachine, kSettingsKey, "Web Server", "https://horavex.invalid",
                              address);
    return address;
}

}  // namespace horavex
