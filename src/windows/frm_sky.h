#pragma once

#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/form_instance.h"
#include "forms/grid.h"
#include "forms/label.h"
#include "forms/list.h"
#include "forms/picture.h"
#include "forms/timer.h"

namespace horavex {

/// The sky as it is over the accepted place: each page is a table with lines below it; the day's
/// has a picture between them, the others are of a year that can be turned.
class SkyForm : public Form {
public:
    SkyForm();
    ~SkyForm() override;

    TabStrip tabPages{
        *this, "tabPages", {.items = {"Today", "Moon phases", "Eclipses", "Qibla by the sun"}}};

    Label lblShownPlace{*this, "lblShownPlace"};
    Label lblShownTime{*this, "lblShownTime"};  // date and time of now, or the year
    Grid grdTable{*this, "grdTable"};

    Picture picArcs{*this, "picArcs", {.width = 12600, .height = 3600}};
    Label lblLegend{
        *this,
        "lblLegend",
        {.caption = "Altitude over the day: the sun yellow, the moon grey; below the "
                    "horizon the three twilights. The upright line marks the present."}};
    Label lblShownNote{*this, "lblShownNote"};

    CommandButton cmdPrev{*this, "cmdPrev", {.caption = "&Previous Year"}};
    CommandButton cmdToday{*this, "cmdToday", {.caption = "&This Year"}};
    CommandButton cmdNext{*this, "cmdNext", {.caption = "&Next Year"}};
    CommandButton cmdCrescent{*this, "cmdCrescent", {.caption = "Cr&escent"}};
    CommandButton cmdPrint{*this, "cmdPrint", {.caption = "P&rint", .toolTipText = "Print window"}};
    CommandButton cmdHelp{*this, "cmdHelp", {.caption = "&Help"}};
    CommandButton cmdClose{*this, "cmdClose", {.caption = "&Close"}};

    /// What stands now is looked at again, as long as the day is on view.
    Timer tmrNow{*this, "tmrNow", {.enabled = false, .intervalMs = 60000}};

    /// A year that was turned to is worked out a little later, for turns come in runs.
    Timer tmrTurn{*this, "tmrTurn", {.enabled = false, .intervalMs = 100}};
};

inline const FormInstance<SkyForm> frmSky;

}  // namespace horavex
