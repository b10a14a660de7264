#include "config/wizard_preview.h"

#include <cstdint>
#include <exception>
#include <optional>
#include <utility>

#include "base/program_state.h"
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

PreviewInput PresentInput() {
    return {Settings, IshaAngle, Location.City.Latitude, Location.City.Longitude,
            Ports().clock.Today()};
}

/// At the working place, which the table may not have been worked out for.
PrayerRow TimesOfToday() {
    YearInputs inputs = PresentInputs();
    inputs.place = PlaceOf(Location.City, Settings.TimeZone);
    return ComputeTodayTimes(inputs, Ports().clock.Today());
}

}  // namespace

void SetTodayPrayerTimes() {
    if (holds > 0) {
        asked = true;
        return;
    }
    if (shown == PresentInput()) {
        return;
    }
    shown = PresentInput();
    const PrayerRow times = TimesOfToday();
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
