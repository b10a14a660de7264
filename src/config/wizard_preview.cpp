#include "config/wizard_preview.h"

#include <cstdint>
#include <exception>
#include <optional>
#include <utility>

#include "base/program_state.h"
#include "config/automatic_zone.h"
#include "config/city_clock.h"
#include "engine/year_table.h"
#include "platform/platform.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "windows/frm_wizard.h"

namespace horavex {

namespace {

constexpr double kHoursPerDay = 24.0;

int holds = 0;
bool asked = false;  // for a preview, while it is put off

/// What a preview depends on.
struct PreviewInput {
    SettingsRecord settings;
    double ishaAngle;
    std::int16_t latitude;
    std::int16_t longitude;
    Date today;
    std::optional<double> cityHours;  // east of Greenwich, where the zone follows the city

    bool operator==(const PreviewInput&) const = default;
};

/// Of the times on view. The same input has the same times or the same message, which is not
/// told twice.
std::optional<PreviewInput> shown;

const ProgramStateReset reset([] {
    holds = 0;
    asked = false;
    shown.reset();
});

/// The city's clock today, while it counts.
std::optional<double> CityHours(Date today) {
    return AutomaticZoneIsOn() ? CityHoursOn(Settings.CityIndex, today) : std::nullopt;
}

PreviewInput PresentInput() {
    const Date today = Ports().clock.Today();
    return {Settings, IshaAngle,       Location.City.Latitude, Location.City.Longitude,
            today,    CityHours(today)};
}

/// At the working place, which the table may not have been worked out for. The clock of the city
/// stands in the place of the record's daylight hour.
PrayerRow TimesOf(const PreviewInput& input) {
    YearInputs inputs = PresentInputs();
    inputs.place = PlaceOf(Location.City, Settings.TimeZone);
    inputs.method.dstEnabled = input.cityHours ? std::int16_t{0} : inputs.method.dstEnabled;
    PrayerRow times = ComputeTodayTimes(inputs, input.today);
    for (double& hours : times) {
        hours += input.cityHours.value_or(Settings.TimeZone) - Settings.TimeZone;
    }
    return times;
}

}  // namespace

void SetTodayPrayerTimes() {
    if (holds > 0) {
        asked = true;
        return;
    }
    const PreviewInput input = PresentInput();
    if (shown == input) {
        return;
    }
    shown = input;
    const PrayerRow times = TimesOf(input);
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        frmWizard->lblTime(static_cast<int>(prayer))
            .SetCaption(Ports().formats.MediumTime(times[prayer] / kHoursPerDay));
    }
}

void ForgetPreview() {
    shown.reset();
}

PreviewHold::PreviewHold() {
    ++holds;
}

PreviewHold::~PreviewHold() noexcept(false) {
    --holds;
    if (holds == 0 && std::exchange(asked, false) && std::uncaught_exceptions() == 0) {
        SetTodayPrayerTimes();
    }
}

}  // namespace horavex
