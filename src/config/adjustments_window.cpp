#include "config/adjustments_window.h"

#include "base/program_state.h"
#include "config/adjustments_display.h"
#include "config/commit.h"
#include "config/wizard.h"
#include "lang/form_language.h"
#include "windows/frm_adjust.h"
#include "windows/frm_main.h"
#include "windows/frm_wizard.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

Adjustments edited;    // what the window shows
bool showing = false;  // the program itself moves the controls

const ProgramStateReset reset([] {
    edited = {};
    showing = false;
});

void Show() {
    showing = true;
    ShowAdjustments(edited);
    showing = false;
}

/// A handler of a control: what the user does with it changes the adjustments.
template <class Change>
Handler Editing(Change change) {
    return [change] {
        if (!showing) {
            change();
            Show();
        }
    };
}

/// A bar writes a value while its thumb is dragged, too.
template <class Value>
void BindBar(ScrollBar& bar, Value& value, double stepsPerUnit = 1.0) {
    bar.onChange = Editing(
        [&bar, &value, stepsPerUnit] { value = static_cast<Value>(bar.Value() / stepsPerUnit); });
    bar.onScroll = bar.onChange;
}

void BindBars() {
    AdjustForm& form = *frmAdjust;
    BindBar(form.hsFajrAngle, edited.fajrAngle, kStepsPerDegree);
    BindBar(form.hsIshaAngle, edited.ishaAngle, kStepsPerDegree);
    BindBar(form.hsMaghribAngle, edited.options.maghribAngle, kStepsPerDegree);
    BindBar(form.hsIshaInterval, edited.options.ishaInterval);
    BindBar(form.hsIshaRamadan, edited.options.ishaIntervalRamadan);
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        BindBar(form.hsOffset(static_cast<int>(prayer)), edited.options.offsets[prayer]);
    }
}

void ChooseMethod() {
    if (const Authority* method = MethodInRow(frmAdjust->cboMethod.ListIndex())) {
        TakeMethod(*method, edited);
    }
}

void ChooseRule() {
    edited.options.highLatitude = static_cast<HighLatitudeRule>(frmAdjust->cboRule.ListIndex());
}

void ChooseCalendar() {
    edited.options.hijri = static_cast<HijriSource>(frmAdjust->cboCalendar.ListIndex());
    edited.options.hijriAdjustment = frmAdjust->cboDays.ListIndex() - kNoDaysAdded;
}

void frmAdjust_Load() {
    TranslateOnLoad(*frmAdjust);
    FillAdjustmentLists();
    edited = AcceptedAdjustments();
    Show();
}

void cmdOK_Click() {
    if (SetAdjustments(edited)) {
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
    form.cboMethod.onClick = Editing(ChooseMethod);
    form.chkSunOfTheDay.onClick =
        Editing([] { edited.options.sunOfTheDay = frmAdjust->chkSunOfTheDay.Value() == 1; });
    form.chkAroundTheDay.onClick =
        Editing([] { edited.options.aroundTheDay = frmAdjust->chkAroundTheDay.Value() == 1; });
    form.cboRule.onClick = Editing(ChooseRule);
    form.cboCalendar.onClick = Editing(ChooseCalendar);
    form.cboDays.onClick = Editing(ChooseCalendar);
    form.cmdReset.onClick = Editing([] { edited.options = {}; });
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
