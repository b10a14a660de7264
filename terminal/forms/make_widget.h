#pragma once

#include <memory>
#include <vector>

#include "forms/form.h"
#include "terminal/forms/widget.h"

namespace horavex {

/// The control of a form that a layout names; nullptr for none.
Control* FindControl(const Form& form, const std::string& layoutName);

/// The captions of the controls that a layout names in one text, "fraQibla fraLanguage".
std::string CaptionsOf(const Form& form, const std::string& layoutNames);

/// The widgets of a form, one for each leaf of its layout that shows something.
std::vector<std::unique_ptr<Widget>> MakeWidgets(Form& form, const LayoutNode& layout,
                                                 WidgetSurroundings& around);

}  // namespace horavex
