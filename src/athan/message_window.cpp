#include "athan/message_window.h"

#include "athan/athan_state.h"
#include "athan/sound.h"
#include "base/int16.h"
#include "base/program_version.h"
#include "engine/center_on_screen.h"
#include "geo/city_picker.h"
#include "lang/form_language.h"
#include "store/settings_record.h"
#include "store/text_table.h"
#include "windows/f_message.h"

namespace horavex {

namespace {

void fMessage_Load() {
    TranslateOnLoad(*fMessage);
    fMessage->SetCaption(kSoftwareTitle);
    fMessage->CmdCancel.SetCaption(TextItem(TextEntry::kCancel, ActiveSettings.Language));
    alarmDismissed = kFalse;
    CenterOnScreen(*fMessage);
}

void cmdAlarmClose_Click() {
    alarmDismissed = kTrue;
    fMessage->Unload();
}

void CmdCancel_Click() {
    alarmDismissed = kTrue;
    StopSound();
}

/// Whatever takes the alarm's message away dismisses the alarm. A year that is calculated takes it
/// and silences an athan, too.
void fMessage_Unload() {
    if (alarmActive != kFalse) {
        alarmDismissed = kTrue;
    }
    StopSound();
}

/// A user who closes the window cancels the list that is being filled.
void fMessage_QueryUnload(const CloseRequest& request) {
    if (request.reason == CloseReason::kUser) {
        CancelLoad = kTrue;
    }
}

}  // namespace

void BindMessageWindow() {
    fMessage->onLoad = fMessage_Load;
    fMessage->onUnload = fMessage_Unload;
    fMessage->onCloseRequest = fMessage_QueryUnload;
    fMessage->Athan_Sound.onClick = Athan_Sound_Click;
    fMessage->cmdAlarmClose.onClick = cmdAlarmClose_Click;
    fMessage->CmdCancel.onClick = CmdCancel_Click;
}

}  // namespace horavex
