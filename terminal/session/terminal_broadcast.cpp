#include "terminal/session/terminal_broadcast.h"

#include "store/settings_record.h"
#include "store/text_table.h"

namespace horavex {

bool TerminalBroadcast::ShowRunning() {
    const bool isShown = SessionBroadcast::ShowRunning();
    lastWords_ =
        isShown ? TextItem(TextEntry::kAlreadyRunning, ActiveSettings.Language) + "\n" : "";
    return isShown;
}

}  // namespace horavex
