#include "skywindows/sky_window.h"

#include <algorithm>
#include <optional>

#include "base/program_state.h"
#include "engine/center_on_screen.h"
#include "forms/show_modal.h"
#include "lang/form_language.h"
#include "platform/platform.h"
#include "skywindows/crescent_window.h"
#include "skywindows/day_picture.h"
#include "skywindows/eclipses_page.h"
#include "skywindows/phases_page.h"
#include "skywindows/qibla_page.h"
#include "skywindows/sky_words.h"
#include "skywindows/today_page.h"
#include "windows/frm_main.h"
#include "windows/frm_sky.h"
#include "windows/moon_phases.h"

namespace horavex {

namespace {

/// The pages in the order of their tabs.
enum Page { kTodayPage, kPhasesPage, kEclipsesPage, kQiblaPage };

struct PageName {
    const char* key;
    const char* english;
};

constexpr PageName kPages[] = {{"TodayPage", "Today"},
                               {"PhasesPage", "Moon phases"},
                               {"EclipsesPage", "Eclipses"},
                               {"QiblaPage", "Qibla by the sun"}};

/// What the window shows: the place as it is accepted when the window comes up.
struct Shown {
    SkyPlace place;
    int year;
};
std::optional<Shown> shown;

const ProgramStateReset reset([] { shown.reset(); });

bool IsToday() {
    return frmSky->tabPages.ListIndex() == kTodayPage;
}

/// The present one, as far as the almanac goes.
int PresentYear() {
    const Date local = shown->place.clock.LocalOf(Ports().clock.UniversalNow());
    return std::clamp(CivilFromDate(local).year, kFirstAlmanacYear, kLastAlmanacYear);
}

SkyPage PageOnView(Date now) {
    const Almanac& almanac = Ports().almanac;
    const auto& [place, year] = *shown;
    switch (frmSky->tabPages.ListIndex()) {
        case kPhasesPage:
            return PhasesPage(almanac, place, year, now);
        case kEclipsesPage:
            return EclipsesPage(almanac, place, year);
        case kQiblaPage:
            return QiblaPage(almanac, place, year, now);
        default:
            return TodayPage(almanac, place, now);
    }
}

void ShowPage(const SkyPage& page) {
    SkyForm& form = *frmSky;
    form.grdTable.heads = page.heads;
    form.grdTable.rows = page.rows;
    form.grdTable.figures = page.figures;
    form.grdTable.Refresh();
    form.lblShownNote.SetCaption(page.note);
    form.lblShownNote.SetVisible(!page.note.empty());
}

void ShowHead(Date now) {
    frmSky->lblShownPlace.SetCaption(shown->place.name);
    frmSky->lblShownTime.SetCaption(IsToday() ? SkyDateAndTime(shown->place.clock, now)
                                              : std::to_string(shown->year));
}

void DrawArcs(Date now) {
    Picture& picture = frmSky->picArcs;
    picture.drawing =
        DayPicture(picture.ScaleWidth(), picture.ScaleHeight(), Ports().almanac, shown->place, now);
    picture.Refresh();
}

void ShowNow() {
    const Date now = Ports().clock.UniversalNow();
    ShowPage(PageOnView(now));
    ShowHead(now);
    if (IsToday()) {
        DrawArcs(now);
    }
}

/// Shows a page that still waits for the end of the turning.
void FinishTurn() {
    if (frmSky->tmrTurn.Enabled()) {
        frmSky->tmrTurn.SetEnabled(false);
        ShowNow();
    }
}

/// Which controls belong to the page on view.
void ChoosePage() {
    SkyForm& form = *frmSky;
    const bool today = IsToday();
    form.picArcs.SetVisible(today);
    form.lblLegend.SetVisible(today);
    for (CommandButton* button : {&form.cmdPrev, &form.cmdToday, &form.cmdNext}) {
        button->SetVisible(!today);
    }
    form.tmrNow.SetEnabled(today);
    form.tmrTurn.SetEnabled(false);
    ShowNow();
}

void ChooseYear(int year) {
    shown->year = std::clamp(year, kFirstAlmanacYear, kLastAlmanacYear);
    frmSky->cmdPrev.SetEnabled(shown->year > kFirstAlmanacYear);
    frmSky->cmdNext.SetEnabled(shown->year < kLastAlmanacYear);
}

// A year of eclipses takes a good part of a second: keys that repeat must not hold the clock up, so
// that only the year at which they have arrived is worked out.
void TurnTo(int year) {
    ChooseYear(year);
    ShowHead(Ports().clock.UniversalNow());
    frmSky->tmrTurn.SetEnabled(true);
}

void Turn(int step) {
    if (!IsToday()) {
        TurnTo(shown->year + step);
    }
}

void NamePages() {
    for (std::size_t page = 0; page < std::size(kPages); ++page) {
        frmSky->tabPages.SetTabCaption(static_cast<int>(page),
                                       SkyWord(kPages[page].key, kPages[page].english));
    }
}

void frmSky_Load() {
    TranslateOnLoad(*frmSky);
    NamePages();
    shown = Shown{AcceptedSkyPlace(), 0};
    ChooseYear(PresentYear());
    ChoosePage();
    CenterOnScreen(*frmSky);
}

}  // namespace

void OpenSky(Form& owner) {
    ShowModalOrUnload(*frmSky, &owner);
}

void BindSkyWindow() {
    SkyForm& form = *frmSky;
    form.onLoad = frmSky_Load;
    form.onUnload = [] { shown.reset(); };
    form.tabPages.onClick = ChoosePage;
    form.grdTable.onPage = Turn;
    form.cmdPrev.onClick = [] { Turn(-1); };
    form.cmdNext.onClick = [] { Turn(1); };
    form.cmdToday.onClick = [] { TurnTo(PresentYear()); };
    form.tmrNow.onTimer = ShowNow;
    form.tmrTurn.onTimer = FinishTurn;
    form.cmdCrescent.onClick = [] { OpenCrescent(*frmSky); };
    form.cmdPrint.onClick = [] {
        FinishTurn();
        Ports().windows.Print(frmSky->Name());
    };
    form.cmdClose.onClick = [] { frmSky->Unload(); };
    frmMain->mnuSky.onClick = [] { OpenSky(*frmMain); };
    Moon_Phases->cmdSky.onClick = [] { OpenSky(*Moon_Phases); };
}

}  // namespace horavex
