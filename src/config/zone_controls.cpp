#include "config/zone_controls.h"

#include "base/int16.h"
#include "base/number_text.h"
#include "config/settings_display.h"
#include "platform/platform.h"
#include "store/settings_record.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

/// A control that stands already where it is put writes nothing; what is shown counts all the same.
void WriteShownDaylight() {
    const SettingsForm& form = *HoravexMainForm;
    Settings.DstEnabled = ToInt16(form.chkDayLT.Value());
    if (Settings.DstEnabled == 1) {
        Settings.DstStart = ToInt16(form.hsBegin.Value() + 1);
        Settings.DstEnd = ToInt16(form.hsEnd.Value() + 1);
    }
    sub0602();
    sub06C6();
    sub071C();
}

}  // namespace

void FillZoneControls(const ZoneYear& zone) {
    SettingsForm& form = *HoravexMainForm;
    form.txtTimeZone.SetText(SignedFixedText(zone.hours, Ports().formats.DecimalMark()));
    form.chkDayLT.SetValue(zone.daylight ? 1 : 0);
    if (zone.daylight) {
        form.hsBegin.SetValue(zone.dstStart - 1);
        form.hsEnd.SetValue(zone.dstEnd - 1);
    }
    WriteShownDaylight();
}

}  // namespace horavex
