#include "engine/limit_message.h"

#include <string>

#include "base/program_version.h"
#include "engine/angle.h"
#include "platform/platform.h"
#include "store/settings_record.h"
#include "store/text_table.h"

namespace horavex {

namespace {

std::string Text(TextEntry entry) {
    return TextItem(entry, ActiveSettings.Language);
}

/// The three closing entries of a message, which name the remedy.
struct Remedy {
    TextEntry entries[3];
};

Remedy RemedyOf(char message) {
    switch (message) {
        case 'A':
            return {{TextEntry::kOrReduce, TextEntry::kDepressionAngleOf, TextEntry::kFajr}};
        case 'B':
            return {{TextEntry::kOrIncrease, TextEntry::kDepressionAngleOf, TextEntry::kFajr}};
        default:
            return {{TextEntry::kPleaseCheck, TextEntry::kOfDaylightSaving, TextEntry::kDays}};
    }
}

}  // namespace

void ShowLimitMessage(char message) {
    const auto [remedy] = RemedyOf(message);
    Ports().dialogs.ShowMessage(Text(TextEntry::kYearImpossible) + Crlf + Crlf +
                                    Text(TextEntry::kPleaseCheck) + " " +
                                    Text(TextEntry::kTimeZone) + Crlf + Text(remedy[0]) + " " +
                                    Text(remedy[1]) + " " + Text(remedy[2]),
                                "", MessageIcon::kNone);
}

void InstallUndefinedAngleReport() {
    SetUndefinedAngleHandler([] {
        const std::int16_t language = ActiveSettings.Language;
        Ports().dialogs.ShowMessage(TextItem(TextEntry::kUndefinedAngle, language) + Crlf +
                                        TextItem(TextEntry::kProgramCloses, language),
                                    kSoftwareTitle, MessageIcon::kCritical);
        Ports().eventLoop.EndProcess();
    });
}

}  // namespace horavex
