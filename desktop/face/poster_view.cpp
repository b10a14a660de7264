#include "desktop/face/poster_view.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>
#include <tuple>
#include <utility>

#include "desktop/face/countdown_line.h"
#include "desktop/face/fitted_text.h"
#include "desktop/face/palette.h"
#include "sky/day_sky.h"

namespace horavex {

namespace {

constexpr std::size_t kCells = 6;

// Parts of the height. Letters of a twentieth of it are read from ten metres on a screen of 70 cm.
constexpr double kHeadTop = 0.035;
constexpr double kHead = 0.07;
constexpr double kClockTop = 0.19;
constexpr double kClock = 0.26;
constexpr double kNextTop = 0.46;
constexpr double kNext = 0.13;
constexpr double kCellsTop = 0.64;
constexpr double kCellsBottom = 0.95;
constexpr double kMargin = 0.03;

/// What of a day is written besides the countdown.
bool SameButForTheCountdown(const FaceDay& a, const FaceDay& b) {
    return a.rows == b.rows && a.iqamas == b.iqamas && a.next == b.next && a.clock == b.clock &&
           a.place == b.place && a.sky == b.sky;
}

}  // namespace

PosterView::PosterView(std::function<void()> leave) : leave_(std::move(leave)) {
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    setWindowTitle(QCoreApplication::applicationName());
    setCursor(Qt::BlankCursor);
    setContextMenuPolicy(Qt::PreventContextMenu);
}

void PosterView::ShowDay(const FaceDay& day) {
    const bool sameSky = day_ && day_->sky == day.sky;
    const bool same = day_ && SameButForTheCountdown(*day_, day);
    day_ = day;
    if (!sameSky && day.sky != nullptr && ground_) {
        ground_->ShowSun(day.sky->sunAltitude);
    }
    same ? update(CountdownArea()) : update();
    setAccessibleName(day.rows.at(day.next).name + u' ' + day.rows.at(day.next).time);
}

void PosterView::ShowDates(const QString& day, const QString& date, const QString& hijri) {
    if (std::tie(weekday_, date_, hijri_) != std::tie(day, date, hijri)) {
        std::tie(weekday_, date_, hijri_) = std::tie(day, date, hijri);
        update();
    }
}

void PosterView::resizeEvent(QResizeEvent*) {
    PlanGround();
}

void PosterView::PlanGround() {
    SkyGround::Plan plan{rect(), Line(0.0, kCellsTop).toRect(), {}, {}};
    for (std::size_t prayer = 0; prayer < kCells; ++prayer) {
        plan.cards.push_back(Cell(prayer).toRect());
    }
    ground_.emplace(plan);
    if (day_ && day_->sky != nullptr) {
        ground_->ShowSun(day_->sky->sunAltitude);
    }
}

void PosterView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_F11) {
        leave_();
    } else {
        QWidget::keyPressEvent(event);
    }
}

/// A line from margin to margin; both in parts of the height.
QRectF PosterView::Line(double top, double lineHeight) const {
    const double margin = kMargin * height();
    return {margin, top * height(), width() - 2.0 * margin, lineHeight * height()};
}

QRect PosterView::CountdownArea() const {
    return Line(kNextTop, kNext).toAlignedRect();
}

// Side by side from the left, from the right in a script that begins there.
QRectF PosterView::Cell(std::size_t prayer) const {
    const QRectF row = Line(kCellsTop, kCellsBottom - kCellsTop);
    const bool fromRight = day_ && DirectionOf(day_->rows.front().name) == Qt::RightToLeft;
    const auto place = static_cast<double>(fromRight ? kCells - 1 - prayer : prayer);
    const double step = row.width() / kCells;
    const double gap = 0.006 * height();
    return QRectF(row.left() + place * step, row.top(), step, row.height())
        .adjusted(gap, 0.0, -gap, 0.0);
}

void PosterView::Write(QPainter& painter, const QRectF& area, double part, const QColor& colour,
                       const QString& text, bool bold) const {
    painter.setPen(colour);
    DrawFitted(painter, area, Qt::AlignCenter, FaceFont(static_cast<int>(part * height()), bold),
               text);
}

void PosterView::paintEvent(QPaintEvent* event) {
    if (!ground_ || !day_) {
        return;
    }
    QPainter painter(this);
    ground_->Paint(painter, event->rect(), devicePixelRatioF());
    PaintCountdown(painter);
    if (CountdownArea().contains(event->rect())) {
        return;
    }
    PaintDates(painter);
    PaintClock(painter);
    for (std::size_t prayer = 0; prayer < kCells; ++prayer) {
        PaintPrayer(painter, prayer);
    }
}

void PosterView::PaintDates(QPainter& painter) const {
    const QRectF head = Line(kHeadTop, kHead);
    const double third = head.width() / 3.0;
    const QString texts[] = {date_, weekday_, hijri_};
    for (int place = 0; place < 3; ++place) {
        const QRectF area(head.left() + place * third, head.top(), third, head.height());
        Write(painter, area, place == 1 ? 0.06 : 0.05, place == 1 ? kGold : kCream, texts[place],
              place == 1);
    }
    Write(painter, Line(kHeadTop + kHead, 0.06), 0.042, kGold, day_->place);
}

void PosterView::PaintClock(QPainter& painter) const {
    Write(painter, Line(kClockTop, kClock), 0.25, kCream, day_->clock, true);
}

// Of the prayer, in front of the digits, the name; in a fast, what ends.
void PosterView::PaintCountdown(QPainter& painter) const {
    const PrayerEntry& next = day_->rows.at(day_->next);
    QRectF area = Line(kNextTop, kNext);
    const QString digits = CountdownDigits(day_->seconds);
    const bool fromRight = DirectionOf(next.name) == Qt::RightToLeft;
    const QRectF left(area.left(), area.top(), area.width() * 0.5, area.height());
    const QRectF right = left.translated(left.width(), 0.0);
    Write(painter, fromRight ? right : left, 0.08, kCream,
          next.name + QStringLiteral(" \u00b7 ") + day_->countdownWords);
    Write(painter, fromRight ? left : right, 0.12, kGold, digits, true);
}

void PosterView::PaintPrayer(QPainter& painter, std::size_t prayer) const {
    const QRectF cell = Cell(prayer);
    const bool isNext = prayer == day_->next;
    if (isNext) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(kGlow);
        painter.drawRoundedRect(cell, 8.0, 8.0);
    }
    const double padding = 0.012 * height();
    const auto part = [&cell, padding](double top, double bottom) {
        return QRectF(cell.left() + padding, cell.top() + top * cell.height(),
                      cell.width() - 2.0 * padding, (bottom - top) * cell.height());
    };
    const PrayerEntry& row = day_->rows.at(prayer);
    const QColor colour = isNext ? kGold : kCream;
    Write(painter, part(0.06, 0.34), 0.056, colour, row.name, isNext);
    Write(painter, part(0.36, 0.68), 0.068, colour, row.time, true);
    Write(painter, part(0.7, 0.94), 0.045, kCream, day_->iqamas.at(prayer));
}

}  // namespace horavex
