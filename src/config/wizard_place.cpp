#include "config/wizard_place.h"

#include <optional>
#include <string>

#include "config/authorities.h"
#include "config/automatic_zone.h"
#include "config/city_clock.h"
#include "config/working_options.h"
#include "engine/year_table.h"
#include "lang/filled_text.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "windows/frm_wizard.h"

namespace horavex {

namespace {

std::string Words(const char* label, const char* english) {
    return GetLangString("frmWizard", label, english);
}

/// What the record says of a day.
double RecordHoursOn(Date day) {
    return Settings.TimeZone + (IsDaylightDay(day) ? 1.0 : 0.0);
}

/// "New York City: America/New_York, UTC-5"; "New York City: UTC+3" by the record's own zone.
std::string PlaceLine() {
    const Date today = Ports().clock.Today();
    const std::string zone = WorkingOptions().zone;
    const auto hours = zone.empty() ? std::nullopt : CityHoursOn(Settings.CityIndex, today);
    return Location.City.Name + ": " + (hours ? zone + ", " : "") +
           UtcOffsetText(hours ? *hours : RecordHoursOn(today));
}

void ShowUsualMethod() {
    WizardForm& form = *frmWizard;
    const Authority* usual = AuthorityOfCountry(Location.Country);
    form.lblUsual.SetVisible(usual != nullptr);
    form.lblNoUsual.SetVisible(usual == nullptr);
    if (usual != nullptr) {
        const std::string line = FilledText(Words("lblUsual", "Usual in {country}: {method}"),
                                            "{country}", Location.Country);
        form.lblUsual.SetCaption(
            FilledText(line, "{method}", GetLangString("methods", usual->key, usual->name)));
    } else {
        form.lblNoUsual.SetCaption(
            FilledText(Words("lblNoUsual", "No usual method is known for {country}"), "{country}",
                       Location.Country));
    }
}

void ShowRule(HighLatitudeRule rule) {
    frmWizard->lblRuleMiddle.SetVisible(rule == HighLatitudeRule::kMiddle);
    frmWizard->lblRuleSeventh.SetVisible(rule == HighLatitudeRule::kSeventh);
}

void ShowInterval(int minutes) {
    WizardForm& form = *frmWizard;
    form.lblInterval.SetCaption(
        FilledText(Words("lblInterval", "Isha {minutes} minutes after Maghrib"), "{minutes}",
                   std::to_string(minutes)));
    form.lblInterval.SetVisible(minutes > 0);
}

}  // namespace

void ShowPlaceOnWizard() {
    WizardForm& form = *frmWizard;
    const YearOptions options = WorkingRules();
    form.lblPlace.SetCaption(PlaceLine());
    ShowUsualMethod();
    form.lblHijri.SetVisible(options.hijri == HijriSource::kUmmAlQura);
    ShowRule(options.highLatitude);
    ShowInterval(options.ishaInterval);
}

}  // namespace horavex
