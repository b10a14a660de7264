#include "lang/menu_bar.h"

#include "lang/language_pack.h"
#include "platform/platform.h"

namespace horavex {

namespace {

struct MenuTitle {
    const char* variable;
    const char* key;  // in the section of the face's window
};

constexpr MenuTitle kTitles[] = {{"_root.azan", "mnuAthan"},
                                 {"_root.settings", "mnuSettings"},
                                 {"_root.tools", "mnuTools"},
                                 {"_root.help", "mnuHelp"}};

}  // namespace

void SetMenuBar(const std::string& packPath) {
    for (const MenuTitle& title : kTitles) {
        Ports().face.SetVariable(
            title.variable, ReadPackString(packPath, "frmMain", title.key, "", kPackNameBuffer));
    }
}

}  // namespace horavex
