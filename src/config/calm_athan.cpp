#include "config/calm_athan.h"

#include "config/usual_pick.h"
#include "config/working_options.h"
#include "store/athan_options.h"
#include "store/save_change.h"
#include "windows/frm_wizard.h"

namespace horavex {

void OfferCalmAthan() {
    const bool isOffered = IsFirstChoice();
    frmWizard->chkCalmAthan.SetVisible(isOffered);
    frmWizard->chkCalmAthan.SetValue(isOffered ? 1 : 0);
}

void SaveCalmAthan() {
    if (frmWizard->chkCalmAthan.Value() == 1 && AnythingWasAccepted()) {
        SaveChange(option::kAthanOnce, 1, option::kAthanOnce.base);
        SaveChange(option::kSilentMinutes, kCalmMinutes, option::kSilentMinutes.base);
        SaveChange(option::kAlarm, 0, option::kAlarm.base);
    }
}

}  // namespace horavex
