#include "desktop/face/poster_view.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <utility>

#include "desktop/face/fitted_text.h"
#include "desktop/face/paint_when_seen.h"
#include "desktop/face/palette.h"
#include "sky/day_sky.h"

namespace horavex {

namespace {

constexpr double kCorner = 8.0;  // radius, pixels

/// What of a day is written besides the countdown.
bool SameButForTheCountdown(const FaceDay& a, const FaceDay& b) {
    return a.rows == b.rows && a.iqamas == b.iqamas && a.next == b.next && a.clock == b.clock &&
           a.place == b.place && a.sky == b.sky;
}

void Write(QPainter& painter, const std::vector<PosterText>& texts) {
    for (const PosterText& text : texts) {
        painter.setPen(text.colour);
        DrawFitted(painter, text.area, Qt::AlignCenter, FaceFont(text.pixels, text.bold),
                   text.text);
    }
}

}  // namespace

PosterView::PosterView(std::function<void()> leave) : leave_(std::move(leave)), layout_(size()) {
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    setWindowTitle(QCoreApplication::applicationName());
    setCursor(Qt::BlankCursor);
    setContextMenuPolicy(Qt::PreventContextMenu);
    new PaintWhenSeen(*this);
}

// Where windows know no places the screen alone counts.
void PosterView::Fill(QScreen& screen) {
    setScreen(&screen);
    setGeometry(screen.geometry());
    winId();  // makes the window of the platform
    usable_.Belong();
    showFullScreen();
    usable_.TellOwner();
    TellScreenFilled();
    activateWindow();
}

void PosterView::ShowDay(const FaceDay& day) {
    const bool sameSky = day_ && day_->sky == day.sky;
    const bool same = day_ && SameButForTheCountdown(*day_, day);
    day_ = day;
    if (!sameSky && day.sky != nullptr && ground_) {
        ground_->ShowSun(day.sky->sunAltitude);
    }
    if (same) {
        update(layout_.CountdownArea());
    } else {
        update();
        setAccessibleName(day.rows.at(day.next).name + u' ' + day.rows.at(day.next).time);
    }
}

void PosterView::ShowDates(const PosterDates& dates) {
    if (dates_ != dates) {
        dates_ = dates;
        update();
    }
}

void PosterView::resizeEvent(QResizeEvent*) {
    layout_ = PosterLayout(size());
    PlanGround();
}

void PosterView::PlanGround() {
    SkyGround::Plan plan{rect(), layout_.StarsArea(), {}, {}};
    for (std::size_t prayer = 0; prayer < PosterLayout::kCells; ++prayer) {
        plan.cards.push_back(layout_.Cell(prayer, Qt::LeftToRight).toRect());
    }
    ground_.emplace(plan);
    if (day_ && day_->sky != nullptr) {
        ground_->ShowSun(day_->sky->sunAltitude);
    }
}

// A key that is held down would leave and come back at the keyboard's rate.
void PosterView::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape && event->key() != Qt::Key_F11) {
        QWidget::keyPressEvent(event);
    } else if (!event->isAutoRepeat()) {
        leave_();
    }
}

void PosterView::mouseDoubleClickEvent(QMouseEvent*) {
    leave_();
}

// Whoever put it up takes it away, and what goes with it.
void PosterView::closeEvent(QCloseEvent* event) {
    event->ignore();
    leave_();
}

void PosterView::paintEvent(QPaintEvent* event) {
    if (!ground_ || !day_) {
        return;
    }
    QPainter painter(this);
    ground_->Paint(painter, event->rect(), devicePixelRatioF());
    Write(painter, layout_.Countdown(*day_));
    if (!layout_.CountdownArea().contains(event->rect())) {
        MarkNext(painter);
        Write(painter, layout_.Rest(*day_, dates_));
    }
}

void PosterView::MarkNext(QPainter& painter) const {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kGlow);
    const Qt::LayoutDirection direction = DirectionOf(day_->cells.front().name);
    painter.drawRoundedRect(layout_.Cell(day_->next, direction), kCorner, kCorner);
}

}  // namespace horavex
