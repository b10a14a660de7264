#include "timetables/month_window.h"

#include <algorithm>
#include <optional>

#include "base/fault.h"
#include "base/program_state.h"
#include "base/text.h"
#include "base/unbroken.h"
#include "base/utf8.h"
#include "engine/center_on_screen.h"
#include "engine/moment_text.h"
#include "lang/form_language.h"
#include "platform/platform.h"
#include "timetables/drawing_file.h"
#include "timetables/timetable_file.h"
#include "timetables/year_chart.h"
#include "windows/frm_month.h"
#include "windows/frm_times.h"

namespace horavex {

namespace {

constexpr int kFriday = 5;
constexpr int kMonthPage = 0;
constexpr int kYearPage = 1;

/// What the window shows: taken at its load, since the clock may bring another year meanwhile.
struct Shown {
    Timetable table;
    TimetableWords words;
    int month;  // 1 to 12
};
std::optional<Shown> shown;

const ProgramStateReset reset([] { shown.reset(); });

/// Behind the day and its Hijri date.
constexpr std::size_t kFirstTime = 2;

/// The present month; January in a year that today does not lie in.
int PresentMonth() {
    const CivilDate today = CivilFromDate(Ports().clock.Today());
    return today.year == shown->table.year ? today.month : 1;
}

PrintedYear ToPrint() {
    return {shown->table, shown->words, Ports().clock.Today()};
}

std::string TimeText(const std::optional<Moment>& moment) {
    return moment ? MomentCell(*moment) : "";
}

std::string DayText(const TimetableDay& day) {
    return std::to_string(CivilFromDate(day.date).day) + " " + shown->words.WeekdayOf(day.date);
}

Grid::Row RowOf(const TimetableDay& day) {
    const char* mark = day.change == DaylightChange::kNone ? "" : " *";
    Grid::Row row = {{DayText(day) + mark, shown->words.HijriText(day.hijri)},
                     Weekday(day.date) == kFriday,
                     day.date == Ports().clock.Today()};
    for (const auto& moment : day.Columns()) {
        row.cells.push_back(TimeText(moment));
    }
    return row;
}

std::string Footnotes(std::span<const TimetableDay> days) {
    std::vector<std::string> notes;
    for (const TimetableDay& day : days) {
        if (day.change != DaylightChange::kNone) {
            const bool begins = day.change == DaylightChange::kBegins;
            notes.push_back("* " + shown->words.DayTitle(day.date) + shown->words.colon +
                            (begins ? shown->words.daylightBegins : shown->words.daylightEnds));
        }
    }
    std::ranges::copy(NotesOfDays(shown->table, days), std::back_inserter(notes));
    std::string line;
    for (const std::string& note : notes) {
        line += (line.empty() ? "" : "; ") + note;
    }
    return line;
}

void FillGrid(std::span<const TimetableDay> days) {
    Grid& grid = frmMonth->grdMonth;
    grid.heads = {shown->words.day, shown->words.hijri};
    std::ranges::copy(shown->words.Heads(days.front()), std::back_inserter(grid.heads));
    for (std::size_t column = kFirstTime; column < grid.heads.size(); ++column) {
        grid.figures.insert(column);
    }
    grid.rows.clear();
    std::transform(days.begin(), days.end(), std::back_inserter(grid.rows), RowOf);
    grid.Refresh();
}

/// Which controls belong to the page on view.
void ShowPage() {
    const bool month = frmMonth->tabPages.ListIndex() == kMonthPage;
    MonthForm& form = *frmMonth;
    for (Control* control :
         std::initializer_list<Control*>{&form.cmdPrev, &form.cmdToday, &form.cmdNext,
                                         &form.grdMonth, &form.cmdPreview, &form.cmdPrint}) {
        control->SetVisible(month);
    }
    form.lblNote.SetVisible(month && !form.lblNote.Caption().empty());
    form.picYear.SetVisible(!month);
    form.lblPointer.SetVisible(!month);
    const Timetable& table = shown->table;
    form.lblMonth.SetCaption(
        (month ? shown->words.MonthTitle(table.year, shown->month) : std::to_string(table.year)) +
        " - " + table.place);
}

void ShowMonth(int month) {
    shown->month = month;
    const auto days = DaysOfMonth(shown->table, month);
    FillGrid(days);
    frmMonth->lblNote.SetCaption(Footnotes(days));
    frmMonth->cmdPrev.SetEnabled(month > 1);
    frmMonth->cmdNext.SetEnabled(month < 12);
    ShowPage();
}

void Page(int step) {
    ShowMonth(std::clamp(shown->month + step, 1, 12));
}

YearChart Chart() {
    const Picture& picture = frmMonth->picYear;
    return {shown->table, shown->words, picture.ScaleWidth(), picture.ScaleHeight()};
}

/// A time inside a line of words, which keeps its own order where these run from right to left.
std::string TimeInLine(const std::optional<Moment>& moment) {
    constexpr char32_t kIsolate = 0x2068;  // begins a text with a direction of its own
    constexpr char32_t kEndIsolate = 0x2069;
    if (!shown->words.rightToLeft) {
        return TimeText(moment);
    }
    std::string text;
    AppendUtf8(text, kIsolate);
    text += TimeText(moment);
    AppendUtf8(text, kEndIsolate);
    return text;
}

/// One day in a line that wraps between its times: both dates and all of these.
void TellDay(std::size_t row) {
    constexpr const char* kBetween = "\u00a0\u00a0 ";  // of which one ends a line and shows
    const TimetableDay& day = shown->table.days.at(row);
    std::string line =
        shown->words.DayTitle(day.date) + shown->words.comma + shown->words.HijriText(day.hijri);
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        line += kBetween + Unbroken(shown->words.prayers.at(prayer) + " " +
                                    TimeInLine(day.moments.at(prayer)));
    }
    frmMonth->lblPointer.SetCaption(line);
}

void ShowChart() {
    const Date today = Ports().clock.Today();
    frmMonth->picYear.drawing = Chart().Draw(today);
    frmMonth->picYear.Refresh();
    const double row = today - shown->table.days.front().date;
    const auto last = static_cast<double>(shown->table.days.size() - 1);
    TellDay(static_cast<std::size_t>(std::clamp(row, 0.0, last)));
}

void picYear_MouseMove(Point at) {
    if (const auto row = Chart().RowAt(at)) {
        TellDay(*row);
    }
}

/// "Prayer times Toronto 2026", which the dialogue proposes as the name of the file.
std::string WhatIsSaved() {
    const std::string& place = shown->table.place;
    const std::string city = place.substr(0, std::min(place.find(','), place.find(" - ")));
    return shown->words.title + " " + city + " " + std::to_string(shown->table.year);
}

void SaveTable() {
    const FileRequest request = {WhatIsSaved(),
                                 "PDF|*.pdf|HTML|*.html|iCalendar|*.ics|CSV|*.csv|JSON|*.json|"
                                 "Text|*.txt",
                                 1};
    const std::string path = Ports().dialogs.SaveFile(request, ".pdf");
    if (!path.empty()) {
        WriteTimetable(TimetableFormatOfPath(path).value_or(TimetableFormat::kPdf), path,
                       PaperSize::kUsual);
    }
}

void SaveChart() {
    const FileRequest request = {WhatIsSaved(), "SVG|*.svg|PNG|*.png", 1};
    const std::string path = Ports().dialogs.SaveFile(request, ".svg");
    const Picture& picture = frmMonth->picYear;
    if (!path.empty()) {
        WriteDrawing(path, picture.drawing, picture.ScaleWidth(), picture.ScaleHeight());
    }
}

void cmdSave_Click() {
    frmMonth->tabPages.ListIndex() == kYearPage ? SaveChart() : SaveTable();
}

void NamePages() {
    frmMonth->tabPages.SetTabCaption(kMonthPage, shown->words.monthPage);
    frmMonth->tabPages.SetTabCaption(kYearPage, shown->words.yearPage);
}

/// The page keys work at once.
void frmMonth_Activate() {
    if (frmMonth->FocusHolder() == nullptr) {
        frmMonth->grdMonth.SetFocus();
    }
}

void frmMonth_Load() {
    TranslateOnLoad(*frmMonth);
    shown = Shown{TakeTimetable(), TakeTimetableWords(), 1};
    NamePages();
    ShowChart();
    ShowMonth(PresentMonth());
    CenterOnScreen(*frmMonth);
}

}  // namespace

void BindMonthWindow() {
    MonthForm& form = *frmMonth;
    form.onLoad = frmMonth_Load;
    form.onActivate = frmMonth_Activate;
    form.tabPages.onClick = ShowPage;
    form.cmdPrev.onClick = [] { Page(-1); };
    form.cmdNext.onClick = [] { Page(1); };
    form.cmdToday.onClick = [] { ShowMonth(PresentMonth()); };
    form.grdMonth.onPage = Page;
    form.picYear.onMouseMove = picYear_MouseMove;
    form.cmdSave.onClick = cmdSave_Click;
    form.cmdPreview.onClick = [] {
        InstalledDocumentTools().previewMonth(ToPrint(), shown->month);
    };
    form.cmdPrint.onClick = [] { InstalledDocumentTools().printMonth(ToPrint(), shown->month); };
    form.cmdClose.onClick = [] { frmMonth->Unload(); };
}

void ShowMonthWindow() {
    frmMonth->ShowModal(&*frmTimes);
}

}  // namespace horavex
