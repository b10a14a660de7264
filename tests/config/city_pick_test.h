#pragma once

#include <functional>
#include <string>

#include "geo/city_picker.h"
#include "store/city_search.h"
#include "support/program_test.h"
#include "windows/f_country.h"
#include "windows/frm_wizard.h"

namespace horavex {

inline constexpr std::int32_t kHour = 3600;

inline UtcSeconds Greenwich(int year, int month, int day, int hour) {
    return static_cast<UtcSeconds>((DateSerial(year, month, day) - DateSerial(1970, 1, 1)) *
                                   86400) +
           hour * kHour;
}

/// A fresh install with the clocks of some cities.
struct CityPickTest : ProgramTest {
    CityPickTest() {
        AddZone("Asia/Riyadh", 3 * kHour);
        AddZone("Africa/Cairo", 2 * kHour);
        AddZone("Asia/Jakarta", 7 * kHour);
        AddZone("Asia/Karachi", 5 * kHour);
        AddZone("Asia/Kathmandu", 5 * kHour + 2700);
        AddZone("America/New_York", -5 * kHour);
        Turn("America/New_York", {2026, 3, 8, 7}, -4 * kHour, true);
        Turn("America/New_York", {2026, 11, 1, 6}, -5 * kHour, false);
        Turn("America/New_York", {2027, 3, 14, 7}, -4 * kHour, true);
        Turn("America/New_York", {2027, 11, 7, 6}, -5 * kHour, false);
        AddZone("Europe/London", 0);
        Turn("Europe/London", {2026, 3, 29, 1}, kHour, true);
        Turn("Europe/London", {2026, 10, 25, 1}, 0, false);
        platform.zoneRules.Add("Pacific/Auckland", {13 * kHour, true});
        Turn("Pacific/Auckland", {2026, 4, 4, 14}, 12 * kHour, false);
        Turn("Pacific/Auckland", {2026, 9, 26, 14}, 13 * kHour, true);
    }

    struct Hour {
        int year, month, day, hour;
    };

    void AddZone(const std::string& name, std::int32_t seconds) {
        platform.zoneRules.Add(name, {seconds, false});
    }

    void Turn(const std::string& name, Hour at, std::int32_t seconds, bool daylight) {
        platform.zoneRules.Turn(name, Greenwich(at.year, at.month, at.day, at.hour),
                                {seconds, daylight});
    }

    static std::int16_t IndexOf(const std::string& text) {
        const auto cities = ListCities();
        return SearchCities(cities, text).at(0).city->cityIndex;
    }

    void Pick(const std::string& city) { fCountry->onPick(IndexOf(city)); }

    /// A pick by the wizard's own button.
    void PickInWizard(const std::string& city) {
        struct Script : FormHost {
            explicit Script(std::function<void()> act) : act_(std::move(act)) {
                InstallFormHost(this);
            }
            ~Script() override { InstallFormHost(nullptr); }
            void Loaded(Form&) override {}
            void Unloaded(Form&) override {}
            void BroughtUp(Form&) override {}
            void RunModal(Form&) override { act_(); }
            std::function<void()> act_;
        } const script([&] {
            fCountry->txtSearch.UserType(city);
            fCountry->lstFound.UserSelect(0);
            fCountry->cmdOK.UserClick();
        });
        wizard.cmdSetCity.UserClick();
    }

    SettingsForm& form = *HoravexMainForm;
    WizardForm& wizard = *frmWizard;
};

}  // namespace horavex
