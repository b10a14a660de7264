#include "config/commit.h"

#include <string>

#include "base/fault.h"
#include "base/number_text.h"
#include "base/program_state.h"
#include "config/adjustments.h"
#include "config/automatic_zone.h"
#include "config/city_choice.h"
#include "config/city_clock.h"
#include "config/settings_controls.h"
#include "config/settings_display.h"
#include "config/working_options.h"
#include "config/zone_box.h"
#include "engine/day_driver.h"
#include "engine/year_table.h"
#include "geo/qibla_window.h"
#include "platform/platform.h"
#include "store/location_files.h"
#include "store/location_record.h"
#include "store/location_text.h"
#include "store/options.h"
#include "store/settings_files.h"
#include "store/settings_record.h"
#include "store/stored_values.h"
#include "store/text_table.h"
#include "windows/f_country.h"
#include "windows/frm_adjust.h"
#include "windows/frm_main.h"
#include "windows/frm_wizard.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

constexpr double kLastZone = 12.0;  // hours; the wizard stops an hour earlier

int running = 0;

const ProgramStateReset reset([] { running = 0; });

/// Keeps the user out of all that edits working values: what is accepted is what was calculated.
class ShutWindows {
public:
    ShutWindows() {
        ++running;
        SetEnabled(false);
    }
    ~ShutWindows() {
        --running;
        SetEnabled(running == 0);
    }
    ShutWindows(const ShutWindows&) = delete;
    ShutWindows& operator=(const ShutWindows&) = delete;

private:
    static void SetEnabled(bool enabled) {
        HoravexMainForm->SetEnabled(enabled);
        frmWizard->SetEnabled(enabled);
        fCountry->SetEnabled(enabled);
        frmAdjust->SetEnabled(enabled);
    }

    const ZoneHold zone_;
};

/// The working values at a moment.
class WorkingValues {
public:
    void PutBack() const {
        Settings = settings_;
        Location = location_;
        CityText = cityText_;
        IshaAngle = ishaAngle_;
    }

private:
    SettingsRecord settings_ = Settings;
    LocationRecord location_ = Location;
    std::string cityText_ = CityText;
    double ishaAngle_ = IshaAngle;
};

/// The working values are the accepted ones as long as it lives; the edits come back behind it,
/// with the zone of the year that is now.
class AcceptedValues {
public:
    AcceptedValues() {
        KeepAcceptedZone();
        CopyActiveToWorking();
        IshaAngle = ActiveIshaAngle;
    }
    ~AcceptedValues() {
        edits_.PutBack();
        RunStep(FollowCity);
    }
    AcceptedValues(const AcceptedValues&) = delete;
    AcceptedValues& operator=(const AcceptedValues&) = delete;

private:
    const WorkingValues edits_;
};

std::string Text(TextEntry entry) {
    return TextItem(entry, Settings.Language);
}

void RefuseZone() {
    RunStep([] {
        Ports().dialogs.ShowMessage(
            Text(TextEntry::kPleaseCheck) + " " + Text(TextEntry::kTimeZone) + ". " +
                Text(TextEntry::kNearestZone) + " " + std::to_string(ZoneNearest),
            "", MessageIcon::kNone);
    });
    HoravexMainForm->txtTimeZone.SetFocus();
}

void AcceptPlace() {
    if (Settings.CityIndex == ActiveSettings.CityIndex) {
        return;
    }
    ActiveCityText = CityText;
    ActiveLocation = Location;
    frmMain->lblCity.SetCaption(ActiveCityText);
    HoravexMainForm->lblCityBanner.SetCaption(Text(TextEntry::kCity) + ": " + ActiveCityText);
}

void AcceptLanguage() {
    if (Settings.Language != ActiveSettings.Language) {
        TranslateSettingsWindow(Settings.Language);
        HoravexMainForm->SetHelpContextId(Settings.Language * 1000);
    }
}

void AcceptAthanType() {
    if (Settings.AthanType != ActiveSettings.AthanType) {
        HoravexMainForm->cmdAthan.SetEnabled(Settings.AthanType == kSoundAthan);
    }
}

void EnableQibla() {
    HoravexMainForm->cmdQibla.SetEnabled(Settings.CityIndex != kMeccaCityIndex);
}

