#pragma once

#include <QAbstractSlider>
#include <QProgressBar>

#include "desktop/form_window/binder_of.h"
#include "forms/range.h"

namespace horavex {

/// Scroll bars and sliders. A thumb that is held drags; a step, or the thumb let go, slides. Where
/// the lower limit is the greater one the widget runs backwards.
class MovableRangeBinder : public BinderOf<MovableRange, QAbstractSlider> {
public:
    MovableRangeBinder(Control& bound, QWidget& boundWidget, RefreshLater refreshLater);

protected:
    void Show() override;
};

class ProgressBarBinder : public BinderOf<ProgressBar, QProgressBar> {
public:
    using BinderOf::BinderOf;

protected:
    void Show() override;
};

}  // namespace horavex
