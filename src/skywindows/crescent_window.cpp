#include "skywindows/crescent_window.h"

#include <algorithm>
#include <optional>

#include "base/program_state.h"
#include "base/script.h"
#include "calendar/date_words.h"
#include "engine/center_on_screen.h"
#include "engine/ruled_year.h"
#include "forms/edited_values.h"
#include "forms/show_modal.h"
#include "lang/form_language.h"
#include "platform/platform.h"
#include "sky/map_drawing.h"
#include "skywindows/crescent_words.h"
#include "skywindows/evenings_page.h"
#include "timetables/drawing_file.h"
#include "windows/frm_crescent.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

constexpr int kMonths = 12;  // in a year
constexpr int kLastMonth = (kLastCrescentYear - kFirstCrescentYear + 1) * kMonths - 1;
constexpr int kRowsATick = 5;  // of the map: some hundredths of a second

/// What the window shows: the place as it is accepted when the window comes up.
struct Shown {
    SkyPlace place;
    int monthNumber;  // months since the first that can be chosen
    MonthEvenings month;
    std::size_t evening;
    Criterion criterion;
    std::optional<VisibilityMap> map;

    HijriDate First() const {
        return {kFirstCrescentYear + monthNumber / kMonths, monthNumber % kMonths + 1, 1};
    }
};
std::optional<Shown> shown;

/// It lives no longer than the place.
Lookout LookoutAt(const SkyPlace& place) {
    const ZoneClock& clock = place.clock;
    return {place.observer, [&clock](Date local) { return clock.UniversalOf(local); },
            [&clock](Date universal) { return clock.LocalOf(universal); }};
}

void ShowAll();
EditedValues values(ShowAll);

const ProgramStateReset reset([] {
    shown.reset();
    values.Reset();
});

// What is chosen.

void TakeEvening(std::size_t evening) {
    shown->evening = evening;
    const Date day = SolarDay(LookoutAt(shown->place), shown->month.evenings.at(evening).day);
    shown->map.emplace(Ports().almanac, day, shown->month.newMoon);
}

void TakeMonth(int number) {
    shown->monthNumber = std::clamp(number, 0, kLastMonth);
    const HijriDate first = shown->First();
    shown->month =
        EveningsOfMonth(Ports().almanac, LookoutAt(shown->place), first.year, first.month);
    TakeEvening(EveningOfSight(shown->month, shown->criterion));
}

void Turn(int step) {
    TakeMonth(shown->monthNumber + step);
}

void TakeChosenMonth() {
    TakeMonth(frmCrescent->cboYear.ListIndex() * kMonths + frmCrescent->cboMonth.ListIndex());
}

/// The one behind today's by the calendar of the program.
void TakeComingMonth() {
    const HijriDate today = RuledHijriDate(Ports().clock.Today());
    TakeMonth((today.year - kFirstCrescentYear) * kMonths + today.month);
}

// What is shown.

MapText TextOfMap() {
    return MapTextOf(shown->First(), *shown->map, shown->criterion);
}

Drawing DrawnMap() {
    return MapDrawing(*shown->map, shown->criterion, shown->place.observer, TextOfMap());
}

void ShowMap() {
    CrescentForm& form = *frmCrescent;
    form.picMap.drawing = DrawnMap();
    form.picMap.Refresh();
    form.prgMap.SetMax(shown->map->Rows());
    form.prgMap.SetValue(shown->map->ComputedRows());
    form.cmdSaveMap.SetEnabled(shown->map->IsComplete());
    form.tmrMap.SetEnabled(!shown->map->IsComplete());
}

void ShowEvenings() {
    ComboBox& list = frmCrescent->cboEvening;
    list.Clear();
    for (const DatedEvening& evening : shown->month.evenings) {
        const std::string date = CalendarDate(evening.day);
        list.AddItem(KeptTogether(date, date));  // lists do not turn round by themselves
    }
    list.SetListIndex(static_cast<int>(shown->evening));
}

