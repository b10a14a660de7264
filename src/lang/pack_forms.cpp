#include "lang/pack_forms.h"

#include "windows/f_country.h"
#include "windows/f_message.h"
#include "windows/f_qibla.h"
#include "windows/frm_about.h"
#include "windows/frm_athan.h"
#include "windows/frm_date_convert.h"
#include "windows/frm_distance.h"
#include "windows/frm_main.h"
#include "windows/frm_month.h"
#include "windows/frm_ramadan.h"
#include "windows/frm_times.h"
#include "windows/frm_wizard.h"
#include "windows/horavex_main_form.h"
#include "windows/moon_phases.h"
#include "windows/new_coordinates.h"

namespace horavex {

namespace {

template <class... Forms>
std::vector<std::unique_ptr<Form>> Make() {
    std::vector<std::unique_ptr<Form>> forms;
    (forms.push_back(std::make_unique<Forms>()), ...);
    return forms;
}

}  // namespace

std::vector<std::unique_ptr<Form>> PackForms() {
    return Make<FrmMain, SettingsForm, MessageForm, FrmAthan, CountryForm, NewCoordinatesForm,
                WizardForm, DateConvertForm, QiblaForm, DistanceForm, MoonPhasesForm, RamadanForm,
                AboutForm, TimesForm, MonthForm>();
}

}  // namespace horavex
