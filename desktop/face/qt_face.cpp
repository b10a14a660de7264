#include "desktop/face/qt_face.h"

#include <QLayout>
#include <QScreen>
#include <QShortcut>

#include "desktop/form_window/fit_screen.h"
#include "desktop/form_window/usable_window.h"
#include "engine/day_view.h"
#include "lang/language_pack.h"
#include "platform/platform.h"

namespace horavex {

namespace {

/// Of the program's clock, the local one.
QTime TimeOfDay() {
    const ClockTime time = ClockTimeOf(Ports().clock.Now());
    return {time.hour, time.minute, time.second};
}

// Desktops show it to whoever asks why the screen stays on.
QString ReasonToStayOn() {
    return QString::fromStdString(
        GetLangString("desktop", "FillsScreen", "Prayer times fill the screen"));
}

/// A window that has grown stays on its screen.
void KeepOnScreen(QWidget& window) {
    window.layout()->activate();
    const QRect area = window.screen()->availableGeometry();
    const QPoint place = PutInto(area, window.geometry(), {}).topLeft();
    if (place != window.pos()) {
        window.move(place);
    }
}

}  // namespace

QtFace::~QtFace() {
    delete poster_.data();
}

// With the last of the captions another language may have come.
void QtFace::SetVariable(const std::string& name, const std::string& value) {
    PaintedFace::SetVariable(name, value);
    FaceView* view = LoadedView();
    if (view != nullptr && name == "prayer_time") {
        view->NameSigns(DesktopWord("Minimize"), DesktopWord("Close"));
        NameStrip();
    }
}

void QtFace::ShowDay(const DayView& day) {
    if (FaceView* view = LoadedView()) {
        day_ = FaceDayOf(day);
        view->ShowDay(day_);
        ShowInShapes(*view);
    }
}

void QtFace::ShowInShapes(FaceView& view) {
    if (day_.rows.empty()) {
        return;
    }
    if (strip_ != nullptr) {
        strip_->ShowDay(day_);
    }
    if (poster_ != nullptr) {
        poster_->ShowDates({view.Weekday(), view.DateText(), view.HijriText()});
        poster_->ShowDay(day_);
    }
}

void QtFace::TakeShape(const FaceShape& shape) {
    if (FaceView* view = LoadedView()) {
        TakeStrip(*view, shape.small);
        TakePoster(*view, shape.fillsScreen);
        ShowInShapes(*view);
    }
}

void QtFace::NameStrip() {
    if (strip_ != nullptr) {
        strip_->NameSign(DesktopWord("NormalSize"));
    }
}

// The window takes the size of what is left in it. A button of what goes may just be pressed.
void QtFace::TakeStrip(FaceView& view, bool small) {
    if (small == (strip_ != nullptr)) {
        return;
    }
    view.setVisible(!small);
    if (small) {
        strip_ = new StripView;
        strip_->onCommand = view.onCommand;
        view.parentWidget()->layout()->addWidget(strip_);
        NameStrip();
        strip_->setFocus();
    } else {
        strip_->hide();
        strip_->deleteLater();
        strip_.clear();
    }
    KeepOnScreen(*view.window());
}

void QtFace::TakePoster(FaceView& view, bool fillsScreen) {
    if (fillsScreen && poster_ != nullptr) {
        poster_->raise();
        poster_->activateWindow();
        return;
    }
    if (fillsScreen) {
        poster_ = new PosterView([&view] { view.onCommand("IDC_FS_fullScreen"); });
        awake_ = std::make_unique<ScreenAwake>(ReasonToStayOn(), bus_());
        painting_->LieBeneath(*poster_);
        poster_->Fill(*view.screen());
    } else if (poster_ != nullptr) {
        awake_.reset();
        poster_->hide();
        DeleteBehindDialogs(*poster_);
        poster_.clear();
    }
}

void QtFace::Fill(QWidget& window) {
    window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint |
                          Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    auto* view = new FaceView(TimeOfDay, language_);
    FillWithView(window, view);
    painting_ = new PaintWhenSeen(window);
    auto* fullScreen = new QShortcut(Qt::Key_F11, &window);
    fullScreen->setAutoRepeat(false);
    QObject::connect(fullScreen, &QShortcut::activated, view,
                     [view] { view->onCommand("IDC_FS_fullScreen"); });
}

}  // namespace horavex
