#pragma once

#include <QString>

#include "forms/control.h"

namespace horavex {

/// Object name of the widget that shows a control: the control's own, and for a member of an
/// array its index behind it: "optAsrRatio_1".
QString WidgetNameOf(const Control& control);

/// False for what no front end shows: timers, menu entries, and the controls that only store
/// texts for others to read.
bool HasWidget(Control& control);

}  // namespace horavex
