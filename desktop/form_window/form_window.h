#pragma once

#include <QPointer>
#include <QWidget>
#include <map>
#include <memory>
#include <set>

#include "desktop/form_window/binder.h"
#include "desktop/form_window/layouts.h"
#include "desktop/form_window/timer_drive.h"
#include "desktop/form_window/usable_window.h"
#include "forms/form.h"

class QEventLoop;

namespace horavex {

/// The window of one loaded form: a binder for each control, the form's timers, and the window
/// itself with its place, state and close box. What changes in the form shows in the next turn of
/// the event loop, however often it changes in one.
///
/// A layout may name its window "placedByProgram": the place is then the form's alone, the window
/// takes no keyboard as it comes up, and it is seen on the screen alone by which it was placed,
/// that of the program's face: what lies beyond its edges is masked, on the monitors around it,
/// too. No modal window shuts it off, whoever opened it, and none that fills the screen hides it.
///
/// A window comes up no larger than the work area with its frame; what a layout scrolls makes room.
/// It grows when it gets more to show.
///
/// Enter presses the button that has the focus, or else the layout's default button; Escape the
/// one that the layout marks with the property "cancels", or else it closes the window. The Tab key
/// goes through the pages behind tabs as if they lay below each other.
class FormWindow : public QWidget, private FormObserver {
public:
    FormWindow(Form& form, const Layout& layout);

    const Form& Shown() const { return form_; }

    /// The form is unloaded: the window goes away as soon as no event of its own is running.
    void Retire();

    /// Shows the present texts in the digits that users have chosen now.
    void ShowTextsAnew();

    /// Shows what is pending now.
    void Flush();

    /// Shows the window in front of the others, its owner included; nullptr for none.
    void BringUp(const QWidget* owner);

    /// Delivers events until the form is hidden.
    void RunUntilHidden();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    void ControlChanged(Control& control) override;
    void FormChanged() override;

    void Bind(Control& control);
    void RefreshLater(Control& control);
    void RefreshChanged();
    void FlushLater();

    void FollowForm();
    void FollowPlace();
    void FollowVisibility();
    bool LiesOnItsScreen() const;
    void KeepToItsScreen();
    void FollowFocus();
    void FollowDrawing();
    void Present();
    void FitScreen();
    void GrowWithContent();

    Form& form_;
    std::map<Control*, std::unique_ptr<Binder>> binders_;
    std::map<Control*, std::unique_ptr<TimerDrive>> timers_;
    std::set<Control*> changed_;  // controls that are to be refreshed
    bool formChanged_ = true;     // the window itself is to be refreshed
    bool flushPending_ = false;   // a Flush is on its way
    bool following_ = false;      // the window takes over the form's values at this moment
    bool retired_ = false;
    QPoint place_;  // pixels, as last known on both sides
    QSize size_;    // pixels, likewise
    QSize whole_;   // pixels, of the window with all that it scrolls, when it was last fitted
    const bool placedByProgram_;
    QRect itsScreen_;  // of a window that is placed by the program, pixels
    QPointer<const QWidget> owner_;
    UsableWindow usable_{*this};
    QEventLoop* modalLoop_ = nullptr;  // of the innermost RunUntilHidden
};

}  // namespace horavex
