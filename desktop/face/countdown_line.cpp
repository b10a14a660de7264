#include "desktop/face/countdown_line.h"

#include <QFontMetricsF>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

#include "desktop/face/fitted_text.h"
#include "desktop/face/palette.h"
#include "desktop/user_text.h"

namespace horavex {

namespace {

// Pixels.
constexpr int kDigitsSize = 46;
constexpr int kWordsSize = 17;
constexpr double kGap = 12.0;
constexpr int kOverhang = 4;  // of digits over their own width, at most

}  // namespace

QString CountdownDigits(int seconds) {
    const auto padded = [](int number) {
        return QStringLiteral("%1").arg(number, 2, 10, QChar(u'0'));
    };
    return UserText(QString::number(seconds / 3600) + u':' + padded(seconds / 60 % 60) + u':' +
                    padded(seconds % 60));
}

void CountdownLine::ShowCountdown(const QString& words, int seconds) {
    const QString digits = CountdownDigits(seconds);
    if (words == words_ && digits == digits_) {
        return;
    }
    const bool isBesideTheSameWords = words == words_ && WidthOf(digits) == painted_.width();
    words_ = words;
    digits_ = digits;
    isBesideTheSameWords ? update(painted_.toAlignedRect().adjusted(-kOverhang, 0, kOverhang, 0))
                         : update();
}

double CountdownLine::WidthOf(const QString& digits) const {
    const QFontMetricsF metrics(FaceFont(kDigitsSize, true));
    return std::min<double>(metrics.horizontalAdvance(digits), width());
}

// Words and digits stand on one line of writing, in the order of the words' script.
void CountdownLine::paintEvent(QPaintEvent* event) {
    if (digits_.isEmpty()) {
        TextLine::paintEvent(event);
        return;
    }
    QPainter painter(this);
    const bool fromRight = DirectionOf(words_) == Qt::RightToLeft;
    const double needed = WidthOf(digits_);
    const QRectF line = rect();
    const double cut = line.width() - needed;
    painted_ = QRectF(fromRight ? 0.0 : cut, 0.0, needed, line.height());
    painter.setPen(kGold);
    painter.setFont(FaceFont(kDigitsSize, true));
    painter.drawText(painted_, Qt::AlignCenter | Qt::TextDontClip, digits_);
    const QRectF room(fromRight ? needed + kGap : 0.0, 0.0, cut - kGap, line.height());
    if (event->region().intersects(room.toAlignedRect())) {
        painter.setPen(kCream);
        DrawFitted(painter, room, Qt::AlignLeading | Qt::AlignVCenter, FaceFont(kWordsSize),
                   words_);
    }
}

}  // namespace horavex
