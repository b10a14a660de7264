#include "desktop/face/qt_face.h"

#include <QLayout>
#include <QScreen>
#include <QShortcut>

#include "desktop/form_window/face_screen.h"
#include "engine/day_view.h"

namespace horavex {

// With the last of the captions another language may have come.
void QtFace::SetVariable(const std::string& name, const std::string& value) {
    PaintedFace::SetVariable(name, value);
    FaceView* view = LoadedView();
    if (view != nullptr && name == "prayer_time") {
        view->NameSigns(DesktopWord("Minimize"), DesktopWord("Close"));
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
        poster_->ShowDates(view.Weekday(), view.DateText(), view.HijriText());
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
        strip_->setFocus();
    } else {
        strip_->hide();
        strip_->deleteLater();
        strip_.clear();
    }
}

void QtFace::TakePoster(FaceView& view, bool fillsScreen) {
    if (fillsScreen == (poster_ != nullptr)) {
        return;
    }
    if (fillsScreen) {
        poster_ = new PosterView([&view] { view.onCommand("IDC_FS_fullScreen"); });
        awake_ = std::make_unique<ScreenAwake>(QStringLiteral("Prayer times fill the screen"));
        poster_->setGeometry(FaceScreen().geometry());
        poster_->showFullScreen();
        poster_->activateWindow();
    } else {
        awake_.reset();
        poster_->hide();
        poster_->deleteLater();
        poster_.clear();
    }
}

void QtFace::Fill(QWidget& window) {
    window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint |
                          Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    auto* view = new FaceView(QTime::currentTime, language_);
    FillWithView(window, view);
    auto* fullScreen = new QShortcut(Qt::Key_F11, &window);
    QObject::connect(fullScreen, &QShortcut::activated, view,
                     [view] { view->onCommand("IDC_FS_fullScreen"); });
}

}  // namespace horavex
