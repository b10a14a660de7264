#include "desktop/printing/document_desk.h"
#include "desktop/shots/scenes.h"
#include "store/around_options.h"
#include "timetables/month_window.h"
#include "timetables/times_window.h"
#include "windows/frm_month.h"
#include "windows/frm_times.h"

namespace horavex {

namespace {

constexpr int kMonthPage = 0;
constexpr int kYearPage = 1;

void LookAtDay(Stage& stage) {
    stage.Visit(ShowTimesWindow, *frmTimes, [&] {
        frmTimes->Timer1.Tick();
        stage.Look(*frmTimes);
    });
}

/// With imsak, Duha and the parts of the night.
void LookAroundTheDay(Stage& stage) {
    SaveOption(option::kAroundTheDay, 1);
    LookAtDay(stage);
}

void LookAtPage(Stage& stage, int page) {
    stage.Visit(ShowMonthWindow, *frmMonth, [&] {
        frmMonth->tabPages.UserSelect(page);
        stage.Look(*frmMonth);
    });
}

void LookAtMonth(Stage& stage) {
    LookAtPage(stage, kMonthPage);
}

void LookAtYear(Stage& stage) {
    LookAtPage(stage, kYearPage);
}

void LookAtPreview(Stage& stage) {
    InstallDesktopDocuments();
    stage.Visit(ShowMonthWindow, *frmMonth,
                [&] { stage.VisitDialog([] { frmMonth->cmdPreview.UserClick(); }); });
}

Setting InOslo() {
    return {.now = DateSerial(2026, 6, 21) + TimeSerial(15, 4, 5),
            .city = "Oslo",
            .rule = HighLatitudeRule::kSeventh};
}

/// The month in which the clock is turned back.
Setting InOctober() {
    return {.now = DateSerial(2026, 10, 14) + TimeSerial(15, 4, 5)};
}

}  // namespace

std::vector<Scene> TimetableScenes() {
    return {
        {"day", LookAtDay},
        {"day-around", LookAroundTheDay},
        {"day-north", LookAtDay, InOslo()},
        {"month", LookAtMonth},
        {"month-turn", LookAtMonth, InOctober()},
        {"month-north", LookAtMonth, InOslo()},
        {"year", LookAtYear},
        {"preview", LookAtPreview},
    };
}

}  // namespace horavex
