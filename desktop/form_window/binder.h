#pragma once

#include <QObject>
#include <QWidget>
#include <functional>
#include <memory>

#include "forms/control.h"
#include "platform/fault_box.h"

namespace horavex {

class Focusable;

/// Keeps one control and its widget alike, both ways. What a user does goes to the control, and
/// the widget then shows what the control made of it, a refusal included.
class Binder : public QObject {
public:
    /// refreshLater has Refresh called in a later turn of the event loop.
    using RefreshLater = std::function<void(Control&)>;

    Binder(Control& control, QWidget& widget, RefreshLater refreshLater);

    QWidget& Widget() const { return widget_; }

    /// The form is unloaded: from now on the widget is on its own.
    void Retire() { retired_ = true; }

    /// Shows the control's present values. The widget sends no signal meanwhile.
    void Refresh();

protected:
    /// Shows what the kind has beside enabled state, visibility and tool tip.
    virtual void Show() = 0;

    /// The left mouse button was clicked on a widget that has no signal for it.
    virtual void Clicked() {}

    /// Hands a user's action to the control. The last step of its caller: the form may be gone.
    template <class Action>
    void Hand(Action action) {
        if (!retired_) {
            refreshLater_(control_);
            RunGuarded(action);
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void FocusMoved(const QEvent& event);

    Control& control_;
    QWidget& widget_;
    RefreshLater refreshLater_;
    Focusable* focusable_;  // the control, if its kind can hold the focus
    bool retired_ = false;
};

/// The binder of the control's kind. Throws std::bad_cast where the layout has a widget of
/// another kind.
std::unique_ptr<Binder> MakeBinder(Control& control, QWidget& widget,
                                   Binder::RefreshLater refreshLater);

}  // namespace horavex
