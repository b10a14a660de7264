#include "terminal/forms/form_sheet.h"

namespace horavex {

FormSheet::FormSheet(Form& form, Host& host) : form_(form), host_(host) {
    form_.SetObserver(this);
}

FormSheet::~FormSheet() {
    Retire();
}

void FormSheet::Retire() {
    if (!retired_) {
        retired_ = true;
        form_.SetObserver(nullptr);
        host_.desk.TakeAway(*this);
    }
}

void FormSheet::ControlChanged(Control& control) {
    if (control.Kind() == ControlKind::kTimer) {
        host_.timerChanged(control);
    } else {
        host_.desk.Invalidate();
    }
}

void FormSheet::FormChanged() {
    if (form_.Visible()) {
        host_.desk.Invalidate();
    } else {
        host_.desk.TakeAway(*this);
    }
}

}  // namespace horavex