void ShowChoices() {
    CrescentForm& form = *frmCrescent;
    form.cboYear.SetListIndex(shown->monthNumber / kMonths);
    form.cboMonth.SetListIndex(shown->monthNumber % kMonths);
    form.cboCriterion.SetListIndex(static_cast<int>(shown->criterion));
    form.cmdPrev.SetEnabled(shown->monthNumber > 0);
    form.cmdNext.SetEnabled(shown->monthNumber < kLastMonth);
    ShowEvenings();
}

void FillTable(Grid& grid, const SkyPage& page) {
    grid.heads = page.heads;
    grid.rows = page.rows;
    grid.figures = page.figures;
    grid.Refresh();
}

void ShowAll() {
    CrescentForm& form = *frmCrescent;
    ShowChoices();
    form.lblShownPlace.SetCaption(shown->place.name);
    form.lblShownNewMoon.SetCaption(NewMoonText(shown->place.clock, shown->month.newMoon));
    FillTable(form.grdEvenings, EveningsPage(shown->month, shown->place, shown->evening));
    FillTable(form.grdDays, FirstDaysPage(FirstDaysOf(shown->month, shown->First())));
    ShowMap();
}

// What happens.

void tmrMap_Timer() {
    for (int row = 0; row < kRowsATick; ++row) {
        shown->map->ComputeRow();
    }
    ShowMap();
}

void cmdSaveMap_Click() {
    const FileRequest request = {TextOfMap().title, "SVG|*.svg|PNG|*.png", 1};
    const std::string path = Ports().dialogs.SaveFile(request, ".svg");
    if (!path.empty()) {
        WriteDrawing(path, DrawnMap(), kMapWidth, kMapHeight);
    }
}

void FillLists() {
    CrescentForm& form = *frmCrescent;
    for (int month = 1; month <= kMonths; ++month) {
        form.cboMonth.AddItem(HijriMonthName(month));
    }
    for (int year = kFirstCrescentYear; year <= kLastCrescentYear; ++year) {
        form.cboYear.AddItem(std::to_string(year));
    }
    form.cboCriterion.AddItem(CriterionName(Criterion::kYallop));
    form.cboCriterion.AddItem(CriterionName(Criterion::kOdeh));
}

void frmCrescent_Load() {
    TranslateOnLoad(*frmCrescent);
    FillLists();
    shown.emplace(Shown{AcceptedSkyPlace(), 0, {}, 0, Criterion::kYallop, std::nullopt});
    TakeComingMonth();
    values.Show();
    CenterOnScreen(*frmCrescent);
}

void BindChoices(CrescentForm& form) {
    form.cboMonth.onClick = values.Editing(TakeChosenMonth);
    form.cboYear.onClick = values.Editing(TakeChosenMonth);
    form.cboEvening.onClick = values.Editing(
        [] { TakeEvening(static_cast<std::size_t>(frmCrescent->cboEvening.ListIndex())); });
    form.cboCriterion.onClick = values.Editing(
        [] { shown->criterion = static_cast<Criterion>(frmCrescent->cboCriterion.ListIndex()); });
    form.grdEvenings.onPage = [](int step) { values.Editing([step] { Turn(step); })(); };
    form.cmdPrev.onClick = values.Editing([] { Turn(-1); });
    form.cmdNext.onClick = values.Editing([] { Turn(1); });
}

}  // namespace

void OpenCrescent(Form& owner) {
    ShowModalOrUnload(*frmCrescent, &owner);
}

void BindCrescentWindow() {
    CrescentForm& form = *frmCrescent;
    form.onLoad = frmCrescent_Load;
    form.onUnload = [] { shown.reset(); };
    BindChoices(form);
    form.tmrMap.onTimer = tmrMap_Timer;
    form.cmdSaveMap.onClick = cmdSaveMap_Click;
    form.cmdClose.onClick = [] { frmCrescent->Unload(); };
    frmMain->mnuCrescent.onClick = [] { OpenCrescent(*frmMain); };
}

}  // namespace horavex
