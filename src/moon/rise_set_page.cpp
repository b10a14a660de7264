#include "moon/rise_set_page.h"

#include <cmath>
#include <cstdlib>
#include <initializer_list>
#include <optional>
#include <string>

#include "base/fault.h"
#include "base/int16.h"
#include "base/number_text.h"
#include "base/text.h"
#include "calendar/date_guard.h"
#include "engine/angle.h"
#include "lang/language_pack.h"
#include "moon/moon_pictures.h"
#include "moon/moon_rise_set.h"
#include "platform/platform.h"
#include "store/location_text.h"
#include "store/settings_record.h"
#include "windows/horavex_main_form.h"
#include "windows/moon_phases.h"

namespace horavex {

namespace {

constexpr int kFirstYear = 2004;
constexpr int kLastYear = 2050;

DateGuard guard;

struct SignedMinutes {
    std::int16_t degrees;  // both parts are negative in the south and the west
    std::int16_t minutes;
};

/// A place on the Earth and its zone, hours east.
struct Place {
    MoonObserver observer;
    double zone;
};

std::int16_t WholeNumberIn(const std::string& text) {
    return RoundToInt16(TextToNumber(text));
}

SignedMinutes WithSign(bool negative, std::int16_t degrees, std::int16_t minutes) {
    return negative ? SignedMinutes{SubtractInt16(0, degrees), SubtractInt16(0, minutes)}
                    : SignedMinutes{degrees, minutes};
}

/// A stored coordinate in the whole degrees and minutes that the settings window tells. Zero has no
/// sign to carry.
SignedMinutes WholeMinutes(std::int16_t stored) {
    const DegreesMinutes split = SplitDegrees(std::fabs(StoredCoord(stored)));
    return WithSign(stored < 0, split.whole, split.minutes);
}

/// The place of the settings window. Its labels tell the same in words, which change with the
/// language.
MoonObserver ShownObserver() {
    const SignedMinutes longitude = WholeMinutes(ShownCity.Longitude);
    const SignedMinutes latitude = WholeMinutes(ShownCity.Latitude);
    return {latitude.degrees, latitude.minutes, longitude.degrees, longitude.minutes};
}

Place CurrentPlace() {
    return {ShownObserver(), TextToNumber(HoravexMainForm->txtTimeZone.Text())};
}

void EnablePlace(bool enabled) {
    MoonPhasesForm& form = *Moon_Phases;
    for (Control* control : std::initializer_list<Control*>{
             &form.Frame4, &form.txtLongH, &form.txtLongM, &form.txtLatH, &form.txtLatM,
             &form.txtTimeZone, &form.SkinLabel4, &form.SkinLabel5, &form.SkinLabel6,
             &form.SkinLabel7, &form.SkinLabel8}) {
        control->SetEnabled(enabled);
    }
}

bool IsNegative(std::int16_t degrees, std::int16_t minutes) {
    return degrees < 0 || minutes < 0;
}

/// The boxes hold sizes; the options beside them hold the sign. East and north are only ever set
/// by the user: a place there leaves the options as they are, and nothing reads them for it.
void ShowPlace(const MoonObserver& place) {
    MoonPhasesForm& form = *Moon_Phases;
    if (IsNegative(place.lonDeg, place.lonMin)) {
        form.optWest.SetValue(true);
    }
    if (IsNegative(place.latDeg, place.latMin)) {
        form.optSouth.SetValue(true);
    }
    form.txtLongH.SetText(std::to_string(std::abs(place.lonDeg)));
    form.txtLongM.SetText(std::to_string(std::abs(place.lonMin)));
    form.txtLatH.SetText(std::to_string(std::abs(place.latDeg)));
    form.txtLatM.SetText(std::to_string(std::abs(place.latMin)));
    form.txtTimeZone.SetText(HoravexMainForm->txtTimeZone.Text());
}

/// Both bounds are left out, and a southern summer, which wraps around the new year, has no day.
bool IsInsideDaylightSpan(Date today) {
    const double day = today - DateSerial(CivilFromDate(today).year, 1, 1) + 1.0;
    return Settings.DstEnabled == 1 && Settings.DstStart < day && day < Settings.DstEnd;
}

void ShowToday() {
    const Date today = Ports().clock.Today();
    const CivilDate date = CivilFromDate(today);
    guard.SetDate(date.day, date.month, date.year);
    Moon_Phases->chkDayLightSaving.SetValue(0);
    if (IsInsideDaylightSpan(today)) {
        Moon_Phases->chkDayLightSaving.SetValue(1);
    }
}

void optCurrentLocation_Click() {
    EnablePlace(false);
    ShowPlace(ShownObserver());
    ShowToday();
}

void optCustomLocation_Click() {
    EnablePlace(true);
}

void Refuse(const char* key, const char* english) {
    Ports().dialogs.ShowMessage(GetLangString("msg", key, english),
                                GetLangString("msg", "4", "Input Error"), MessageIcon::kNone);
}

bool HasEmptyBox() {
    MoonPhasesForm& form = *Moon_Phases;
    bool empty = false;
    for (TextBox* box :
         {&form.txtLongH, &form.txtLongM, &form.txtLatH, &form.txtLatM, &form.txtTimeZone}) {
        box->SetText(std::string(Trim(box->Text())));
        empty = empty || box->Text().empty();
    }
    return empty;
}

Place TypedPlace() {
    const MoonPhasesForm& form = *Moon_Phases;
    const auto longitude = WithSign(form.optWest.Value(), WholeNumberIn(form.txtLongH.Text()),
                                    WholeNumberIn(form.txtLongM.Text()));
    const auto latitude = WithSign(form.optSouth.Value(), WholeNumberIn(form.txtLatH.Text()),
                                   WholeNumberIn(form.txtLatM.Text()));
    return {{latitude.degrees, latitude.minutes, longitude.degrees, longitude.minutes},
            TextToNumber(form.txtTimeZone.Text())};
}

bool AreMinutes(std::int16_t minutes) {
    return minutes >= -59 && minutes <= 59;
}

// The upper bound of the longitude looks at the latitude, so that a longitude beyond 180 east
// passes, and the calculation turns it onto the globe: 190 east is 170 west. Kept:
// RiseSetPageTest.LongitudeBeyond180EastPasses.
bool IsAcceptable(const Place& place) {
    const MoonObserver& at = place.observer;
    if (at.latDeg < -90 || at.latDeg > 90) {
        Refuse("3", "Latitude range is 0 to 90");
    } else if (at.lonDeg < -180 || at.latDeg > 180) {
        Refuse("5", "Longitude range is 0 to 180");
    } else if (!AreMinutes(at.latMin) || !AreMinutes(at.lonMin)) {
        Refuse("6", "Minites rang is 0 to 59");
    } else if (place.zone < -12.0 || place.zone > 12.0) {
        Refuse("7", "Time Zone range is -12 to 12");
    } else {
        return true;
    }
    return false;
}

std::optional<Place> CustomPlace() {
    if (HasEmptyBox()) {
        Ports().dialogs.ShowMessage(GetLangString("msg", "1", "Please, Fill all text boxes first"),
                                    GetLangString("msg", "2", "Input Error"),
                                    MessageIcon::kExclamation);
        return std::nullopt;
    }
    const Place place = TypedPlace();
    return IsAcceptable(place) ? std::optional(place) : std::nullopt;
}

CivilDate ChosenDate() {
    const MoonPhasesForm& form = *Moon_Phases;
    const std::int16_t year = WholeNumberIn(form.cboYear.Text());
    const std::int16_t month = WholeNumberIn(form.cboMonth.Text());
    const std::int16_t day = WholeNumberIn(form.cboDay.Text());
    return {year, month, day};
}

/// Nothing after a message.
std::optional<MoonRiseSet> RiseAndSet() {
    const bool current = Moon_Phases->optCurrentLocation.Value();
    const auto place = current ? std::optional(CurrentPlace()) : CustomPlace();
    if (!place) {
        return std::nullopt;
    }
    MoonRiseSet times = MoonRiseSetTimes(ChosenDate(), place->observer, place->zone);
    if (Moon_Phases->chkDayLightSaving.Value() != 0) {
        AddDaylightHour(times);
    }
    return times;
}

void ShowTimes(const std::optional<MoonRiseSet>& times) {
    Moon_Phases->lblMoonRise.SetCaption(times ? MoonRiseText(*times) : MoonErrorText());
    Moon_Phases->lblMoonSet.SetCaption(times ? MoonSetText(*times) : MoonErrorText());
    Picture& day = Moon_Phases->picDay;
    day.drawing = MoonDay(day.ScaleWidth(), day.ScaleHeight(), times);
    day.Refresh();
}

void cmdCalculate_Click() {
    try {
        ShowTimes(RiseAndSet());
    } catch (const Fault&) {
        ShowTimes(std::nullopt);
    }
}

}  // namespace

void BindRiseSetPage() {
    MoonPhasesForm& form = *Moon_Phases;
    form.optCurrentLocation.onClick = optCurrentLocation_Click;
    form.optCustomLocation.onClick = optCustomLocation_Click;
    form.cmdCalculate.onClick = cmdCalculate_Click;
    guard.Bind(form.cboDay, form.cboMonth, form.cboYear);
}

void LoadRiseSetPage() {
    optCurrentLocation_Click();
    FillNumbers(Moon_Phases->cboDay, 1, 31);
    FillNumbers(Moon_Phases->cboMonth, 1, 12);
    FillNumbers(Moon_Phases->cboYear, kFirstYear, kLastYear);
}

void FillRiseSetPage() {
    const bool isAnswered = !Moon_Phases->picDay.drawing.empty();
    if (!isAnswered && Moon_Phases->optCurrentLocation.Value()) {
        cmdCalculate_Click();
    }
}

}  // namespace horavex
