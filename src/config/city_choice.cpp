#include "config/city_choice.h"

#include "base/int16.h"
#include "config/angle_controls.h"
#include "config/automatic_zone.h"
#include "config/settings_controls.h"
#include "config/settings_display.h"
#include "config/usual_pick.h"
#include "config/wizard_preview.h"
#include "geo/city_picker.h"
#include "platform/platform.h"
#include "store/angle_band.h"
#include "store/location_files.h"
#include "store/location_record.h"
#include "store/settings_defaults.h"
#include "store/settings_record.h"
#include "windows/f_country.h"
#include "windows/frm_main.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

void ChangeCity(std::int16_t cityIndex) {
    SettingsForm& form = *HoravexMainForm;
    CityText = LookupLocation(cityIndex, Location);
    const PreviewHold preview;
    const ZoneHold hold;
    Settings.CityIndex = cityIndex;
    frmMain->lblCity.SetCaption(CityText);
    form.txtTimeZone.SetText("");
    ShowNewLocation();
    SetDepressionLimits(Location.City.Latitude);
    form.hsDepr.SetValue(AngleBand.middle);
    // A slider that stands there already writes nothing, and the wizard has sliders of its own.
    Settings.FajrAngle = AngleOnSliders(form.hsDepr, form.hsDepr1);
    sub06FB();
    SetDefaultDstDays(Ports().clock.Today(), Location.City.Latitude);
    form.lblCity.SetCaption(CityText);
    ShowDaylightDays();
    sub06C6();
    sub071C();
    FollowCity();
}

}  // namespace

void TakePickedCity(std::int16_t cityIndex) {
    if (cityIndex != Settings.CityIndex) {
        ChangeCity(cityIndex);
    }
    if (HoravexMainForm->Visible()) {
        HoravexMainForm->txtTimeZone.SetFocus();
    }
}

void cmdChangeCity_Click() {
    if (LoadCityPicker()) {
        fCountry->Show();
    } else {
        HoravexMainForm->SetVisible(true);
    }
    ShowNewLocation();
}

void EndCityChoice() {
    if (fCountry->Visible() && fCountry->openedFromDistance == kFalse) {
        fCountry->Unload();
    }
}

void BindCityChoice() {
    fCountry->onPick = TakePickedCity;
    fCountry->onPickDone = FollowUsualChoices;
    HoravexMainForm->cmdChangeCity.onClick = cmdChangeCity_Click;
}

}  // namespace horavex
