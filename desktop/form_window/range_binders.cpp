#include "desktop/form_window/range_binders.h"

#include <algorithm>

#include "desktop/user_text.h"
#include "lang/filled_text.h"
#include "lang/language_pack.h"

namespace horavex {

MovableRangeBinder::MovableRangeBinder(Control& bound, QWidget& boundWidget,
                                       RefreshLater refreshLater)
    : BinderOf(bound, boundWidget, std::move(refreshLater)) {
    connect(&widget, &QAbstractSlider::valueChanged, this, [this](int value) {
        const bool held = widget.isSliderDown();
        Hand([this, held, value] { held ? control.UserDrag(value) : control.UserSlide(value); });
    });
    connect(&widget, &QAbstractSlider::sliderReleased, this,
            [this] { Hand([this] { control.UserSlide(widget.value()); }); });
}

void MovableRangeBinder::Show() {
    const auto [lowest, highest] = std::minmax({control.Min(), control.Max()});
    const bool backwards = control.Min() > control.Max();
    widget.setInvertedAppearance(backwards);
    widget.setInvertedControls(backwards);
    widget.setRange(lowest, highest);
    widget.setSingleStep(control.SmallStep());
    widget.setPageStep(control.LargeStep());
    widget.setValue(control.Value());
}

void ProgressBarBinder::Show() {
    const auto [lowest, highest] = std::minmax({control.Min(), control.Max()});
    widget.setInvertedAppearance(control.Min() > control.Max());
    widget.setRange(lowest, highest);
    widget.setValue(control.Value());
    const int percent = 100 * (control.Value() - lowest) / std::max(1, highest - lowest);
    widget.setFormat(UserText(FilledText(GetLangString("reminders", "Percent", "{percent}%"),
                                         "{percent}", std::to_string(percent))));
}

}  // namespace horavex
