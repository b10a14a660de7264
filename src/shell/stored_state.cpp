#include "shell/stored_state.h"

#include "config/settings_window.h"
#include "platform/platform.h"
#include "store/location_files.h"
#include "store/location_record.h"
#include "store/settings_files.h"
#include "store/settings_record.h"
#include "store/text_table.h"

namespace horavex {

namespace {

constexpr std::uint16_t kDamaged = 91;

}  // namespace

bool LoadStoredSettings() {
    LoadActiveSettings();
    if (IsTextLanguage(ActiveSettings.Language)) {
        return true;
    }
    ActiveSettings.Language = 1;
    return false;
}

// Without stored settings the index is 0, which is any city or none: that is no damage.
bool LookUpStoredPlace() {
    if (FindLocation(ActiveSettings.CityIndex, ActiveLocation, ActiveCityText)) {
        return true;
    }
    const bool stored = ActiveSettings.Language != 0;
    ActiveSettings.CityIndex = kMeccaCityIndex;
    ActiveCityText = LookupLocation(ActiveSettings.CityIndex, ActiveLocation);
    return !stored;
}

void AskForSettings() {
    Ports().dialogs.ShowMessage(TextItem(kDamaged, ActiveSettings.Language), "",
                                MessageIcon::kExclamation);
    ShowSettingsWindow();
}

}  // namespace horavex
