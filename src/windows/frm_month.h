#pragma once

#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/form_instance.h"
#include "forms/grid.h"
#include "forms/label.h"
#include "forms/list.h"
#include "forms/picture.h"

namespace horavex {

/// The year's table by months, and as one picture on a second page.
class MonthForm : public Form {
public:
    MonthForm();
    ~MonthForm() override;

    TabStrip tabPages{*this, "tabPages", {.items = {"Month", "Year"}, .listIndex = 0}};

    Label lblMonth{*this, "lblMonth", {.caption = "Month"}};
    CommandButton cmdPrev{*this, "cmdPrev", {.caption = "Previous Month"}};
    CommandButton cmdToday{*this, "cmdToday", {.caption = "Today"}};
    CommandButton cmdNext{*this, "cmdNext", {.caption = "Next Month"}};
    Grid grdMonth{*this, "grdMonth"};

    /// Footnotes on daylight saving; hidden in a month without a change.
    Label lblNote{*this, "lblNote"};

    Picture picYear{*this, "picYear", {.width = 13500, .height = 9000}};

    /// The day under the pointer in the picture, today before that.
    Label lblPointer{*this, "lblPointer"};

    CommandButton cmdSave{*this, "cmdSave", {.caption = "Save As"}};
    CommandButton cmdPreview{*this, "cmdPreview", {.caption = "Print Preview"}};
    CommandButton cmdPrint{*this, "cmdPrint", {.caption = "Print"}};
    CommandButton cmdClose{*this, "cmdClose", {.caption = "Close"}};
};

inline const FormInstance<MonthForm> frmMonth;

}  // namespace horavex
