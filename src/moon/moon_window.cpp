#include "moon/moon_window.h"

#include <cmath>
#include <cstddef>
#include <iterator>
#include <string>

#include "base/fault.h"
#include "base/int16.h"
#include "base/program_state.h"
#include "engine/angle.h"
#include "engine/center_on_screen.h"
#include "forms/show_modal.h"
#include "lang/filled_text.h"
#include "lang/form_language.h"
#include "lang/language_pack.h"
#include "moon/eclipses.h"
#include "moon/moon_pictures.h"
#include "moon/phase_rows.h"
#include "moon/rise_set_page.h"
#include "platform/platform.h"
#include "windows/frm_main.h"
#include "windows/frm_ramadan.h"
#include "windows/horavex_main_form.h"
#include "windows/moon_phases.h"

namespace horavex {

namespace {

/// The tables on view.
MoonRows NewMoonRows;
MoonRows FirstQuarterRows;
MoonRows FullMoonRows;
MoonRows LastQuarterRows;

Eclipses eclipses;

const ProgramStateReset reset([] {
    NewMoonRows = FirstQuarterRows = FullMoonRows = LastQuarterRows = {};
    eclipses = {};
});

struct TabText {
    const char* key;  // of the pack's section "other"
    const char* english;
};

constexpr TabText kTabs[] = {{"15", "New moon / First Quarter"},
                             {"16", "Full Moon / Last Quarter"},
                             {"17", "Moon Rise / Set"},
                             {"18", "Solar / Lunar Eclipses"}};

constexpr int kRiseSetPage = 2;
constexpr int kEclipsesPage = 3;

void EmptyTexts() {
    MoonPhasesForm& form = *Moon_Phases;
    for (TextBox* text : {&form.Text1, &form.Text2, &form.Text3, &form.Text4, &form.Text5,
                          &form.Text6, &form.Text7}) {
        text->SetText("");
    }
}

std::int16_t PresentYear() {
    return ToInt16(CivilFromDate(Ports().clock.Today()).year);
}

/// Throws TypeMismatchFault for a box that holds no number.
double ZoneInBox() {
    return WholeZone(HoravexMainForm->txtTimeZone.Text());
}

void ComputeTables(std::int16_t year, double zone) {
    NewMoonRows = ComputeNewMoonRows(year, zone);
    FirstQuarterRows = ComputeFirstQuarterRows(year, zone);
    FullMoonRows = ComputeFullMoonRows(year, zone);
    LastQuarterRows = ComputeLastQuarterRows(year, zone);
}

void FillLabels(std::int16_t year) {
    std::string text;
    for (const std::string& label : MoonRowLabels(year, NewMoonRows)) {
        text += label + Crlf;
    }
    Moon_Phases->Text1.SetText(text);
    Moon_Phases->Text4.SetText(text);
}

/// The clock's moment as the rows count theirs, a Julian day.
double PresentDay() {
    constexpr double kDayZero = 2415018.5;  // of the program's dates, as a Julian day
    return Ports().clock.UniversalNow() + kDayZero;
}

void FillRows(TextBox& box, const MoonRows& rows, MoonPhase phase, std::int16_t year) {
    std::string text;
    for (std::size_t i = 0; i < kMoonRows; ++i) {
        text += rows[i] + Crlf;
    }
    box.SetText(text);
    box.SetMarkedLine(NextMoonRow(phase, year, PresentDay()));
}

void FillTables(std::int16_t year) {
    FillLabels(year);
    FillRows(Moon_Phases->Text2, NewMoonRows, MoonPhase::kNewMoon, year);
    FillRows(Moon_Phases->Text3, FirstQuarterRows, MoonPhase::kFirstQuarter, year);
    FillRows(Moon_Phases->Text5, FullMoonRows, MoonPhase::kFullMoon, year);
    FillRows(Moon_Phases->Text6, LastQuarterRows, MoonPhase::kLastQuarter, year);
}

void DrawDiscs(Picture& picture, const MoonRows& rows, double elongation) {
    picture.drawing = PhaseDiscs(picture.ScaleWidth(), rows, elongation);
    picture.Refresh();
}

void DrawPhaseDiscs() {
    MoonPhasesForm& form = *Moon_Phases;
    DrawDiscs(form.picNewMoon, NewMoonRows, 0.0);
    DrawDiscs(form.picFirstQuarter, FirstQuarterRows, 90.0);
    DrawDiscs(form.picFullMoon, FullMoonRows, 180.0);
    DrawDiscs(form.picLastQuarter, LastQuarterRows, 270.0);
}

void CaptionTonightsMoon(double elongation) {
    constexpr double kMonth = 29.53059;  // days from a new moon to the next
    const long lit = std::lround(50.0 * (1.0 - std::cos(DegToRad(elongation))));
    const int day = 1 + static_cast<int>(kMonth * elongation / 360.0);
    const std::string words = Moon_Phases->lblTonight.Caption();  // as the pack gives them
    Moon_Phases->lblTonight.SetCaption(
        FilledText(FilledText(words, "{lit}", std::to_string(lit)), "{day}", std::to_string(day)));
}

/// A picture keeps no window away.
void ShowTonightsMoon() {
    Picture& picture = Moon_Phases->picTonight;
    try {
        const double elongation = TonightsElongation();
        picture.drawing = TonightsMoon(picture.ScaleWidth(), picture.ScaleHeight(), elongation);
        CaptionTonightsMoon(elongation);
    } catch (const Fault&) {
        Moon_Phases->lblTonight.SetCaption("");
    }
    picture.Refresh();
}

void CaptionTabs() {
    for (std::size_t tab = 0; tab < std::size(kTabs); ++tab) {
        Moon_Phases->SSTab1.SetTabCaption(
            static_cast<int>(tab), GetLangString("other", kTabs[tab].key, kTabs[tab].english));
    }
}

// What lies on the tabs stands in the form page by page; these controls begin one each.
void ShowPage() {
    MoonPhasesForm& form = *Moon_Phases;
    const Control* const firsts[] = {&form.lblMonth1, &form.lblMonth2, &form.lblDay,
                                     &form.Cmdeclipse_sun};
    int page = -1;
    for (Control* control : form.Controls()) {
        if (&control->Parent() != &form.SSTab1) {
            continue;
        }
        if (page + 1 < static_cast<int>(std::size(firsts)) && control == firsts[page + 1]) {
            ++page;
        }
        control->SetVisible(page == form.SSTab1.ListIndex());
    }
}

void Cmdclear_Click() {
    Moon_Phases->Text7.SetText("");
    ClearEclipses(eclipses);
}

void Cmdeclipse_sun_Click() {
    Cmdclear_Click();
    Moon_Phases->Text7.SetText(ListSolarEclipses(eclipses, PresentYear(), ZoneInBox()));
}

void Cmdeclipse_moon_Click() {
    Cmdclear_Click();
    Moon_Phases->Text7.SetText(ListLunarEclipses(eclipses, PresentYear(), ZoneInBox()));
}

/// A page that is turned to has something to read: a press of its button is for another choice.
void SSTab1_Click() {
    ShowPage();
    const int page = Moon_Phases->SSTab1.ListIndex();
    if (page == kRiseSetPage) {
        FillRiseSetPage();
    } else if (page == kEclipsesPage && Moon_Phases->Text7.Text().empty()) {
        Cmdeclipse_sun_Click();
    }
}

void Moon_Phases_Load() {
    TranslateOnLoad(*Moon_Phases);
    CaptionTabs();
    ShowPage();
    LoadRiseSetPage();
    DrawPhaseDiscs();
    ShowTonightsMoon();
}

void Bind() {
    MoonPhasesForm& form = *Moon_Phases;
    form.onLoad = Moon_Phases_Load;
    form.SSTab1.onClick = SSTab1_Click;
    form.SkinLabel1.onClick = ShowRamadanHelp;
    form.Cmdclear.onClick = Cmdclear_Click;
    form.Cmdeclipse_sun.onClick = Cmdeclipse_sun_Click;
    form.Cmdeclipse_moon.onClick = Cmdeclipse_moon_Click;
    form.Command2.onClick = [] { Ports().windows.Print(Moon_Phases->Name()); };
    form.cmdClose.onClick = [] { Moon_Phases->Unload(); };
    BindRiseSetPage();
}

void frmRamadan_Load() {
    TranslateOnLoad(*frmRamadan);
    frmRamadan->Text1.SetText(GetLangString("frmRamadan", "Text1", ""));
}

}  // namespace

void ShowMoonPhases() {
    Bind();
    EmptyTexts();
    const std::int16_t year = PresentYear();
    ComputeTables(year, ZoneInBox());
    FillTables(year);
    CenterOnScreen(*Moon_Phases);
    ShowModalOrUnload(*Moon_Phases, &*frmMain);
}

void ShowRamadanHelp() {
    frmRamadan->onLoad = frmRamadan_Load;
    frmRamadan->cmdClose.onClick = [] { frmRamadan->Unload(); };
    frmRamadan->ShowModal(&*Moon_Phases);
}

}  // namespace horavex
