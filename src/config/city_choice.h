#pragma once

#include <cstdint>

namespace horavex {

/// Makes a picked city the working place, with the default angle of its band, the default days of
/// daylight saving and an empty zone box: the zone is to be a conscious choice. The city that is
/// set already changes nothing. Throws as LookupLocation does, with nothing changed.
void TakePickedCity(std::int16_t cityIndex);

/// The button that changes the city: opens the picker beside the settings window.
void cmdChangeCity_Click();

/// Puts the picker away with the settings window: who picks a city there would see the face name it
/// over the times of another.
void EndCityChoice();

/// Binds the button, and what a pick for the settings does.
void BindCityChoice();

}  // namespace horavex
