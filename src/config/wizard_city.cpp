#include "config/wizard_city.h"

#include <algorithm>
#include <optional>
#include <string>

#include "base/fault.h"
#include "base/program_state.h"
#include "config/city_choice.h"
#include "config/computer_city.h"
#include "config/usual_pick.h"
#include "config/wizard.h"
#include "geo/city_picker.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "store/city_zones.h"
#include "store/location_files.h"
#include "store/location_record.h"
#include "store/nearest_city.h"
#include "store/settings_record.h"
#include "windows/f_country.h"
#include "windows/frm_wizard.h"

namespace horavex {

namespace {

std::optional<std::int16_t> offered;

const ProgramStateReset reset([] { offered.reset(); });

/// A pick without the picker. The keyboard goes on to the next page.
void Take(std::int16_t cityIndex) {
    TakePickedCity(cityIndex);
    SetEgyptianAngles();
    FollowUsualChoices();
    ShowPickOnWizard();
    frmWizard->cmdNext.SetFocus();
}

void cmdSetCity_Click() {
    StopLocating();
    if (LoadCityPicker()) {
        fCountry->ShowModal(&*frmWizard);
    }
    ShowPickOnWizard();
}

void cmdMyCity_Click() {
    StopLocating();
    if (offered) {
        Take(*offered);
    }
}

/// Also tells the user how far the question is.
void ShowQuestion(bool isOpen, bool isInVain) {
    WizardForm& form = *frmWizard;
    form.cmdLocate.SetEnabled(!isOpen);
    form.lblLocating.SetVisible(isOpen);
    form.lblNotLocated.SetVisible(isInVain);
}

void TakePosition(const std::optional<EarthPosition>& point) {
    std::optional<std::int16_t> city;
    if (point) {
        RunStep([&] { city = NearestCity(point->latitude, point->longitude); });
    }
    ShowQuestion(false, !city);
    if (city) {
        Take(*city);
    }
}

void cmdLocate_Click() {
    ShowQuestion(true, false);
    Ports().whereabouts.Locate(TakePosition);
}

/// Data that cannot be read offer nothing.
void OfferCityOfZone() {
    offered.reset();
    RunStep([] { offered = CityOfComputersZone(); });
    CommandButton& button = frmWizard->cmdMyCity;
    button.SetVisible(offered.has_value());
    if (offered) {
        LocationRecord place;
        button.SetCaption(GetLangString("frmWizard", "cmdMyCity", "M&y city:") + " " +
                          LookupLocation(*offered, place));
    }
}

}  // namespace

void OfferCities() {
    OfferCityOfZone();
    frmWizard->cmdLocate.SetVisible(Ports().whereabouts.CanLocate());
}

bool KeepsComputersZone() {
    std::string zone;
    RunStep([&] { zone = CityZones().Of(Settings.CityIndex); });
    const auto names = Ports().whereabouts.ZoneNames();
    return std::ranges::find(names, zone) != names.end();
}

void StopLocating() {
    Ports().whereabouts.StopLocating();
    ShowQuestion(false, false);
}

void BindWizardCity() {
    WizardForm& form = *frmWizard;
    form.cmdSetCity.onClick = cmdSetCity_Click;
    form.cmdMyCity.onClick = cmdMyCity_Click;
    form.cmdLocate.onClick = cmdLocate_Click;
}

}  // namespace horavex
