#pragma once

#include "forms/combo_box.h"
#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/form_instance.h"
#include "forms/grid.h"
#include "forms/label.h"
#include "forms/picture.h"
#include "forms/range.h"
#include "forms/timer.h"

namespace horavex {

/// When the crescent of a Hijri month can be seen: its evenings at the accepted place, the first
/// days that follow from them beside those of the calendars, and one evening over the world.
class CrescentForm : public Form {
public:
    CrescentForm();
    ~CrescentForm() override;

    Label lblMonth{*this, "lblMonth", {.caption = "Hijri month"}};
    ComboBox cboMonth{*this, "cboMonth", {.typed = false}};
    Label lblYear{*this, "lblYear", {.caption = "Year"}};
    ComboBox cboYear{*this, "cboYear", {.typed = false}};
    CommandButton cmdPrev{*this, "cmdPrev", {.caption = "&Previous Month"}};
    CommandButton cmdNext{*this, "cmdNext", {.caption = "&Next Month"}};

    Label lblShownPlace{*this, "lblShownPlace"};
    Label lblShownNewMoon{*this, "lblShownNewMoon", {.caption = "New moon"}};
    Grid grdEvenings{*this, "grdEvenings"};

    /// What the map shows, for assistive tools alone.
    Label lblMap{*this, "lblMap", {.caption = "Where the crescent can be seen", .visible = false}};
    Picture picMap{*this, "picMap", {.width = 10800, .height = 5490}};

    Label lblEvening{*this, "lblEvening", {.caption = "Evening of the map"}};
    ComboBox cboEvening{*this, "cboEvening", {.typed = false}};
    Label lblCriterion{*this, "lblCriterion", {.caption = "Criterion of the map"}};
    ComboBox cboCriterion{*this, "cboCriterion", {.typed = false}};

    /// Rows of the map that are worked out.
    Label lblProgress{*this, "lblProgress", {.caption = "Progress of the map"}};
    ProgressBar prgMap{*this, "prgMap"};

    Label lblFirstDays{*this, "lblFirstDays", {.caption = "First day of the month"}};
    Grid grdDays{*this, "grdDays"};

    CommandButton cmdSaveMap{*this, "cmdSaveMap", {.caption = "&Save Map\u2026"}};
    CommandButton cmdHelp{*this, "cmdHelp", {.caption = "&Help"}};
    CommandButton cmdClose{*this, "cmdClose", {.caption = "&Close"}};

    /// Runs as long as the map is being worked out, a few rows at a time.
    Timer tmrMap{*this, "tmrMap", {.enabled = false, .intervalMs = 15}};
};

inline const FormInstance<CrescentForm> frmCrescent;

}  // namespace horavex
