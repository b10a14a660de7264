#pragma once

#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/form_instance.h"
#include "forms/label.h"
#include "forms/picture.h"

namespace horavex {

/// What the program is, and the way to the desktop's own system information.
class AboutForm : public Form {
public:
    AboutForm();
    ~AboutForm() override;

    Picture picIcon{*this, "picIcon", {.width = 1200, .height = 1200}};
    Label lblTitle{*this, "lblTitle", {.caption = "Horavex"}};
    Label lblVersion{*this, "lblVersion", {.caption = "Version"}};
    Label lblDescription{
        *this,
        "lblDescription",
        {.caption =
             "Prayer times for any place, with the athan, the qibla, two calendars and the moon."}};
    SkinLabel SkinLabel1{
        *this,
        "SkinLabel1",
        {.caption = "The times follow from the place and the method that you set. Compare them "
                    "with the timetable of your mosque before you rely on Horavex."}};
    Label lblCredits{
        *this,
        "lblCredits",
        {.caption = "Places: GeoNames (CC BY 4.0). Coastlines: Natural Earth. The program "
                    "itself is free software under the MIT licence."}};
    CommandButton cmdOK{*this, "cmdOK", {.caption = "&OK"}};
    CommandButton cmdSysInfo{*this, "cmdSysInfo", {.caption = "&System Info..."}};
};

inline const FormInstance<AboutForm> frmAbout;

}  // namespace horavex
