#include "engine/undefined_angle.h"

#include "engine/angle.h"
#include "platform/platform.h"
#include "store/settings_record.h"
#include "store/text_table.h"

namespace horavex {

void InstallUndefinedAngleReport() {
    SetUndefinedAngleHandler([] {
        const std::int16_t language = ActiveSettings.Language;
        Ports().dialogs.ShowMessage(TextItem(TextEntry::kUndefinedAngle, language) + Crlf +
                                        TextItem(TextEntry::kProgramCloses, language),
                                    "Horavex Prayer Time Software ", MessageIcon::kCritical);
        Ports().eventLoop.EndProcess();
    });
}

}  // namespace horavex
