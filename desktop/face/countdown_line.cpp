#include "desktop/face/countdown_line.h"

#include <QFontMetricsF>
#include <QPainter>

#include "desktop/face/fitted_text.h"
#include "desktop/face/palette.h"
#include "desktop/user_text.h"

namespace horavex {

namespace {

// Pixels.
constexpr int kDigitsSize = 46;
constexpr int kWordsSize = 17;
constexpr double kGap = 12.0;

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
    if (words != words_ || digits != digits_) {
        words_ = words;
        digits_ = digits;
        update();
    }
}

// Words and digits stand on one line of writing, in the order of the words' script.
void CountdownLine::paintEvent(QPaintEvent* event) {
    if (digits_.isEmpty()) {
        TextLine::paintEvent(event);
        return;
    }
    QPainter painter(this);
    const bool fromRight = DirectionOf(words_) == Qt::RightToLeft;
    const QFont large = FaceFont(kDigitsSize, true);
    const QFontMetricsF metrics(large);
    const double needed = std::min<double>(metrics.horizontalAdvance(digits_), width());
    const QRectF line = rect();
    const double cut = line.width() - needed;
    painter.setPen(kGold);
    painter.setFont(large);
    painter.drawText(QRectF(fromRight ? 0.0 : cut, 0.0, needed, line.height()),
                     Qt::AlignCenter | Qt::TextDontClip, digits_);
    painter.setPen(kCream);
    DrawFitted(painter, QRectF(fromRight ? needed + kGap : 0.0, 0.0, cut - kGap, line.height()),
               Qt::AlignLeading | Qt::AlignVCenter, FaceFont(kWordsSize), words_);
}

}  // namespace horavex
