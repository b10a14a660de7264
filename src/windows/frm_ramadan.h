#pragma once

#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/form_instance.h"
#include "forms/label.h"
#include "forms/text_box.h"

namespace horavex {

/// Help on finding the first day of a lunar month with the moon tables.
class RamadanForm : public Form {
public:
    RamadanForm();
    ~RamadanForm() override;

    SkinLabel SkinLabel1{*this,
                         "SkinLabel1",
                         {.caption = "How to find the starting of any luner Month ( Example : "
                                     "Ramadan , Zul-heggah )"}};
    TextBox Text1{*this, "Text1"};
    CommandButton cmdClose{*this, "cmdClose", {.caption = "&Close"}};
};

inline const FormInstance<RamadanForm> frmRamadan;

}  // namespace horavex
