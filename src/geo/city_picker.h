#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "forms/form.h"
#include "store/location_record.h"
#include "store/settings_record.h"

namespace horavex {

/// 0, or -1 once the user has closed the progress window: a long list fill then stops. Cleared
/// when the settings window fills its controls and whenever a picker opens.
extern std::int16_t CancelLoad;

/// What a pick for the distance window is kept in, so that it leaves Settings and Location alone.
struct CityPick {
    SettingsRecord PickSettings;  // those of the working settings, but for the city
    LocationRecord PickLocation;
    std::string PickCityText;
};

/// Loads the picker, hidden, and fills its list of countries behind the progress window; then the
/// country and the city of Settings are selected. False, with the picker unloaded, where the user
/// closed the progress window: CancelLoad is up then. False, too, while it is being loaded already.
bool LoadCityPicker();

/// Opens the picker in front of the distance window and returns when it is closed. On a pick,
/// take is called with it.
void PickCityForDistance(Form& owner, std::function<void(const CityPick& pick)> take);

/// Adds the countries to the list; stops behind the item with which CancelLoad came up. Throws
/// as the readers of the location files do.
void FillCountries();

/// Puts the fixed pair of Egypt on the sliders of a window: 17.75 degrees for Isha and 19.5 for
/// Fajr.
template <class AngleForm>
void SetEgyptianPair(AngleForm& form) {
    form.hsDepr2.SetValue(17);
    form.hsDepr21.SetValue(3);
    form.hsDepr.SetValue(19);
    form.hsDepr1.SetValue(2);
}

/// Where the city text of the settings window names Egypt, both windows take its pair, whatever
/// the band says.
void SetEgyptianAngles();

/// True where a text names Egypt anywhere, in any letters.
bool NamesEgypt(const std::string& text);

/// Binds the picker's handlers; what a pick for the settings does is bound by who owns them.
void BindCityPicker();

}  // namespace horavex
