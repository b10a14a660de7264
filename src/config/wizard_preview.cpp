#include "config/wizard_preview.h"

#include <cmath>
#include <cstdint>
#include <exception>
#include <optional>
#include <string>
#include <utility>

#include "base/int16.h"
#include "base/program_state.h"
#include "config/working_options.h"
#include "engine/current_year.h"
#include "engine/moment_text.h"
#include "engine/moments.h"
#include "engine/solar_event.h"
#include "engine/year_table.h"
#include "platform/platform.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "windows/frm_wizard.h"

namespace horavex {

namespace {

int holds = 0;
bool asked = false;  // for a preview, while it is put off

/// What a preview depends on.
struct PreviewInput {
    SettingsRecord settings;
    double ishaAngle;
    std::int16_t latitude;
    std::int16_t longitude;
    Date today;
    YearOptions options;

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
    return {Settings,
            IshaAngle,
            Location.City.Latitude,
            Location.City.Longitude,
            Ports().clock.Today(),
            WorkingOptions()};
}

/// The working place, which the table may not have been worked out for, under the given rules. The
/// clock of the city stands in the place of the record's daylight hour.
YearInputs InputsUnder(const MomentRules& rules) {
    YearInputs inputs = PresentInputs();
    inputs.place = PlaceOf(Location.City, Settings.TimeZone);
    inputs.start = rules.start;
    YearMethod& method = inputs.method;
    method = MethodUnder(rules, method);
    method.dstEnabled = rules.zone.empty() ? method.dstEnabled : std::int16_t{0};
    return inputs;
}

/// The year that rules draw on never gives up here: a day that does has told so already.
DayMoments ByRules(YearInputs inputs, const MomentRules& rules, Date today) {
    inputs.method.needsFajr = inputs.method.needsIsha = false;
    inputs.year = ToInt16(CivilFromDate(today).year);
    const YearTable table = CalculateYear(inputs);
    const auto row = static_cast<std::size_t>(today - DateSerial(inputs.year, 1, 1));
    return MomentsOf({inputs, table.times, rules}, row);
}

DayMoments MomentsOfPreview(const PreviewInput& input) {
    const MomentRules rules = PossibleRulesOfYear(input.options, CurrentYear).moments;
    const YearInputs inputs = InputsUnder(rules);
    const PrayerRow bare = ComputeTodayTimes(inputs, input.today);
    return rules == MomentRules{} ? TableMoments(bare) : ByRules(inputs, rules, input.today);
}

/// A time that does not come has no text.
bool Comes(const Moment& moment) {
    return std::fabs(moment.hours) < NoEvent;
}

void ShowMoments(const DayMoments& moments) {
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        const int index = static_cast<int>(prayer);
        const Moment& moment = moments[prayer];
        frmWizard->lblTime(index).SetCaption(Comes(moment) ? MomentText(moment) : "");
        frmWizard->lblTimeToday(index).SetCaption(Comes(moment) ? MomentCell(moment) : "");
    }
}

void ShowNote(Label& label, const std::string& note) {
    label.SetCaption(note);
    label.SetVisible(!note.empty());
}

void ShowNotes(const DayMoments& moments, HighLatitudeRule rule) {
    ShowNote(frmWizard->lblTimeNote, RuleNote(moments, rule));
    std::string notes;
    for (const std::string& note : ColumnNotes(moments, rule)) {
        notes += (notes.empty() ? "" : " ") + note;
    }
    ShowNote(frmWizard->lblTimeTodayNote, notes);
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
    const DayMoments moments = MomentsOfPreview(input);
    ShowMoments(moments);
    ShowNotes(moments, input.options.highLatitude);
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
