#pragma once

#include "forms/combo_box.h"
#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/form_instance.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/option_button.h"

namespace horavex {

/// Conversion of a date between the calendars.
class DateConvertForm : public Form {
public:
    DateConvertForm();
    ~DateConvertForm() override;

    horavex::Frame fraDirection{*this, "fraDirection", {.caption = "Convert to"}};
    OptionButton choHijri{fraDirection,
                          "choHijri",
                          {.caption = "Hijri",
                           .toolTipText = "Calculate Hijri date from Gregorian date entered",
                           .value = 1}};
    OptionButton choGregorian{fraDirection,
                              "choGregorian",
                              {.caption = "Gregorian",
                               .toolTipText = "Calculate Gregorian date from Hijri date entered"}};
    Label lblDay{*this, "lblDay", {.caption = "Day"}};
    ComboBox cboDay{*this, "cboDay"};
    Label lblMonth{*this, "lblMonth", {.caption = "Month"}};
    ComboBox cboMonth{*this, "cboMonth"};
    Label lblYear{*this, "lblYear", {.caption = "Year"}};
    ComboBox cboYear{*this, "cboYear"};
    CommandButton cmdConvert{*this, "cmdConvert", {.caption = "Convert"}};
    CommandButton TodaysDate{
        *this, "TodaysDate", {.caption = "Today's Date", .toolTipText = "Convert todays date"}};
    Label lblResult{*this, "lblResult"};
    Label lblNote{*this,
                  "lblNote",
                  {.caption = "Calculated by an arithmetic of its own, which can differ by a day "
                              "from the date on the face."}};
    CommandButton HijriDateConversionHelp{*this, "HijriDateConversionHelp", {.caption = "&Help"}};
    CommandButton cmdClose{*this, "cmdClose", {.caption = "&Close"}};
};

inline const FormInstance<DateConvertForm> frmDateConvert;

}  // namespace horavex
