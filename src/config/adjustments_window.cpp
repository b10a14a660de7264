#include "config/adjustments_window.h"

#include "base/program_state.h"
#include "config/adjustments_display.h"
#include "config/commit.h"
#include "config/wizard.h"
#include "forms/edited_values.h"
#include "lang/form_language.h"
#include "lang/language_pack.h"
#include "lang/own_digits.h"
#include "store/face_options.h"
#include "store/save_change.h"
#include "store/start_options.h"
#include "windows/frm_adjust.h"
#include "windows/frm_main.h"
#include "windows/frm_wizard.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

Adjustments edited;  // what the window shows
EditedValues values([] { ShowAdjustments(edited); });

const ProgramStateReset reset([] {
    edited = {};
    values.Reset();
});

void BindBars() {
    AdjustForm& form = *frmAdjust;
    values.BindBar(form.hsFajrAngle, edited.fajrAngle, kStepsPerDegree);
    values.BindBar(form.hsIshaAngle, edited.ishaAngle, kStepsPerDegree);
    values.BindBar(form.hsMaghribAngle, edited.options.maghribAngle, kStepsPerDegree);
    values.BindBar(form.hsIshaInterval, edited.options.ishaInterval);
    values.BindBar(form.hsIshaRamadan, edited.options.ishaIntervalRamadan);
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        values.BindBar(form.hsOffset(static_cast<int>(prayer)), edited.options.offsets[prayer]);
    }
}

void ChooseMethod() {
    if (const Authority* method = MethodInRow(frmAdjust->cboMethod.ListIndex())) {
        TakeMethod(*method, edited);
    }
}

void ChooseCalendar() {
    edited.options.hijri = static_cast<HijriSource>(frmAdjust->cboCalendar.ListIndex());
    edited.options.hijriAdjustment = frmAdjust->cboDays.ListIndex() - kNoDaysAdded;
}

/// A language without digits of its own leaves the choice as it is.
void OfferOwnDigits() {
    CheckBox& box = frmAdjust->chkOwnDigits;
    box.SetValue(ReadOption(option::kOwnDigits));
    box.SetEnabled(PackHasOwnDigits());
    if (!PackHasOwnDigits()) {
        box.SetToolTipText(GetLangString("adjustments", "NoOwnDigits",
                                         "The language in use has no digits of its own"));
    }
}

void TakeOwnDigits() {
    const int chosen = frmAdjust->chkOwnDigits.Value();
    SaveChange(option::kOwnDigits, chosen, 0);
    ShowOwnDigits(chosen != 0);
}

void frmAdjust_Load() {
    TranslateOnLoad(*frmAdjust);
    FillAdjustmentLists();
    edited = AcceptedAdjustments();
    values.Show();
    OfferOwnDigits();
    frmAdjust->chkShowRunning.SetValue(ReadOption(option::kShowRunning));
}

void cmdOK_Click() {
    if (SetAdjustments(edited)) {
        TakeOwnDigits();
        SaveChange(option::kShowRunning, frmAdjust->chkShowRunning.Value(),
                   option::kShowRunning.base);
        frmAdjust->Unload();
    }
}

/// A commit has yet to say what becomes of the window.
void frmAdjust_QueryUnload(CloseRequest& request) {
    request.cancel = request.reason == CloseReason::kUser && CommitIsRunning();
}

void BindControls() {
    AdjustForm& form = *frmAdjust;
    BindBars();
    form.cboMethod.onClick = values.Editing(ChooseMethod);
    values.BindCheck(form.chkSunOfTheDay, edited.options.sunOfTheDay);
    values.BindCheck(form.chkAroundTheDay, edited.options.aroundTheDay);
    values.BindChoice(form.cboRule, edited.options.highLatitude);
    form.cboCalendar.onClick = values.Editing(ChooseCalendar);
    form.cboDays.onClick = values.Editing(ChooseCalendar);
    form.cmdReset.onClick = values.Editing([] { edited.options = {}; });
    form.cmdOK.onClick = cmdOK_Click;
    form.cmdCancel.onClick = [] { frmAdjust->Unload(); };
}

}  // namespace

/// A wizard that is open has choices of its own waiting: it comes up instead.
void OpenAdjustments(Form& owner) {
    if (frmWizard->IsLoaded()) {
        ShowWizard();
    } else if (!CommitIsRunning()) {
        frmAdjust->ShowModal(&owner);
    }
}

void BindAdjustmentsWindow() {
    BindControls();
    frmAdjust->onLoad = frmAdjust_Load;
    frmAdjust->onCloseRequest = frmAdjust_QueryUnload;
    frmMain->mnuAdjustments.onClick = [] { OpenAdjustments(*frmMain); };
    frmMain->mnuPopAdjustments.onClick = [] { OpenAdjustments(*frmMain); };
    HoravexMainForm->cmdAdjustments.onClick = [] { OpenAdjustments(*HoravexMainForm); };
}

}  // namespace horavex
