#include "calendar/date_conversion_window.h"

#include <optional>

#include "base/int16.h"
#include "base/number_text.h"
#include "base/program_state.h"
#include "base/text.h"
#include "calendar/current_calendar.h"
#include "calendar/date_entry.h"
#include "calendar/date_guard.h"
#include "calendar/month_view.h"
#include "forms/show_modal.h"
#include "lang/form_language.h"
#include "platform/platform.h"
#include "windows/frm_date_convert.h"
#include "windows/frm_main.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

constexpr int kFirstGregorianYear = 1990;
constexpr int kLastGregorianYear = 2050;
constexpr int kFirstHijriYear = 1400;
constexpr int kLastHijriYear = 1450;

std::int16_t savedCalendar = kGregorianCalendar;
std::optional<MonthView> monthView;  // as long as the window is loaded
DateGuard guard;
bool activated = false;

const ProgramStateReset reset([] {
    savedCalendar = kGregorianCalendar;
    monthView.reset();
    activated = false;
});

std::int16_t NumberIn(const ComboBox& combo) {
    return RoundToInt16(TextToNumber(Trim(combo.Text())));
}

// Nothing shows the day yet; it is ready for a view of the month.
void PrepareMonth(int month, std::int16_t year) {
    monthView->CalculateCalendarMonth(month, year);
    monthView->GotoFirstDay();
}

void cmdConvert_Click() {
    const std::int16_t day = NumberIn(frmDateConvert->cboDay);
    const std::int16_t month = NumberIn(frmDateConvert->cboMonth);
    const std::int16_t year = NumberIn(frmDateConvert->cboYear);
    const auto conversion =
        frmDateConvert->choHijri.Value() ? Conversion::kToHijri : Conversion::kToGregorian;
    if (const auto result = ConvertDateEntry(conversion, year, month, day)) {
        frmDateConvert->lblResult.SetCaption(*result);
        PrepareMonth(month, year);
    }
}

void TodaysDate_Click() {
    const Date today = Ports().clock.Today();
    guard.SetDate(DayOf(today), MonthOf(today), YearOf(today));
    frmDateConvert->lblResult.SetCaption("");
    cmdConvert_Click();
}

void ChooseYears(std::int16_t calendar, int first, int last) {
    frmDateConvert->cboYear.Clear();
    FillNumbers(frmDateConvert->cboYear, first, last);
    CurrentCalendar = calendar;
    TodaysDate_Click();
}

void choHijri_Click() {
    ChooseYears(kGregorianCalendar, kFirstGregorianYear, kLastGregorianYear);
}

void choGregorian_Click() {
    ChooseYears(kHijriCalendar, kFirstHijriYear, kLastHijriYear);
}

void TranslateAnew() {
    TranslateOnLoad(*frmDateConvert);
    frmDateConvert->lblResult.SetCaption("");
}

// The first activation's part comes before the conversion of today, so that its result shows.
void frmDateConvert_Load() {
    savedCalendar = CurrentCalendar;
    frmMain->tmrUpdate.SetEnabled(false);
    HoravexMainForm->Timer1.SetEnabled(false);
    HoravexMainForm->UpdateCheckTimer.SetEnabled(false);
    monthView.emplace();
    FillNumbers(frmDateConvert->cboDay, 1, 31);
    FillNumbers(frmDateConvert->cboMonth, 1, 12);
    FillNumbers(frmDateConvert->cboYear, kFirstGregorianYear, kLastGregorianYear);
    TranslateAnew();
    TodaysDate_Click();
    activated = false;
}

void frmDateConvert_Activate() {
    if (activated) {
        TranslateAnew();
    }
    activated = true;
}

void frmDateConvert_Unload() {
    CurrentCalendar = savedCalendar;
    frmMain->tmrUpdate.SetEnabled(true);
    monthView.reset();
}

void Bind() {
    DateConvertForm& form = *frmDateConvert;
    form.onLoad = frmDateConvert_Load;
    form.onActivate = frmDateConvert_Activate;
    form.onUnload = frmDateConvert_Unload;
    form.choHijri.onClick = choHijri_Click;
    form.choGregorian.onClick = choGregorian_Click;
    form.cmdConvert.onClick = cmdConvert_Click;
    form.TodaysDate.onClick = TodaysDate_Click;
    form.cmdClose.onClick = [] { frmDateConvert->Unload(); };
    guard.Bind(form.cboDay, form.cboMonth, form.cboYear);
}

}  // namespace

void ShowDateConversion() {
    Bind();
    ShowModalOrUnload(*frmDateConvert, &*frmMain);
}

}  // namespace horavex
