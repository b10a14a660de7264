#include "desktop/face/fitted_text.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QRegularExpression>
#include <algorithm>
#include <utility>

namespace horavex {

namespace {

constexpr double kSmallest = 0.7;  // of the size asked for

// Rounding of widths must not cut a text that fits.
constexpr double kSlack = 0.5;  // pixels

double WidthOf(const QFont& font, const QString& text) {
    return QFontMetricsF(font).horizontalAdvance(text);
}

QFont Fitted(QFont font, const QString& text, double width) {
    const double wanted = WidthOf(font, text);
    if (wanted > width) {
        const double scale = std::max(width / wanted, kSmallest);
        font.setPixelSize(std::max(1, static_cast<int>(font.pixelSize() * scale)));
    }
    return font;
}

/// How far letters hang out below a line of that height in whose middle they stand.
double OverhangOf(const QFont& font, const QString& text, double height) {
    const QFontMetricsF metrics(font);
    const double baseline = (height - metrics.height()) / 2.0 + metrics.ascent();
    return std::max(0.0, baseline + metrics.tightBoundingRect(text).bottom() - height);
}

}  // namespace

QString WithTimesIsolated(QString text) {
    static const QRegularExpression time(
        QStringLiteral(R"(((?:[A-Za-z]+ )*\p{Nd}[\p{Nd}:.]*(?: [A-Za-z.]+)?))"));
    return text.replace(time, QStringLiteral("\u2066\\1\u2069"));
}

Qt::LayoutDirection DirectionOf(const QString& text) {
    return text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
}

QFont FaceFont(int pixels, bool bold) {
    QFont font = QGuiApplication::font();
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

void DrawFitted(QPainter& painter, const QRectF& area, Qt::Alignment alignment, QFont font,
                const QString& text) {
    font = Fitted(std::move(font), text, area.width());
    painter.setFont(font);
    painter.setLayoutDirection(DirectionOf(text));
    const QString ordered = text.isRightToLeft() ? WithTimesIsolated(text) : text;
    const QString shown =
        QFontMetricsF(font).elidedText(ordered, Qt::ElideRight, area.width() + kSlack);
    const QRectF line = area.translated(0.0, -OverhangOf(font, shown, area.height()));
    painter.drawText(line, static_cast<int>(alignment) | Qt::TextSingleLine | Qt::TextDontClip,
                     shown);
}

}  // namespace horavex
