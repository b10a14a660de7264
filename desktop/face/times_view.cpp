#include "desktop/face/times_view.h"

#include <QAccessible>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

#include "desktop/face/fitted_text.h"
#include "desktop/face/palette.h"

namespace horavex {

namespace {

constexpr std::size_t kRows = 6;
constexpr int kTypeSize = 15;      // pixels
constexpr double kPadding = 10.0;  // beside a row's texts, pixels
constexpr double kNamePart = 0.5;  // of a row's width, or less for a time that needs more
constexpr double kGap = 8.0;       // between name and time, pixels

double WidthOf(const QFont& font, const QString& text) {
    return QFontMetricsF(font).horizontalAdvance(text);
}

/// The width of the name in a row of that width.
double NameWidth(const PrayerEntry& entry, const QFont& font, double width) {
    const double half = width * kNamePart;
    const double left = width - kGap - WidthOf(font, entry.time);
    return std::clamp(left, std::min(half, WidthOf(font, entry.name)), half);
}

/// Tells assistive tools that another row is the marked one.
void TellNext(TimesView& view, std::size_t next) {
    QAccessibleEvent event(&view, QAccessible::Selection);
    event.setChild(static_cast<int>(next));
    QAccessible::updateAccessibility(&event);
}

}  // namespace

void TimesView::ShowTimes(const std::vector<PrayerEntry>& rows, std::size_t next) {
    if (rows == rows_ && next == next_) {
        return;
    }
    const bool another = next != next_;
    rows_ = rows;
    next_ = next;
    update();
    if (another && next < rows_.size()) {
        TellNext(*this, next);
    }
}

QRectF TimesView::AreaOf(std::size_t row) const {
    const double rowHeight = height() / static_cast<double>(kRows);
    return {0.0, static_cast<double>(row) * rowHeight, static_cast<double>(width()), rowHeight};
}

void TimesView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        PaintRow(painter, row);
    }
}

void TimesView::PaintRow(QPainter& painter, std::size_t row) const {
    const PrayerEntry& entry = rows_[row];
    const bool isNext = row == next_;
    const QRectF area = AreaOf(row);
    if (isNext) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(kGlow);
        painter.drawRoundedRect(area.adjusted(1.0, 1.0, -1.0, -1.0), 5.0, 5.0);
    }
    QRectF name = area.adjusted(kPadding, 0.0, -kPadding, 0.0);
    QRectF time = name;
    const QFont font = FaceFont(kTypeSize, isNext);
    const double cut = NameWidth(entry, font, name.width());
    const bool nameIsRight = DirectionOf(entry.name) == Qt::RightToLeft;
    nameIsRight ? name.setLeft(name.right() - cut) : name.setRight(name.left() + cut);
    nameIsRight ? time.setRight(name.left()) : time.setLeft(name.right());
    painter.setPen(isNext ? kGold : kCream);
    DrawFitted(painter, name, Qt::AlignLeading | Qt::AlignVCenter, font, entry.name);
    const Qt::Alignment side = nameIsRight ? Qt::AlignLeft : Qt::AlignRight;
    DrawFitted(painter, time, side | Qt::AlignAbsolute | Qt::AlignVCenter, font, entry.time);
}

}  // namespace horavex
