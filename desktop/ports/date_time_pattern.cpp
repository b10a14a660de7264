#include "desktop/ports/date_time_pattern.h"

#include <QRegularExpression>
#include <QStringList>

namespace horavex {

namespace {

// Applies the replacement to what lies outside apostrophes.
QString ReplaceUnquoted(const QString& pattern, const QString& expression,
                        const QString& replacement) {
    static const QChar kQuote(u'\'');
    QStringList pieces = pattern.split(kQuote);
    for (qsizetype i = 0; i < pieces.size(); i += 2) {
        pieces[i].replace(QRegularExpression(expression), replacement);
    }
    return pieces.join(kQuote);
}

// Some locales name the part of the day ("B"), which the toolkit does not know: its nearest
// relative is the half of the day.
QString WithoutZone(const QString& pattern) {
    const QString bare = ReplaceUnquoted(pattern, QStringLiteral(R"([\[(]?t+[\])]?)"), {});
    return ReplaceUnquoted(bare, QStringLiteral("B"), QStringLiteral("AP")).trimmed();
}

}  // namespace

QString MediumTimePattern(const QString& shortPattern) {
    QString pattern = ReplaceUnquoted(WithoutZone(shortPattern), QStringLiteral(R"(\W?s+)"), {});
    pattern = ReplaceUnquoted(pattern, QStringLiteral("h+"), QStringLiteral("hh"));
    return ReplaceUnquoted(pattern, QStringLiteral("H+"), QStringLiteral("HH"));
}

QString LongTimePattern(const QString& longPattern) {
    return WithoutZone(longPattern);
}

QString ShortDatePattern(const QString& shortPattern) {
    return ReplaceUnquoted(shortPattern, QStringLiteral("y+"), QStringLiteral("yyyy"));
}

}  // namespace horavex
