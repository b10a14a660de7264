#include "desktop/form_window/binder.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <utility>

#include "desktop/form_window/accessible_names.h"
#include "desktop/form_window/caption_text.h"
#include "desktop/user_text.h"
#include "forms/focusable.h"

namespace horavex {

namespace {

constexpr const char* kBound = "bound";

/// The tabs over pages, for one, take the focus and belong to no control.
bool AControlHasTheFocus() {
    const QWidget* const focused = QApplication::focusWidget();
    return focused != nullptr && focused->property(kBound).toBool();
}

}  // namespace

Binder::Binder(Control& control, QWidget& widget, RefreshLater refreshLater)
    : control_(control),
      widget_(widget),
      refreshLater_(std::move(refreshLater)),
      focusable_(dynamic_cast<Focusable*>(&control)) {
    widget_.setProperty(kBound, true);
    widget_.installEventFilter(this);
}

void Binder::Refresh() {
    const QSignalBlocker held(widget_);
    if (control_.Has(Property::kEnabled)) {
        widget_.setEnabled(control_.Enabled());
    }
    if (control_.Has(Property::kToolTipText)) {
        widget_.setToolTip(UserText(control_.ToolTipText()));
    }
    if (control_.Has(Property::kCaption)) {
        SetOwnName(widget_, SpokenText(UserText(control_.Caption())));
    }
    Show();
    widget_.setVisible(control_.Visible());
}

bool Binder::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::FocusIn:
        case QEvent::FocusOut:
            FocusMoved(*event);
            break;
        case QEvent::KeyRelease:
            if (focusable_ != nullptr && !static_cast<QKeyEvent*>(event)->isAutoRepeat()) {
                Hand([this] { focusable_->UserKeyUp(); });
            }
            break;
        case QEvent::MouseButtonRelease:
            if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
                Clicked();
            }
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

// The control that gets the focus takes it from the one that had it, so that leaving counts only
// where no other control's widget gets it. A window that is left keeps its focus for its return.
void Binder::FocusMoved(const QEvent& event) {
    if (focusable_ == nullptr || retired_) {
        return;
    }
    const auto reason = static_cast<const QFocusEvent&>(event).reason();
    if (event.type() == QEvent::FocusIn) {
        RunGuarded([this] { focusable_->UserFocus(); });
    } else if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
               !AControlHasTheFocus()) {
        RunGuarded([this] { focusable_->UserLeave(); });
    }
}

}  // namespace horavex
