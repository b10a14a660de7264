#include "engine/limit_message.h"

#include <string>

#include "engine/angle.h"
#include "platform/platform.h"
#include "store/settings_record.h"
#include "store/text_table.h"

namespace horavex {

namespace {

std::string Text(std::uint16_t entry) {
    return TextItem(entry, ActiveSettings.Language);
}

/// The three closing entries of a message, which name the remedy.
struct Remedy {
    std::uint16_t entries[3];
};

Remedy RemedyOf(char message) {
    switch (message) {
        case 'A':
            return {{65, 42, 6}};
        case 'B':
            return {{64, 42, 6}};
        default:
            return {{63, 34, 47}};
    }
}

}  // namespace

void ShowLimitMessage(char message) {
    const auto [remedy] = RemedyOf(message);
    Ports().dialogs.ShowMessage(Text(62) + Crlf + Crlf + Text(63) + " " + Text(49) + Crlf +
                                    Text(remedy[0]) + " " + Text(remedy[1]) + " " + Text(remedy[2]),
                                "", MessageIcon::kNone);
}

}  // namespace horavex
