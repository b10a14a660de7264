#include "desktop/form_window/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLayout>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QWindow>
#include <utility>

#include "desktop/documents/drawing_steps.h"
#include "desktop/form_window/accessible_names.h"
#include "desktop/form_window/arrow_buttons.h"
#include "desktop/form_window/button_rows.h"
#include "desktop/form_window/canvas.h"
#include "desktop/form_window/caption_text.h"
#include "desktop/form_window/face_screen.h"
#include "desktop/form_window/fit_screen.h"
#include "desktop/form_window/key_buttons.h"
#include "desktop/form_window/page_keys.h"
#include "desktop/form_window/step_labels.h"
#include "desktop/form_window/tab_pages.h"
#include "desktop/form_window/twips.h"
#include "desktop/form_window/widget_names.h"
#include "desktop/look/window_inks.h"
#include "desktop/look/window_look.h"
#include "desktop/user_text.h"
#include "forms/focusable.h"
#include "platform/fault_box.h"

namespace horavex {

namespace {

WindowState FormStateOf(Qt::WindowStates states) {
    if (states.testFlag(Qt::WindowMinimized)) {
        return WindowState::kMinimized;
    }
    return states.testFlag(Qt::WindowMaximized) ? WindowState::kMaximized : WindowState::kNormal;
}

Qt::WindowStates ToolkitStateOf(WindowState state) {
    switch (state) {
        case WindowState::kMinimized:
            return Qt::WindowMinimized;
        case WindowState::kMaximized:
            return Qt::WindowMaximized;
        case WindowState::kNormal:
            break;
    }
    return Qt::WindowNoState;
}

QPoint PlaceOf(const Form& form) {
    return {PixelsOf(form.Left()), PixelsOf(form.Top())};
}

QSize SizeOf(const Form& form) {
    return {PixelsOf(form.Width()), PixelsOf(form.Height())};
}

constexpr const char* kPlacedByProgram = "placedByProgram";

/// True for a window that its program alone places.
bool LayOut(QWidget& window, const Layout& layout) {
    layout(window);
    look::Dress(window);
    return window.property(kPlacedByProgram).toBool();
}

constexpr const char* kPlaceOfDrawing = "qt_form";

}  // namespace

FormWindow::FormWindow(Form& form, const Layout& layout)
    : form_(form), size_(SizeOf(form)), placedByProgram_(LayOut(*this, layout)) {
    resize(size_);
    for (Control* control : form_.Controls()) {
        Bind(*control);
    }
    BindArrowButtons(*this);
    BindPageKeys(*this);
    form_.SetObserver(this);
    FlushLater();
}

void FormWindow::Bind(Control& control) {
    if (control.Kind() == ControlKind::kTimer) {
        timers_[&control] = std::make_unique<TimerDrive>(static_cast<Timer&>(control));
        return;
    }
    QWidget* widget = HasWidget(control) ? findChild<QWidget*>(WidgetNameOf(control)) : nullptr;
    if (widget != nullptr) {
        binders_[&control] =
            MakeBinder(control, *widget, [this](Control& changed) { RefreshLater(changed); });
        changed_.insert(&control);
    }
}

void FormWindow::Retire() {
    retired_ = true;
    form_.SetObserver(nullptr);
    timers_.clear();
    for (const auto& [control, binder] : binders_) {
        binder->Retire();
    }
    hide();
    if (modalLoop_ != nullptr) {
        modalLoop_->quit();
    }
    DeleteBehindDialogs(*this);
}

void FormWindow::ControlChanged(Control& control) {
    if (const auto timer = timers_.find(&control); timer != timers_.end()) {
        timer->second->Update();
        return;
    }
    RefreshLater(control);
}

void FormWindow::ShowTextsAnew() {
    setWindowTitle(UserText(form_.Caption()));
    for (const auto& [control, binder] : binders_) {
        RefreshLater(*control);
    }
    update();
}

void FormWindow::FormChanged() {
    formChanged_ = true;
    FlushLater();
    if (modalLoop_ != nullptr && !form_.Visible()) {
        modalLoop_->quit();
    }
}

void FormWindow::RefreshLater(Control& control) {
    if (binders_.contains(&control)) {
        changed_.insert(&control);
        FlushLater();
    }
}

void FormWindow::FlushLater() {
    if (!std::exchange(flushPending_, true)) {
        QMetaObject::invokeMethod(
            this, [this] { Flush(); }, Qt::QueuedConnection);
    }
}

// In the form's order, for the order tells where the focus goes from a page that is turned away.
void FormWindow::RefreshChanged() {
    const std::set<Control*> changed = std::exchange(changed_, {});
    const std::vector<Control*> controls =
        form_.Controls();  // what a refresh sets off may add some
    for (Control* control : controls) {
        if (changed.contains(control)) {
            binders_.at(control)->Refresh();
        }
    }
}

void FormWindow::Flush() {
    flushPending_ = false;
    if (retired_) {
        return;
    }
    const bool controlsChanged = !changed_.empty();
    if (controlsChanged) {
        setLayoutDirection(DirectionOfCaptions(form_));
    }
    RefreshChanged();
    if (controlsChanged) {
        NameWidgets(*this);
        TitlePages(*this);
        GivePageKeys(*this);
        ShowSteps(*this);
        EvenButtonRows(*this);
    }
    if (std::exchange(formChanged_, false)) {
        FollowForm();
    }
    if (controlsChanged) {
        GrowWithContent();
    }
}

// A window that a user has made smaller stays so until it has more to show.
void FormWindow::GrowWithContent() {
    if (!isVisible() || placedByProgram_ || layout() == nullptr ||
        layout()->sizeConstraint() == QLayout::SetFixedSize) {
        return;
    }
    const QSize former = std::exchange(whole_, WholeSize(*this));
    if (whole_.width() > former.width() || whole_.height() > former.height()) {
        FitScreen();
    }
}

void FormWindow::FollowForm() {
    following_ = true;
    setWindowTitle(UserText(form_.Caption()));
    setEnabled(form_.Enabled());
    FollowPlace();
    FollowVisibility();
    FollowFocus();
    following_ = false;
    FollowDrawing();
}

void FormWindow::FollowPlace() {
    if (const QPoint place = PlaceOf(form_); place != place_) {
        place_ = place;
        itsScreen_ = FaceScreen().geometry();
        move(place);
    }
    if (const QSize size = SizeOf(form_); size != size_) {
        size_ = size;
        resize(size);
    }
    if (placedByProgram_) {
        KeepToItsScreen();
    }
}

void FormWindow::FollowVisibility() {
    if (!form_.Visible() || (placedByProgram_ && !LiesOnItsScreen())) {
        hide();
        return;
    }
    if (FormStateOf(windowState()) != form_.State()) {
        setWindowState(ToolkitStateOf(form_.State()));
    }
    if (!isVisible()) {
        Present();
    }
}

bool FormWindow::LiesOnItsScreen() const {
    return itsScreen_.intersects(QRect(place_, size_));
}

// The toolkit takes an empty mask for none; such a window is hidden.
void FormWindow::KeepToItsScreen() {
    const QRect area(place_, size_);
    if (itsScreen_.contains(area)) {
        clearMask();
    } else {
        setMask(itsScreen_.intersected(area).translated(-place_));
    }
}

void FormWindow::Present() {
    setWindowModality(form_.IsModal() ? Qt::ApplicationModal : Qt::NonModal);
    winId();  // makes the window of the platform, which the owner is set on
    usable_.Belong(owner_ != nullptr ? owner_->windowHandle() : nullptr);
    if (!placedByProgram_) {
        FitScreen();
    }
    show();
    usable_.TellOwner();
}

// Without a place of its own the window comes up over its owner, or else where the window manager
// puts it.
void FormWindow::FitScreen() {
    whole_ = WholeSize(*this);
    const QSize whole = size().expandedTo(whole_);
    const bool overOwner = owner_ != nullptr && owner_->isVisible() && place_.isNull();
    const QRect wanted(
        overOwner ? owner_->frameGeometry().center() - QRect({}, whole).center() : place_, whole);
    const QScreen& screen = overOwner ? *owner_->screen() : *this->screen();
    const QRect fitting = PutInto(screen.availableGeometry(), wanted, FrameAround(*this));
    resize(fitting.size());
    if (overOwner || !place_.isNull()) {
        move(fitting.topLeft());
    }
}

void FormWindow::FollowFocus() {
    Focusable* const holder = form_.FocusHolder();
    const auto binder = holder == nullptr ? binders_.end() : binders_.find(holder);
    if (binder != binders_.end()) {
        BringIntoView(binder->second->Widget());
        binder->second->Widget().setFocus();
    }
}

void FormWindow::FollowDrawing() {
    if (form_.onPaint) {
        form_.Paint();
        if (auto* place = findChild<Canvas*>(kPlaceOfDrawing); place != nullptr) {
            place->ShowWhole(form_.drawing);
        } else {
            update();
        }
    }
}

void FormWindow::BringUp(const QWidget* owner) {
    owner_ = owner;
    Flush();
    raise();
    if (!placedByProgram_ && form_.State() != WindowState::kMinimized) {
        activateWindow();
    }
}

// A form that unloads in the loop may take its window with it.
void FormWindow::RunUntilHidden() {
    const QPointer<FormWindow> self(this);
    QEventLoop loop;
    QEventLoop* const outer = std::exchange(modalLoop_, &loop);
    if (form_.Visible()) {
        loop.exec();
    }
    if (self) {
        modalLoop_ = outer;
    }
}

bool FormWindow::event(QEvent* event) {
    const bool isInTheWay =
        event->type() == QEvent::WindowBlocked || event->type() == ScreenFilled();
    if (isInTheWay && placedByProgram_ && windowHandle() != nullptr) {
        usable_.Belong();
    }
    if (event->type() == QEvent::WindowActivate && !retired_) {
        RunGuarded([this] { form_.UserActivate(); });
    }
    return QWidget::event(event);
}

// A key that is held down closes one window and not the next one, too.
void FormWindow::keyPressEvent(QKeyEvent* event) {
    QPushButton* button = nullptr;
    if (event->key() == Qt::Key_Escape && event->isAutoRepeat()) {
        return;
    }
    if (event->key() == Qt::Key_F1 && !retired_) {
        RunGuarded([this] { form_.UserHelp(); });
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        button = ButtonForEnter(*this);
    } else if (event->key() == Qt::Key_Escape) {
        button = CancelButton(*this);
    }
    if (button != nullptr) {
        button->click();
    } else if (event->key() == Qt::Key_Escape) {
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

// A page that is turned away hands its focus on by itself and must not be turned to again.
bool FormWindow::focusNextPrevChild(bool next) {
    if (focusWidget() != nullptr && !focusWidget()->isVisible()) {
        return QWidget::focusNextPrevChild(next);
    }
    QWidget* const widget = NextByTab(*this, next);
    if (widget == nullptr) {
        return false;
    }
    BringIntoView(*widget);
    widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void FormWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && !following_ && !retired_) {
        RunGuarded([this] { form_.SetWindowState(FormStateOf(windowState())); });
    }
}

// The form decides; when it agrees, it is unloaded by the time UserClose returns.
void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (!retired_) {
        RunGuarded([this] { form_.UserClose(); });
    }
}

void FormWindow::moveEvent(QMoveEvent*) {
    if (following_ || retired_ || placedByProgram_ || pos() == place_) {
        return;
    }
    place_ = pos();
    form_.SetLeft(TwipsOf(place_.x()));
    form_.SetTop(TwipsOf(place_.y()));
}

void FormWindow::resizeEvent(QResizeEvent*) {
    if (following_ || retired_ || size() == size_) {
        return;
    }
    size_ = size();
    RunGuarded([this] {
        form_.SetWidth(TwipsOf(size_.width()));
        form_.SetHeight(TwipsOf(size_.height()));
    });
}

void FormWindow::paintEvent(QPaintEvent*) {
    if (retired_ || findChild<Canvas*>(kPlaceOfDrawing) != nullptr) {
        return;
    }
    QPainter painter(this);
    DrawSteps(painter, rect(), {form_.ScaleWidth(), form_.ScaleHeight()}, form_.drawing,
              look::WindowInks(palette()));
}

}  // namespace horavex
