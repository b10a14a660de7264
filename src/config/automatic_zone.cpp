#include "config/automatic_zone.h"

#include <cmath>
#include <string>

#include "base/program_state.h"
#include "base/rounding.h"
#include "base/script.h"
#include "config/city_clock.h"
#include "config/zone_controls.h"
#include "platform/platform.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "store/text_table.h"
#include "windows/frm_wizard.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

int holds = 0;

const ProgramStateReset reset([] { holds = 0; });

TextEntry HintOf(CityClock state) {
    switch (state) {
        case CityClock::kNoZone:
            return TextEntry::kNoZoneKnown;
        case CityClock::kNotInDatabase:
            return TextEntry::kZoneNotInDatabase;
        case CityClock::kKnown:
            break;
    }
    return TextEntry::kZoneOfCityHint;
}

/// Both offsets, where the zone follows a city whose clock is not this computer's.
std::string ClockNote() {
    const Date today = Ports().clock.Today();
    const auto city = AutomaticZoneIsOn() ? CityHoursOn(Settings.CityIndex, today) : std::nullopt;
    const double here = Ports().clock.OffsetOn(today).hours;
    return city ? ClocksText(here, *city, Location.City.Name, Settings.Language) : "";
}

void ShowClocks() {
    const std::string note = ClockNote();
    HoravexMainForm->lblClocks.SetCaption(note);
    HoravexMainForm->lblClocks.SetVisible(!note.empty());
}

void UseCityZone() {
    if (const auto zone = FindCityZone(Settings.CityIndex)) {
        const ZoneHold hold;
        FillZoneControls(*zone);
        Settings.TimeZone = zone->hours;
    }
}

void chkAutomaticZone_Click() {
    if (AutomaticZoneIsOn()) {
        UseCityZone();
    }
    ShowClocks();
}

}  // namespace

std::string UtcOffsetText(double hours) {
    const int minutes = NearestInt(std::fabs(hours) * 60.0);
    std::string text = std::string("UTC") + (hours < 0.0 ? "-" : "+");
    text += std::to_string(minutes / 60);
    const int rest = minutes % 60;
    return rest == 0 ? text : text + (rest < 10 ? ":0" : ":") + std::to_string(rest);
}

std::string ClocksText(double here, double there, const std::string& city, std::int16_t language) {
    if (here == there) {
        return {};
    }
    const std::string words = TextItem(TextEntry::kThisComputersClock, language);
    return words + ": " + KeptTogether(UtcOffsetText(here), words) + "; " +
           KeptTogether(city + ": " + UtcOffsetText(there), words);
}

bool AutomaticZoneIsOn() {
    return HoravexMainForm->chkAutomaticZone.Value() == 1;
}

void ShowAutomaticZone(bool on) {
    CheckBox& box = HoravexMainForm->chkAutomaticZone;
    const CityClock state = StateOfCityClock(Settings.CityIndex);
    box.SetEnabled(state == CityClock::kKnown);
    box.SetToolTipText(TextItem(HintOf(state), Settings.Language));
    box.SetValue(on && state == CityClock::kKnown ? 1 : 0);
    ShowClocks();
}

void FollowCity() {
    ShowAutomaticZone(AutomaticZoneIsOn());
    chkAutomaticZone_Click();
}

void ZoneWasEdited() {
    if (holds == 0) {
        HoravexMainForm->chkAutomaticZone.SetValue(0);
        frmWizard->chkAutomaticZone.SetValue(0);
    }
}

ZoneHold::ZoneHold() {
    ++holds;
}

ZoneHold::~ZoneHold() {
    --holds;
}

void BindAutomaticZone() {
    HoravexMainForm->chkAutomaticZone.onClick = chkAutomaticZone_Click;
}

}  // namespace horavex
