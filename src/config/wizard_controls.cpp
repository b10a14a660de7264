#include "config/wizard_controls.h"

#include <initializer_list>
#include <utility>

#include "base/int16.h"
#include "config/angle_controls.h"
#include "config/automatic_zone.h"
#include "config/settings_display.h"
#include "config/wizard_place.h"
#include "config/wizard_preview.h"
#include "config/working_options.h"
#include "config/zone_box.h"
#include "store/settings_record.h"
#include "windows/frm_wizard.h"

namespace horavex {

namespace {

void hsDepr_Change() {
    Settings.FajrAngle = AngleOnSliders(frmWizard->hsDepr, frmWizard->hsDepr1);
    ShowWizardAngles();
    SetTodayPrayerTimes();
}

void hsDepr2_Change() {
    IshaAngle = AngleOnSliders(frmWizard->hsDepr2, frmWizard->hsDepr21);
    ShowWizardAngles();
    SetTodayPrayerTimes();
}

void hsBegin_Change() {
    Settings.DstStart = ToInt16(frmWizard->hsBegin.Value() + 1);
    frmWizard->lblBegin.SetCaption(DayText(Settings.DstStart));
    ZoneWasEdited();
}

void hsEnd_Change() {
    Settings.DstEnd = ToInt16(frmWizard->hsEnd.Value() + 1);
    frmWizard->lblEnd.SetCaption(DayText(Settings.DstEnd));
    ZoneWasEdited();
}

void chkDayLT_Click() {
    Settings.DstEnabled = ToInt16(frmWizard->chkDayLT.Value());
    ShowWizardDaylight();
    ZoneWasEdited();
}

void txtTimeZone_Change() {
    ZoneWasEdited();
    SetTodayPrayerTimes();
}

void txtTimeZone_GotFocus() {
    frmWizard->lastTimeZoneText = frmWizard->txtTimeZone.Text();
}

void txtTimeZone_KeyUp() {
    GuardZone(frmWizard->txtTimeZone, frmWizard->lastTimeZoneText);
}

void cboMethod_Choose() {
    const PreviewHold hold;
    if (cboMethod_Click(*frmWizard)) {
        ShowPlaceOnWizard();
        SetTodayPrayerTimes();
    }
}

/// A handler of the open wizard.
Handler WhileOpen(Handler handler) {
    return [handler = std::move(handler)] {
        if (frmWizard->IsLoaded()) {
            handler();
        }
    };
}

void BindRange(MovableRange& range, void (*change)()) {
    range.onChange = range.onScroll = WhileOpen(change);
}

void BindAsrRatio() {
    frmWizard->optAsrRatio.Bind([](OptionButton& option) {
        option.onClick = WhileOpen([&option] {
            Settings.AsrRatio = option.Index();
            SetTodayPrayerTimes();
        });
    });
}

}  // namespace

void BindWizardControls() {
    WizardForm& form = *frmWizard;
    BindRange(form.hsDepr, hsDepr_Change);
    BindRange(form.hsDepr1, hsDepr_Change);
    BindRange(form.hsDepr2, hsDepr2_Change);
    BindRange(form.hsDepr21, hsDepr2_Change);
    BindRange(form.hsBegin, hsBegin_Change);
    BindRange(form.hsEnd, hsEnd_Change);
    BindAsrRatio();
    form.chkDayLT.onClick = WhileOpen(chkDayLT_Click);
    form.cboMethod.onClick = WhileOpen(cboMethod_Choose);
    form.txtTimeZone.onChange = WhileOpen(txtTimeZone_Change);
    form.txtTimeZone.onGotFocus = txtTimeZone_GotFocus;
    form.txtTimeZone.onKeyUp = txtTimeZone_KeyUp;
}

void ShowWizardAngles() {
    frmWizard->lblDepr.SetCaption(AngleText(Settings.FajrAngle));
    frmWizard->lblDepr1.SetCaption(AngleText(IshaAngle));
    ShowMethod(*frmWizard);
}

void ShowWizardDaylight() {
    WizardForm& form = *frmWizard;
    for (Control* control :
         std::initializer_list<Control*>{&form.hsBegin, &form.lblBeginAt, &form.lblBegin,
                                         &form.hsEnd, &form.lblEndAT, &form.lblEnd}) {
        control->SetEnabled(Settings.DstEnabled == 1);
    }
}

}  // namespace horavex
