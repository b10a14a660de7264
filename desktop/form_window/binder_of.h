#pragma once

#include <utility>

#include "desktop/form_window/binder.h"

namespace horavex {

/// A binder that knows the kind of its control and the class of its widget.
template <class ControlType, class WidgetType>
class BinderOf : public Binder {
public:
    BinderOf(Control& bound, QWidget& boundWidget, RefreshLater refreshLater)
        : Binder(bound, boundWidget, std::move(refreshLater)),
          control(dynamic_cast<ControlType&>(bound)),
          widget(dynamic_cast<WidgetType&>(boundWidget)) {}

protected:
    ControlType& control;
    WidgetType& widget;
};

}  // namespace horavex
