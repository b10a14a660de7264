#pragma once

#include <string>

namespace horavex {

// The box by which zone and daylight saving follow the city. It stands in the settings window,
// whose value is the working one; the wizard shows the same. What it says is stored when it is
// accepted.

/// True while the box is ticked.
bool AutomaticZoneIsOn();

/// Ticks the box or clears it, and shuts it, cleared, where the clock of the working city is not
/// known; its tooltip says why. A tick that is new fills the zone's controls. Below it stand this
/// computer's offset and the city's where they differ.
void ShowAutomaticZone(bool on);

/// After a change of city: while the box is ticked the zone's controls and the working settings
/// take the zone of the new one.
void FollowCity();

/// A handler of the zone's controls: they were changed, and by the user unless a ZoneHold lives.
/// The box of both windows is cleared then.
void ZoneWasEdited();

/// The program itself moves the zone's controls as long as it lives.
class ZoneHold {
public:
    ZoneHold();
    ~ZoneHold();
    ZoneHold(const ZoneHold&) = delete;
    ZoneHold& operator=(const ZoneHold&) = delete;
};

/// "UTC-5", "UTC+5:45". hours: ahead of Greenwich.
std::string UtcOffsetText(double hours);

/// Both offsets in one line: "This computer's clock: UTC-5; Cairo: UTC+2". Empty where they are the
/// same. language: of the text table.
std::string ClocksText(double here, double there, const std::string& city, std::int16_t language);

/// Binds the box of the settings window.
void BindAutomaticZone();

}  // namespace horavex
