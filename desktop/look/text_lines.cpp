#include "desktop/look/text_lines.h"

#include <QFontMetricsF>
#include <QTextLayout>
#include <algorithm>

namespace horavex::look {

namespace {

constexpr char16_t kBehindLatin = 0x0250;

bool IsLatin(const QString& text) {
    return std::ranges::none_of(
        text, [](QChar letter) { return letter.isLetter() && letter.unicode() >= kBehindLatin; });
}

}  // namespace

QString InLines(QString text, const QFont& font, int width) {
    text.replace(u'\n', QChar::LineSeparator);
    QTextLayout layout(text, font);
    QTextOption option(Qt::AlignRight);
    option.setTextDirection(Qt::RightToLeft);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines << text.mid(line.textStart(), line.textLength()).trimmed();
    }
    layout.endLayout();
    return lines.join(u'\n');
}

int BaselineShift(const QString& text, const QFont& font) {
    if (IsLatin(text)) {
        return 0;
    }
    QTextLayout layout(text, font);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    const QFontMetricsF plain(font);
    return qRound((line.height() - plain.height()) / 2.0 + plain.ascent() - line.ascent());
}

}  // namespace horavex::look