void Accept() {
    RunStep(AcceptPlace);
    RunStep(AcceptLanguage);
    RunStep(EnableQibla);
    RunStep(AcceptAthanType);
    ActiveSettings = Settings;
    ActiveIshaAngle = IshaAngle;
    RunStep(Qibla);  // the calculation still spoke the language of the former settings
    RunStep(SaveActiveSettings);
}

/// The face goes by the accepted state, and so does its city.
void Refuse() {
    RunStep([] { HoravexMainForm->SetVisible(true); });
    frmMain->lblCity.SetCaption(ActiveCityText);
}

void Store() {
    RunStep(SaveWorkingSettings);
    RunStep(SaveIshaAngle);
    RunStep(LoadQiblaLabels);
    RunStep(ShowTimeZone);
    frmWizard->lblCity.SetCaption(HoravexMainForm->lblCity.Caption());
}

/// An athan that comes meanwhile opens the settings window to the user again; what is written then
/// was not calculated.
void Commit() {
    const WorkingValues tried;
    RunStep(RefreshAll);
    tried.PutBack();
    if (CalcFailed != 0) {
        Refuse();
    } else {
        Accept();
    }
    Store();
}

/// The calculation goes by the options that are tried; refused ones give way to the accepted ones.
void CommitWithOptions() {
    const int acceptedZone = ReadOption(option::kAutomaticZone);
    const YearOptions accepted = ReadRuleOptions();
    SaveZoneOption(AutomaticZoneIsOn() ? 1 : 0);
    SaveYearOptions(WorkingRules());
    Commit();
    if (CalcFailed != 0) {
        SaveZoneOption(acceptedZone);
        SaveYearOptions(accepted);
    } else {
        ChosenOptionsAreAccepted();
    }
}

/// A commit behind the settings window, which keeps what it shows.
template <class Action>
void BehindSettingsWindow(Action commit) {
    SettingsForm& form = *HoravexMainForm;
    const bool wasOpen = form.Visible();
    const std::string zone = form.txtTimeZone.Text();
    commit();
    form.txtTimeZone.SetText(zone);
    form.SetVisible(wasOpen);
}

void TakeAngles(const Adjustments& adjustments) {
    Settings.FajrAngle = adjustments.fajrAngle;
    IshaAngle = adjustments.ishaAngle;
}

/// Refused ones give way to the accepted ones, on disk too.
void CommitAdjustments(const Adjustments& tried) {
    const YearOptions former = ReadRuleOptions();
    TakeAngles(tried);
    SaveYearOptions(tried.options);
    Commit();
    if (CalcFailed != 0) {
        SaveYearOptions(former);
        Settings.FajrAngle = ActiveSettings.FajrAngle;
        IshaAngle = ActiveIshaAngle;
        Store();
    }
}

}  // namespace

// An athan opens the window to the user while a commit waits, and its button stays without effect.
void SettingsSet_Click() {
    if (CommitIsRunning()) {
        return;
    }
    const auto zone = ZoneIn(HoravexMainForm->txtTimeZone.Text(), kLastZone);
    if (!zone) {
        RefuseZone();
        return;
    }
    const ShutWindows shut;
    Settings.TimeZone = *zone;
    CommitWithOptions();
    HoravexMainForm->Hide();
    EndCityChoice();
}

void SetSettings() {
    SettingsSet_Click();
}

void SetAcceptedAgain() {
    if (CommitIsRunning()) {
        return;
    }
    const ShutWindows shut;
    const AcceptedValues accepted;
    BehindSettingsWindow(Commit);
}

bool SetAdjustments(const Adjustments& adjustments) {
    if (CommitIsRunning()) {
        return false;
    }
    const ShutWindows shut;
    {
        const AcceptedValues accepted;
        BehindSettingsWindow([&] { CommitAdjustments(adjustments); });
    }
    if (CalcFailed == 0) {
        ChosenOptionsAreAccepted();
        TakeAngles(adjustments);
        ShowWorkingValues();
    }
    return CalcFailed == 0;
}

void RefreshAcceptedYear() {
    if (CommitIsRunning()) {
        return;
    }
    const ShutWindows shut;
    const AcceptedValues accepted;
    RefreshAll();
}

bool CommitIsRunning() {
    return running > 0;
}

}  // namespace horavex
