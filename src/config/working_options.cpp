#include "config/working_options.h"

#include <optional>

#include "base/program_state.h"
#include "config/automatic_zone.h"
#include "config/city_clock.h"
#include "config/unusable_file.h"
#include "store/settings_record.h"

namespace horavex {

namespace {

std::optional<YearOptions> chosen;
bool accepted = false;

const ProgramStateReset reset([] {
    chosen.reset();
    accepted = false;
});

}  // namespace

YearOptions WorkingRules() {
    return chosen ? *chosen : ReadRuleOptions();
}

YearOptions WorkingOptions() {
    YearOptions options = WorkingRules();
    options.zone = AutomaticZoneIsOn() ? ReadOrTell([] { return ZoneNameOf(Settings.CityIndex); })
                                       : std::string();
    return options;
}

HighLatitudeRule WorkingRule() {
    return chosen ? chosen->highLatitude : ReadOption(option::kHighLatitudeRule);
}

void ChooseOptions(const YearOptions& options) {
    chosen = options;
}

bool OptionsAreChosen() {
    return chosen.has_value();
}

std::optional<YearOptions> WaitingOptions() {
    return chosen;
}

void BringOptionsBack(const std::optional<YearOptions>& options) {
    chosen = options;
}

void DropChosenOptions() {
    chosen.reset();
}

void ChosenOptionsAreAccepted() {
    chosen.reset();
    accepted = true;
}

bool AnythingWasAccepted() {
    return accepted;
}

}  // namespace horavex
